#include "tickList.h"

#include <QInputEvent>

namespace submission {

TickList::TickList(QWidget* parent) : QListWidget(parent)
{
    setSelectionMode(MultiSelection);
}

QItemSelectionModel::SelectionFlags TickList::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    const bool isInput = event && event->isInputEvent();
    if (isInput && static_cast<const QInputEvent*>(event)->modifiers().testFlag(Qt::ShiftModifier))
        return QItemSelectionModel::SelectCurrent;
    return QListWidget::selectionCommand(index, event);
}

} // namespace submission
