#include "app/start.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    modMain::setApplicationLook(application);
    const auto window = modMain::Main(QCoreApplication::applicationDirPath());
    return QApplication::exec();
}
