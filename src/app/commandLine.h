#pragma once

#include <QByteArray>
#include <QStringList>

namespace app {

/// What the program answers on its command line instead of opening a window, and its exit code.
struct CommandLineAnswer {
    QByteArray output;
    QByteArray error;
    int exitCode = 0;

    bool isEmpty() const { return output.isEmpty() && error.isEmpty(); }
};

/// The answer to these arguments, without the program's name. Empty when there are none.
CommandLineAnswer answerCommandLine(const QStringList& arguments);

} // namespace app
