#include "bringToFront.h"

#ifdef PENWRIGHT_X11
#include "activateAsTaskBar.h"
#endif

#include <QApplication>

namespace app {

void bringToFront(QWidget& mainWindow)
{
    QWidget* dialog = QApplication::activeModalWidget();
    QWidget& front = dialog && dialog->isVisible() ? *dialog : mainWindow;
    for (QWidget* window : {&mainWindow, &front}) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
    }
#ifdef PENWRIGHT_X11
    if (activateAsTaskBar(front))
        return;
#endif
    front.activateWindow();
}

} // namespace app
