#include "leaveCheck.h"

#include "eventGuard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace ui {

LeaveCheck::LeaveCheck(QDialog& dialog, const QWidget& freeControl, CanLeave canLeave)
    : QObject(&dialog), m_dialog(dialog), m_freeControl(freeControl), m_canLeave(std::move(canLeave))
{
    qApp->installEventFilter(this);
}

bool LeaveCheck::eventFilter(QObject* watched, QEvent* event)
{
    QWidget* box = m_dialog.focusWidget();
    const QWidget* target = findTarget(watched, *event);
    if (!box || !target || target == box || target == &m_freeControl)
        return false;
    bool canLeave = true;
    guard([&] { canLeave = m_canLeave(box); });
    return !canLeave;
}

const QWidget* LeaveCheck::findTarget(QObject* watched, const QEvent& event) const
{
    switch (event.type()) {
    case QEvent::KeyPress: {
        const int key = static_cast<const QKeyEvent&>(event).key();
        const bool isTabKey = key == Qt::Key_Tab || key == Qt::Key_Backtab;
        return isTabKey && watched == m_dialog.focusWidget() ? &m_dialog : nullptr;
    }
    case QEvent::Shortcut: {
        const auto* target = qobject_cast<QWidget*>(watched->parent());
        return target && m_dialog.isAncestorOf(target) ? target : nullptr;
    }
    case QEvent::MouseButtonPress:
        // Caught at the window: before a press reaches a control, Qt has already moved the focus there.
        return watched == m_dialog.windowHandle() ? findPressedControl(static_cast<const QMouseEvent&>(event))
                                                  : nullptr;
    default:
        return nullptr;
    }
}

// A press on a label or between the controls does not move the focus.
const QWidget* LeaveCheck::findPressedControl(const QMouseEvent& event) const
{
    const QWidget* widget = m_dialog.childAt(event.position().toPoint());
    while (widget && widget != &m_dialog && !(widget->focusPolicy() & Qt::ClickFocus))
        widget = widget->parentWidget();
    return widget != &m_dialog ? widget : nullptr;
}

} // namespace ui
