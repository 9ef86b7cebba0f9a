#include "app/application.h"
#include "app/bringToFront.h"
#include "app/commandLine.h"
#include "app/findProgramFolder.h"
#include "app/oneInstance.h"
#include "app/start.h"

#include "office/suite.h"
#include "ui/eventGuard.h"
#include "ui/messages.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

void say(const app::CommandLineAnswer& answer)
{
    std::fputs(answer.output.constData(), stdout);
    std::fputs(answer.error.constData(), stderr);
}

int runProgram(const QString& programFolder)
{
    app::OneInstance instance(programFolder);
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
    const auto window = modMain::Main(programFolder);
    instance.onNextStart(*window, [&window] { app::bringToFront(*window); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    // Answered without a display. Its other arguments are for Qt to take first.
    if (argc == 2) {
        if (const app::CommandLineAnswer answer = app::answerCommandLine({QString::fromLocal8Bit(argv[1])});
            !answer.output.isEmpty()) {
            say(answer);
            return answer.exitCode;
        }
    }
    const app::Application application(argc, argv);
    if (const app::CommandLineAnswer answer = app::answerCommandLine(QCoreApplication::arguments().mid(1));
        !answer.isEmpty()) {
        say(answer);
        return answer.exitCode;
    }
    modMain::setApplicationLook();
    QString programFolder;
    ui::guard([&] { programFolder = app::findProgramFolder(QCoreApplication::applicationDirPath()); });
    return runProgram(programFolder);
}
