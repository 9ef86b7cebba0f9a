#include "eventGuard.h"

#include "messages.h"
#include "programEnd.h"

#include <QScopedValueRollback>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

std::function<void(int)> programEnd;
bool isEnding = false;

} // namespace

void endProgram(int exitCode)
{
    Q_EMIT ProgramEnd::instance().coming();
    if (programEnd)
        programEnd(exitCode);
    else
        std::quick_exit(exitCode);
}

// What went wrong while painting goes wrong again as often as the window under the box is painted: one box is enough.
void endOnError(const values::RuntimeError& error)
{
    if (isEnding)
        return;
    const QScopedValueRollback ending(isEnding, true);
    showMessage(u"Run-time error '%1':\n\n"_s.arg(error.number()) + error.description());
    // Forms and loops are left as they are: after such an error no more of the program's own code may run.
    endProgram(EXIT_FAILURE);
}

void endOnError(const std::exception& error)
{
    constexpr int internalError = 51;
    endOnError(values::RuntimeError(internalError, u"Internal error: %1"_s.arg(QString::fromUtf8(error.what()))));
}

void setProgramEnd(std::function<void(int)> end)
{
    programEnd = std::move(end);
}

} // namespace ui
