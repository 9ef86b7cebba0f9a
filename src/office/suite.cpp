#include "suite.h"

#include "suiteError.h"
#include "suiteProcess.h"

#include "ui/waitCursor.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <dlfcn.h>

#include <exception>
#include <memory>
#include <thread>

namespace office {

namespace {

using Work = std::function<void(Bridge&, const QString&)>;

int patience = 60'000;

/// Closing the program waits less: a suite that hangs has no window that a person works in.
constexpr int closingPatience = 3'000;

/// The one suite of the program.
struct Running {
    SuiteProcess process;
    std::unique_ptr<Bridge> bridge;
};
// Never destroyed: a suite with a window outlives us.
std::unique_ptr<Running>& running = *new std::unique_ptr<Running>;

// However the program ends: while the suite's own libraries can still be used.
void start()
{
    static const bool isEndedWithTheProgram = [] {
        qAddPostRoutine(endSuite);
        return true;
    }();
    Q_UNUSED(isEndedWithTheProgram)
    running.reset();
    running = std::make_unique<Running>();
}

// Beside the program, and needing the suite's own libraries: where those are missing, so is the suite.
ConnectBridge loadBridge()
{
    static void* const library = dlopen("penwright-office.so", RTLD_NOW);
    void* const entry = library ? dlsym(library, connectBridgeName) : nullptr;
    if (!entry)
        throw suiteMissing();
    return reinterpret_cast<ConnectBridge>(entry);
}

enum class Outcome { Done, Lost };

Outcome doWork(ConnectBridge connect, const std::atomic<bool>& abandoned, const Work& work)
{
    try {
        if (!running->bridge)
            running->bridge.reset(connect(running->process.pipeName(), abandoned));
        if (!running->bridge)
            return Outcome::Lost;
        work(*running->bridge, running->process.exchangeFolder());
        return Outcome::Done;
    } catch (const SuiteGone&) {
        return Outcome::Lost;
    }
}

// Clocks tick on while the suite works. What the user types or clicks waits, unless it is for a box that can stop the
// work.
void handleEventsUntil(const std::atomic<bool>& isDone, QEventLoop& loop, const Progress* progress)
{
    while (!isDone) {
        const bool letsInput = progress && progress->isVisible;
        loop.processEvents(QEventLoop::WaitForMoreEvents |
                           (letsInput ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents));
    }
}

// On a thread of its own, so that a call that hangs can be cut off.
Outcome attempt(const Work& work, int milliseconds, const Progress* progress = nullptr)
{
    const ConnectBridge connect = loadBridge();
    if (!running || !running->process.isRunning())
        start();
    std::atomic<bool> abandoned = false;
    std::exception_ptr failure;
    Outcome outcome = Outcome::Lost;
    std::atomic<bool> isDone = false;
    QEventLoop loop;
    std::thread worker([&] {
        try {
            outcome = doWork(connect, abandoned, work);
        } catch (...) {
            failure = std::current_exception();
        }
        isDone = true;
        loop.wakeUp();
    });
    const auto giveUp = [&] {
        abandoned = true;
        running->process.kill();
    };
    QTimer::singleShot(milliseconds, &loop, giveUp);
    running->process.onEnd(&loop, giveUp);
    handleEventsUntil(isDone, loop, progress);
    worker.join();
    if (failure)
        std::rethrow_exception(failure);
    return outcome;
}

} // namespace

void onSuite(const Work& work, const Progress* progress)
{
    const ui::WaitCursor wait;
    for (int tries = 0; tries < 2; ++tries) {
        if (attempt(work, patience, progress) == Outcome::Done)
            return;
        running.reset();
    }
    throw suiteLost();
}

void endSuite()
{
    if (!running)
        return;
    bool isVisible = false;
    if (running->process.isRunning() && running->bridge)
        attempt(
            [&](Bridge& bridge, const QString&) {
                isVisible = bridge.hasVisibleWindow();
                if (!isVisible)
                    bridge.endSuite();
            },
            closingPatience);
    if (isVisible)
        return;
    running->process.letEnd();
    running.reset();
}

qint64 suiteProcessId()
{
    return running ? running->process.processId() : 0;
}

void setPatience(int milliseconds)
{
    patience = milliseconds;
}

} // namespace office
