#include "commandLine.h"

namespace app {

namespace {

constexpr char usage[] = "Usage: penwright [--help | --version]\n"
                         "\n"
                         "Opens Penwright: clients, rates, jobs and templates for people who type for a living.\n"
                         "\n"
                         "  --help     show this text\n"
                         "  --version  show the version\n";

} // namespace

CommandLineAnswer answerCommandLine(const QStringList& arguments)
{
    if (arguments.isEmpty())
        return {};
    if (arguments == QStringList("--version"))
        return {"Penwright " PENWRIGHT_VERSION "\n", {}, 0};
    if (arguments == QStringList("--help"))
        return {usage, {}, 0};
    return {{}, "penwright: unknown argument " + arguments.constFirst().toLocal8Bit() + '\n' + usage, 2};
}

} // namespace app
