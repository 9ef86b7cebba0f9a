#pragma once

#include <QDialog>

namespace ui {

/// Shows a dialog, returns when it is closed and gives the keyboard back to the window behind it. Some window managers
/// do not do so when a dialog closes together with a message above it.
template <typename Dialog>
void showModally(Dialog&& dialog)
{
    dialog.exec();
    if (const QWidget* parent = dialog.parentWidget())
        parent->window()->activateWindow();
}

} // namespace ui
