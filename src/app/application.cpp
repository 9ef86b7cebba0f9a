#include "application.h"

#include "ui/eventGuard.h"

namespace app {

bool Application::notify(QObject* receiver, QEvent* event)
{
    bool isHandled = false;
    ui::guard([&] { isHandled = QApplication::notify(receiver, event); });
    return isHandled;
}

} // namespace app
