#include "valueLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace ui {

namespace {

constexpr int shortestInCharacters = 12;

} // namespace

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize ValueLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * shortestInCharacters, fontMetrics().height()};
}

// The frame around must not jump when a value changes.
QSize ValueLabel::sizeHint() const
{
    return minimumSizeHint();
}

QString ValueLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ValueLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shownText(),
                          foregroundRole());
}

bool ValueLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && shownText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace ui
