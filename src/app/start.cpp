#include "start.h"

#include "mdiMain.h"

#include "store/connectionStrings.h"
#include "ui/messages.h"

#include <QIcon>

// Named from outside any namespace: a static library's resources are left out unless someone asks for them.
static void initResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace modMain {

void setApplicationLook(QApplication& application)
{
    application.setApplicationName(ui::applicationTitle);
    application.setApplicationVersion(QStringLiteral(PENWRIGHT_VERSION));
    initResources();
    QIcon icon;
    for (const int size : {16, 32, 48, 256})
        icon.addFile(QStringLiteral(":/icon/%1.png").arg(size));
    application.setWindowIcon(icon);
}

std::unique_ptr<QWidget> Main(const QString& programFolder)
{
    setConnectionStrings(programFolder);
    auto window = std::make_unique<app::mdiMain>();
    window->show();
    return window;
}

} // namespace modMain
