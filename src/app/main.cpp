#include "app/start.h"

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    modMain::setApplicationLook();
    const auto window = modMain::Main(QCoreApplication::applicationDirPath());
    return QApplication::exec();
}
