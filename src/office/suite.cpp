#include "suite.h"

#include "session.h"
#include "suiteProcess.h"

#include "ui/waitCursor.h"

#include <QEventLoop>
#include <QTimer>

#include <exception>
#include <optional>
#include <thread>

namespace office {

using values::RuntimeError;

namespace {

constexpr int cannotCreateObject = 429;

int patience = 60'000;

/// The one suite of the program.
struct Running {
    SuiteProcess process;
    std::unique_ptr<Session> session;
};
std::unique_ptr<Running> running;

enum class Outcome { Done, Lost };

// Does a piece of work on a thread of its own, so that a call that hangs can be cut off. Clocks tick on meanwhile; what
// the user types or clicks waits.
Outcome attempt(const std::function<void(Session&)>& work)
{
    if (!running || !running->process.isRunning())
        running = std::make_unique<Running>();
    std::atomic<bool> abandoned = false;
    std::exception_ptr failure;
    Outcome outcome = Outcome::Done;
    QEventLoop loop;
    std::thread worker([&] {
        try {
            if (!running->session)
                running->session = std::make_unique<Session>(running->process.pipeName(),
                                                             running->process.exchangeFolder(), abandoned);
            work(*running->session);
        } catch (const uno::Exception&) {
            outcome = Outcome::Lost;
        } catch (...) {
            failure = std::current_exception();
        }
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    QTimer::singleShot(patience, &loop, [&] {
        abandoned = true;
        running->process.kill();
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    worker.join();
    if (failure)
        std::rethrow_exception(failure);
    return outcome;
}

} // namespace

RuntimeError suiteMissing()
{
    return {cannotCreateObject, QStringLiteral("can't create the automation object: the office suite is not installed. "
                                               "Install the packages libreoffice-writer and libreoffice-calc.")};
}

RuntimeError suiteLost()
{
    return {cannotCreateObject,
            QStringLiteral(
                "can't create the automation object: the office suite stopped or did not answer, twice. Try again.")};
}

void onSuite(const std::function<void(Session&)>& work)
{
    const ui::WaitCursor wait;
    for (int tries = 0; tries < 2; ++tries) {
        if (attempt(work) == Outcome::Done)
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
    if (running->process.isRunning() && running->session)
        attempt([&](Session& session) { isVisible = session.hasVisibleWindow(); });
    if (isVisible)
        running->process.letGo();
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
