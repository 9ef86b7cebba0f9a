#include "termination.h"

#include "ui/eventGuard.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace app {

namespace {

// A signal may arrive anywhere, also in the middle of an allocation: all it does is to write into this pipe.
int pipeEnds[2] = {-1, -1};

void writeToPipe(int)
{
    const int error = errno;
    const char anything = 1;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &anything, 1);
    errno = error;
}

} // namespace

void onTermination(QObject& context, std::function<void()> handler)
{
    if (pipeEnds[0] < 0 && pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction action = {};
        // Whoever starts the program may have it ignore some, as nohup does.
        if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action = {};
        action.sa_handler = writeToPipe;
        action.sa_flags = SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, &context);
    ui::onEvent(notifier, &QSocketNotifier::activated, &context, [handler = std::move(handler)] {
        char written;
        while (read(pipeEnds[0], &written, 1) > 0) {
        }
        handler();
    });
}

} // namespace app
