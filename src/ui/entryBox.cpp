#include "entryBox.h"

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

EntryBox::EntryBox(QWidget* parent)
    : QLineEdit(parent)
{
    paint(*this, white);
}

void EntryBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (staysInWindow(*event) && hasSelectedText())
        return;
    paint(*this, paleYellow);
    selectAll();
    // The press that gave the focus also sets the cursor, which would undo the selection.
    if (event->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void EntryBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (staysInWindow(*event))
        return;
    paint(*this, white);
    Q_EMIT left();
}

} // namespace ui
