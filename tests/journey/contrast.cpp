#include "contrast.h"

#include "ui/contrast.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Text {
    QString text;
    QRect place;
};

QList<Text> cellTexts(const QAbstractItemView& view)
{
    QList<Text> texts;
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        for (int column = 0; column < view.model()->columnCount(); ++column) {
            const QModelIndex index = view.model()->index(row, column);
            const QRect place = view.visualRect(index).translated(view.viewport()->pos()) & view.viewport()->geometry();
            // A row of which only a slice is seen shows no text.
            if (place.height() > view.fontMetrics().height())
                texts << Text{index.data().toString(), place.adjusted(3, 3, -3, -3)};
        }
    }
    return texts;
}

/// Without the frame around and the mark beside a text, which may stand out more than the text does.
QList<Text> textsOf(const QWidget& widget)
{
    const QRect inner = widget.rect().adjusted(4, 4, -4, -4);
    if (const auto* view = qobject_cast<const QHeaderView*>(&widget))
        return {{view->model()->headerData(0, view->orientation()).toString(), inner}};
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget))
        return cellTexts(*view);
    if (qobject_cast<const QLabel*>(&widget))
        return {{widget.property("text").toString(), widget.rect()}};
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
        return {{box->title(),
                 QRect(9, 0, box->fontMetrics().horizontalAdvance(box->title()), box->fontMetrics().height())}};
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return {{combo->currentText(), inner.adjusted(0, 0, -20, 0)}};
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (button || qobject_cast<const QLineEdit*>(&widget))
        return {
            {widget.property("text").toString(), inner.adjusted(button && button->isCheckable() ? 20 : 0, 0, 0, 0)}};
    QList<Text> commands;
    if (const auto* bar = qobject_cast<const QMenuBar*>(&widget)) {
        for (QAction* command : bar->actions())
            commands << Text{command->isEnabled() ? command->text() : QString(), bar->actionGeometry(command)};
    }
    return commands;
}

/// Of the colour that stands out most from the one that covers most; 21 where there is no text.
double measureContrast(const QImage& picture)
{
    QHash<QRgb, int> areas;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++areas[picture.pixel(x, y)];
    }
    if (areas.size() < 2)
        return 21;
    const QRgb background = std::max_element(areas.cbegin(), areas.cend()).key();
    double contrast = 1;
    for (const QRgb color : areas.keys())
        contrast = std::max(contrast, ui::contrastOf(QColor(color), QColor(background)));
    return contrast;
}

} // namespace

QStringList faintTexts(const QWidget& window, const QImage& display)
{
    QStringList faint;
    const double scale = window.devicePixelRatioF();
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isEnabled() || widget->visibleRegion().isEmpty())
            continue;
        const QPoint origin = widget->mapToGlobal(QPoint());
        for (const Text& text : textsOf(*widget)) {
            const QRect place = text.place & widget->visibleRegion().boundingRect();
            const QRectF area(QPointF(place.topLeft() + origin) * scale, QSizeF(place.size()) * scale);
            const double contrast = measureContrast(display.copy(area.toAlignedRect() & display.rect()));
            if (!text.text.trimmed().isEmpty() && contrast < ui::readableContrast)
                faint << u"%1 %2: %3"_s.arg(widget->objectName(), text.text.left(30)).arg(contrast, 0, 'f', 1);
        }
    }
    return faint;
}
