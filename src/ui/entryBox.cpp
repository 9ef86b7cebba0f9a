#include "entryBox.h"

#include "textRule.h"

#include <QFocusEvent>
#include <QTimer>

namespace ui {

namespace {

constexpr QRgb paleYellow = qRgb(0xFF, 0xFF, 0xC0);
constexpr QRgb white = qRgb(0xFF, 0xFF, 0xFF);

// Black text on both colours, even when the desktop's theme is dark.
void setBackground(QWidget& box, QRgb background)
{
    QPalette palette = box.palette();
    palette.setColor(QPalette::Active, QPalette::Base, background);
    palette.setColor(QPalette::Inactive, QPalette::Base, background);
    palette.setColor(QPalette::Active, QPalette::Text, Qt::black);
    palette.setColor(QPalette::Inactive, QPalette::Text, Qt::black);
    box.setPalette(palette);
}

bool isInterruption(const QFocusEvent& event)
{
    return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason ||
           event.reason() == Qt::MenuBarFocusReason;
}

} // namespace

EntryBox::EntryBox(QWidget* parent) : QLineEdit(parent)
{
    setValidator(new TextRule(joinLines, this));
    setBackground(*this, white);
}

void EntryBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // After a menu or another window the text is not selected again, or the next key would erase it.
    if (isInterruption(*event) && m_isEntered)
        return;
    m_isEntered = true;
    highlight();
    // Selects later, because the mouse press that gave the focus then sets the cursor, which undoes a selection.
    if (event->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void EntryBox::highlight()
{
    setBackground(*this, paleYellow);
    selectAll();
}

void EntryBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (!isInterruption(*event))
        leave();
}

// While another window is in front, the program may move the focus without any event for this box.
bool EntryBox::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && m_isEntered && window()->focusWidget() != this)
        leave();
    return QLineEdit::event(event);
}

void EntryBox::leave()
{
    m_isEntered = false;
    setBackground(*this, white);
    Q_EMIT left();
}

} // namespace ui
