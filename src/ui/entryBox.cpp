#include "entryBox.h"

#include "textRule.h"

#include <QFocusEvent>
#include <QTimer>

namespace ui {

namespace {

constexpr QRgb paleYellow = qRgb(0xFF, 0xFF, 0xC0);
constexpr QRgb white = qRgb(0xFF, 0xFF, 0xFF);

// The text is dark on both, also where the desktop's theme is dark.
void paint(QWidget& box, QRgb background)
{
    QPalette palette = box.palette();
    palette.setColor(QPalette::Active, QPalette::Base, background);
    palette.setColor(QPalette::Inactive, QPalette::Base, background);
    palette.setColor(QPalette::Active, QPalette::Text, Qt::black);
    palette.setColor(QPalette::Inactive, QPalette::Text, Qt::black);
    box.setPalette(palette);
}

bool staysInWindow(const QFocusEvent& event)
{
    return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason ||
           event.reason() == Qt::MenuBarFocusReason;
}

} // namespace

EntryBox::EntryBox(QWidget* parent) : QLineEdit(parent)
{
    setValidator(new TextRule(oneLine, this));
    paint(*this, white);
}

void EntryBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    // Back from a menu or another window: to select again what was typed would let the next key wipe it out.
    if (staysInWindow(*event) && m_entered)
        return;
    m_entered = true;
    highlight();
    // The press that gave the focus also sets the cursor, which would undo the selection.
    if (event->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void EntryBox::highlight()
{
    paint(*this, paleYellow);
    selectAll();
}

void EntryBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (!staysInWindow(*event))
        leave();
}

// Where the program moved the focus while another window was in front, no event told so.
bool EntryBox::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && m_entered && window()->focusWidget() != this)
        leave();
    return QLineEdit::event(event);
}

void EntryBox::leave()
{
    m_entered = false;
    paint(*this, white);
    Q_EMIT left();
}

} // namespace ui
