#pragma once

#include <QString>
#include <QWidget>

#include <initializer_list>

namespace ui {

/// The first of these text boxes and combo boxes that shows no text; null when all do.
QWidget* findFirstEmpty(std::initializer_list<QWidget*> boxes);

/// Shows what is wrong with a box, moves the focus there and selects all its text, ready to be typed over.
void refuse(const QString& message, QWidget& box);

/// What is wrong with a box on more than one form: nothing of its list is selected, it holds no date, or no number.
extern const QString selectionMessage;
extern const QString dateMessage;
extern const QString numberMessage;

} // namespace ui
