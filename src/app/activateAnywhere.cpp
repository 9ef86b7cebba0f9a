// How a window gets the focus when the program is built without X11.
#include "activate.h"

namespace app {

void activate(QWidget& window)
{
    window.activateWindow();
}

} // namespace app
