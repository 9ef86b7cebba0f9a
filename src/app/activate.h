#pragma once

#include <QWidget>

namespace app {

/// Gives a window the focus, also while the person works in another program.
void activate(QWidget& window);

} // namespace app
