#include "start.h"

#include "mdiMain.h"
#include "termination.h"

#include "store/connectionStrings.h"
#include "ui/accessibility.h"
#include "ui/contrast.h"
#include "ui/messages.h"

#include <QIcon>
#include <QTimer>

using namespace Qt::StringLiterals;

// Named from outside any namespace: a static library's resources are left out unless someone asks for them.
static void initResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace modMain {

namespace {

void setIcon()
{
    initResources();
    QIcon icon;
    for (const int size : {16, 32, 48, 256})
        icon.addFile(u":/icon/%1.png"_s.arg(size));
    QApplication::setWindowIcon(icon);
}

} // namespace

void setApplicationLook()
{
    QApplication::setApplicationName(ui::applicationTitle);
    QApplication::setApplicationVersion(QStringLiteral(PENWRIGHT_VERSION));
    // The bar belongs into the window; asking the desktop for another place would cost every start a conversation.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    ui::installAccessibility();
    QApplication::setPalette(ui::withReadableSelection(QApplication::palette()));
    // Reading pictures loads libraries of its own, which the first sight of the window need not wait for.
    QTimer::singleShot(100, setIcon);
}

std::unique_ptr<QWidget> Main(const QString& programFolder)
{
    setConnectionStrings(programFolder);
    auto window = std::make_unique<app::mdiMain>();
    // The session's end and a signal are ways out like the close box.
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, window.get(), &QWidget::close);
    app::onTermination(*window, [main = window.get()] { main->close(); });
    window->show();
    return window;
}

} // namespace modMain
