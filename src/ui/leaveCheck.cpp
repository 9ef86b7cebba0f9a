#include "leaveCheck.h"

#include "eventGuard.h"

#include <QApplication>
#include <QKeyEvent>

namespace ui {

LeaveCheck::LeaveCheck(QDialog& dialog, const QWidget& free, MayLeave mayLeave)
    : QObject(&dialog), m_dialog(dialog), m_free(free), m_mayLeave(std::move(mayLeave))
{
    qApp->installEventFilter(this);
}

bool LeaveCheck::eventFilter(QObject* watched, QEvent* event)
{
    QWidget* box = m_dialog.focusWidget();
    if (!m_dialog.isActiveWindow() || !box)
        return false;
    const QWidget* to = destination(watched, *event);
    if (!to || to == box || to == &m_free)
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
        return pressed(watched);
    default:
        return nullptr;
    }
}

// A press on a label or between the controls moves nothing.
const QWidget* LeaveCheck::pressed(QObject* watched) const
{
    auto* widget = qobject_cast<QWidget*>(watched);
    while (widget && widget != &m_dialog && !(widget->focusPolicy() & Qt::ClickFocus))
        widget = widget->parentWidget();
    return widget && widget != &m_dialog && m_dialog.isAncestorOf(widget) ? widget : nullptr;
}

} // namespace ui
