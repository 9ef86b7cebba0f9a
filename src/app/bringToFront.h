#pragma once

#include <QWidget>

namespace app {

/// Brings the program to the front of all others and gives it the focus: the main window, un-minimised, or the dialog
/// that blocks it.
void bringToFront(QWidget& mainWindow);

} // namespace app
