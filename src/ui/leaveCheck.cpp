#include "leaveCheck.h"

#include "eventGuard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>

namespace ui {

LeaveCheck::LeaveCheck(QDialog& dialog, const QWidget& free, MayLeave mayLeave)
    : QObject(&dialog), m_dialog(dialog), m_free(free), m_mayLeave(std::move(mayLeave))
{
    qApp->installEventFilter(this);
}

bool LeaveCheck::eventFilter(QObject* watched, QEvent* event)
{
    QWidget* box = m_dialog.focusWidget();
    const QWidget* to = destination(watched, *event);
    if (!box || !to || to == box || to == &m_free)
        return false;
    bool mayLeave = true;
    guard([&] { mayLeave = m_mayLeave(box); });
    return !mayLeave;
}

const QWidget* LeaveCheck::destination(QObject* watched, const QEvent& event) const
{
    switch (event.type()) {
    case QEvent::KeyPress: {
        const int key = static_cast<const QKeyEvent&>(event).key();
        const bool moves = key == Qt::Key_Tab || key == Qt::Key_Backtab;
        return moves && watched == m_dialog.focusWidget() ? &m_dialog : nullptr;
    }
    case QEvent::Shortcut: {
        const auto* target = qobject_cast<QWidget*>(watched->parent());
        return target && m_dialog.isAncestorOf(target) ? target : nullptr;
    }
    case QEvent::MouseButtonPress:
        // On its way to the window: when it reaches a control, the focus is there already.
        return watched == m_dialog.windowHandle() ? pressed(static_cast<const QMouseEvent&>(event)) : nullptr;
    default:
        return nullptr;
    }
}

// A press on a label or between the controls moves nothing.
const QWidget* LeaveCheck::pressed(const QMouseEvent& event) const
{
    const QWidget* widget = m_dialog.childAt(event.position().toPoint());
    while (widget && widget != &m_dialog && !(widget->focusPolicy() & Qt::ClickFocus))
        widget = widget->parentWidget();
    return widget != &m_dialog ? widget : nullptr;
}

} // namespace ui
