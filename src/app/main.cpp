#include "app/application.h"
#include "app/start.h"

#include "office/suite.h"
#include "ui/eventGuard.h"

#include <cstdlib>

int main(int argc, char* argv[])
{
    const app::Application application(argc, argv);
    modMain::setApplicationLook();
    // An error that ends the program must not leave an office suite behind that nobody sees.
    ui::setProgramEnd([](int exitCode) {
        office::endSuite();
        std::quick_exit(exitCode);
    });
    const auto window = modMain::Main(QCoreApplication::applicationDirPath());
    return QApplication::exec();
}
