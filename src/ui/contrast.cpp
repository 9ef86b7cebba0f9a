#include "contrast.h"

#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// The eye's, as the web's guidelines for accessible contents calculate it.
double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

bool isDark(const QColor& color)
{
    return contrastOf(color, Qt::white) > contrastOf(color, Qt::black);
}

} // namespace

double contrastOf(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QPalette withReadableSelection(QPalette palette)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor selection = palette.color(group, QPalette::Highlight);
        if (contrastOf(palette.color(group, QPalette::HighlightedText), selection) < readableContrast)
            palette.setColor(group, QPalette::HighlightedText, isDark(selection) ? Qt::white : Qt::black);
    }
    return palette;
}

QColor messageColor(Outcome outcome)
{
    const QPalette theme = QGuiApplication::palette();
    const QColor background = theme.color(QPalette::Window);
    if (outcome == Outcome::Success)
        return isDark(background) ? theme.color(QPalette::WindowText) : QColor(Qt::black);
    QColor color = Qt::red;
    for (int paleness = 0; isDark(background) && paleness < 255 && contrastOf(color, background) < readableContrast;
         paleness += 5)
        color.setRgb(255, paleness, paleness);
    return color;
}

} // namespace ui
