#include "app/application.h"
#include "app/bringToFront.h"
#include "app/oneInstance.h"
#include "app/start.h"

#include "office/suite.h"
#include "ui/eventGuard.h"
#include "ui/messages.h"

#include <cstdlib>

int main(int argc, char* argv[])
{
    const app::Application application(argc, argv);
    modMain::setApplicationLook();
    app::OneInstance instance(QCoreApplication::applicationDirPath());
    if (!instance.isFirst()) {
        if (!instance.refusal().isEmpty())
            ui::showMessage(instance.refusal());
        // The person has been told: a code that says "failed" would make the desktop say it once more.
        return EXIT_SUCCESS;
    }
    // An error that ends the program must not leave an office suite behind that nobody sees.
    ui::setProgramEnd([](int exitCode) {
        office::endSuite();
        std::quick_exit(exitCode);
    });
    const auto window = modMain::Main(QCoreApplication::applicationDirPath());
    instance.onNextStart(*window, [&window] { app::bringToFront(*window); });
    return QApplication::exec();
}
