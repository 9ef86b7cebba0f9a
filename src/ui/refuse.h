#pragma once

#include <QWidget>

#include <initializer_list>

namespace ui {

/// The first of these text boxes and combo boxes that shows no text; null when all do.
QWidget* findFirstEmpty(std::initializer_list<QWidget*> boxes);

/// Shows what is wrong with a box, moves the focus there and selects all its text, ready to be typed over.
void refuse(const QString& message, QWidget& box);

} // namespace ui
