#pragma once

#include <QWidget>

namespace app {

/// Asks the window manager of X11 for the focus, also while the person works in another program. False where X11 is
/// not the display.
bool activateAsTaskBar(const QWidget& window);

} // namespace app
