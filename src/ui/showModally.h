#pragma once

#include <QDialog>

namespace ui {

/// Shows a dialog and returns when it is closed; then the window behind it has the keyboard. Some window managers lose
/// the way back to it when a dialog closes together with a message above it.
template <typename Dialog>
void showModally(Dialog&& dialog)
{
    dialog.exec();
    if (const QWidget* parent = dialog.parentWidget())
        parent->window()->activateWindow();
}

} // namespace ui
