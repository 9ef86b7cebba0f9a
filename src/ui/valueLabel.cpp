#include "valueLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QTextDocument>
#include <QToolTip>

namespace ui {

namespace {

constexpr int minimumCharacters = 12;

} // namespace

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize ValueLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * minimumCharacters, fontMetrics().height()};
}

// The same for every text, so that the frame around does not jump when a value changes.
QSize ValueLabel::sizeHint() const
{
    return minimumSizeHint();
}

QString ValueLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ValueLabel::setClickable()
{
    m_isClickable = true;
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
}

void ValueLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(m_isClickable && underMouse());
    painter.setFont(underlined);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shownText(),
                          foregroundRole());
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void ValueLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_isClickable && event->button() == Qt::LeftButton && rect().contains(event->pos()))
        Q_EMIT clicked();
    else
        QLabel::mouseReleaseEvent(event);
}

void ValueLabel::keyPressEvent(QKeyEvent* event)
{
    const bool isPressKey =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (m_isClickable && isPressKey)
        Q_EMIT clicked();
    else
        QLabel::keyPressEvent(event);
}

bool ValueLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && shownText() != text()) {
        // A tool tip shows a text that looks like markup as such, so the marks in a name are escaped.
        const QString tip = Qt::convertFromPlainText(text(), Qt::WhiteSpaceNormal);
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace ui
