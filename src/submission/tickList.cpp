#include "tickList.h"

#include <QMouseEvent>

namespace submission {

namespace {

bool hasShift(const QInputEvent& event)
{
    return event.modifiers().testFlag(Qt::ShiftModifier);
}

} // namespace

TickList::TickList(QWidget* parent) : QListWidget(parent)
{
    setSelectionMode(MultiSelection);
}

void TickList::mousePressEvent(QMouseEvent* event)
{
    QListWidget::mousePressEvent(event);
    if (hasShift(*event))
        tickRange();
    else
        dropAnchor();
}

void TickList::mouseMoveEvent(QMouseEvent* event)
{
    QListWidget::mouseMoveEvent(event);
    if (hasShift(*event) && event->buttons().testFlag(Qt::LeftButton))
        tickRange();
}

// Treats the second of two quick clicks like a single click.
void TickList::mouseDoubleClickEvent(QMouseEvent* event)
{
    QMouseEvent press(QEvent::MouseButtonPress, event->position(), event->scenePosition(), event->globalPosition(),
                      event->button(), event->buttons(), event->modifiers(), event->pointingDevice());
    mousePressEvent(&press);
}

void TickList::keyPressEvent(QKeyEvent* event)
{
    const QPersistentModelIndex before = currentIndex();
    if (!m_anchor.isValid())
        m_anchor = before;
    QListWidget::keyPressEvent(event);
    // Other keys, Shift itself among them, leave everything as it is.
    if (currentIndex() == before && event->key() != Qt::Key_Space)
        return;
    if (hasShift(*event))
        tickRange();
    else
        dropAnchor();
}

// With Shift, Qt only moves to the entry; the range is ticked afterwards.
QItemSelectionModel::SelectionFlags TickList::selectionCommand(const QModelIndex& index, const QEvent* event) const
{
    if (event && event->isInputEvent() && hasShift(*static_cast<const QInputEvent*>(event)))
        return QItemSelectionModel::NoUpdate;
    return QListWidget::selectionCommand(index, event);
}

// What was ticked before is then no part of the range, which the next Shift would replace.
void TickList::dropAnchor()
{
    m_anchor = currentIndex();
    selectionModel()->select(QItemSelection(), QItemSelectionModel::Select);
}

// In place of the range of an earlier Shift with the same anchor.
void TickList::tickRange()
{
    if (!m_anchor.isValid())
        m_anchor = currentIndex();
    if (m_anchor.isValid())
        selectionModel()->select(QItemSelection(m_anchor, currentIndex()), QItemSelectionModel::SelectCurrent);
}

} // namespace submission
