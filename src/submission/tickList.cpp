#include "tickList.h"

#include <QMouseEvent>

namespace submission {

TickList::TickList(QWidget* parent) : QListWidget(parent)
{
    setSelectionMode(MultiSelection);
}

// Treats the second of two quick clicks like a single click.
void TickList::mouseDoubleClickEvent(QMouseEvent* event)
{
    QMouseEvent press(QEvent::MouseButtonPress, event->position(), event->scenePosition(), event->globalPosition(),
                      event->button(), event->buttons(), event->modifiers(), event->pointingDevice());
    mousePressEvent(&press);
}

QItemSelectionModel::SelectionFlags TickList::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    const bool isInput = event && event->isInputEvent();
    if (isInput && static_cast<const QInputEvent*>(event)->modifiers().testFlag(Qt::ShiftModifier))
        return QItemSelectionModel::SelectCurrent;
    return QListWidget::selectionCommand(index, event);
}

} // namespace submission
