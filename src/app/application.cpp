#include "application.h"

#include "ui/contrast.h"
#include "ui/eventGuard.h"

namespace app {

bool Application::notify(QObject* receiver, QEvent* event)
{
    bool isHandled = false;
    ui::guard([&] { isHandled = QApplication::notify(receiver, event); });
    return isHandled;
}

// Some themes select in a colour on which their text is faint. The theme may change while the program runs.
bool Application::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        setPalette(ui::withReadableSelection(palette()));
    return QApplication::event(event);
}

} // namespace app
