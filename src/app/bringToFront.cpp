#include "bringToFront.h"

#include "activate.h"

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
    activate(front);
}

} // namespace app
