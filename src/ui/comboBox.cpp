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

// Behind another window or a menu, what is half typed waits with its cursor.
bool comesOrGoes(const QFocusEvent& event)
{
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason;
}

} // namespace

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent)
{
    // Not WheelFocus: the wheel would give itself the focus that it needs.
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::currentIndexChanged, this, &ComboBox::showBeginning);
    connect(this, &QComboBox::activated, this, &ComboBox::showBeginning);
}

void ComboBox::showPopup()
{
    const int besideEntries = view()->verticalScrollBar()->sizeHint().width() + 2 * view()->frameWidth();
    view()->setMinimumWidth(
        std::min(view()->sizeHintForColumn(modelColumn()) + besideEntries, screen()->availableSize().width()));
    QComboBox::showPopup();
}

void ComboBox::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    if (comesOrGoes(*event))
        showBeginning();
}

void ComboBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    if (comesOrGoes(*event))
        showBeginning();
}

// A list that is scrolled past must not change the choice.
void ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

// The box shows the part of the text where the cursor is; text selected as a whole stays so.
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
