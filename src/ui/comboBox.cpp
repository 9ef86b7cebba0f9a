#include "comboBox.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace ui {

namespace {

// While a menu or another window is in front, a half-typed text keeps its cursor.
bool isMovedWithinProgram(const QFocusEvent& event)
{
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason;
}

} // namespace

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent)
{
    // Not WheelFocus: turning the wheel would first move the focus here and then change the choice.
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::currentIndexChanged, this, &ComboBox::showBeginning);
    connect(this, &QComboBox::activated, this, &ComboBox::showBeginning);
}

void ComboBox::showPopup()
{
    const int extraWidth = view()->verticalScrollBar()->sizeHint().width() + 2 * view()->frameWidth();
    view()->setMinimumWidth(
        std::min(view()->sizeHintForColumn(modelColumn()) + extraWidth, screen()->availableSize().width()));
    QComboBox::showPopup();
}

void ComboBox::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    if (isMovedWithinProgram(*event))
        showBeginning();
}

void ComboBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    if (isMovedWithinProgram(*event))
        showBeginning();
}

// Scrolling past the box must not change the choice.
void ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

// The box shows the part of the text where the cursor is. A selection of the whole text is kept.
void ComboBox::showBeginning()
{
    if (!isEditable())
        return;
    const bool isAllSelected = lineEdit()->hasSelectedText() && lineEdit()->selectedText() == lineEdit()->text();
    const int length = static_cast<int>(lineEdit()->text().size());
    if (isAllSelected)
        lineEdit()->setSelection(length, -length);
    else
        lineEdit()->setCursorPosition(0);
}

} // namespace ui
