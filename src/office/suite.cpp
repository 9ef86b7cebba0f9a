#include "suite.h"

#include "suiteError.h"
#include "suiteProcess.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <dlfcn.h>

#include <algorithm>
#include <csignal>
#include <memory>
#include <vector>

namespace office {

namespace {

int timeoutLimit = maximumTimeout;

/// How long the end of the program waits for a suite that was asked to end, in milliseconds.
constexpr int closingTimeout = 3'000;

// Beside the program, and needing the suite's own libraries: where those are missing, so is the suite.
ConnectBridge loadBridge()
{
    static void* const library = dlopen("penwright-office.so", RTLD_NOW);
    void* const entry = library ? dlsym(library, connectBridgeName) : nullptr;
    if (!entry)
        throw suiteMissingError();
    return reinterpret_cast<ConnectBridge>(entry);
}

// Until it has ended and its end was noticed.
bool isAlive(pid_t process)
{
    return ::kill(process, 0) == 0;
}

enum class Outcome { Done, Lost, Slow, Abandoned };

/// The one suite of the program: at most one call at a time.
class Suite {
public:
    void run(const Work& work, const ui::LongWork& shown, int timeout);
    void giveAway();
    void end();
    qint64 processId() const { return m_running ? m_running->process.processId() : 0; }

private:
    struct Running {
        SuiteProcess process;
        std::unique_ptr<Bridge> bridge;
    };
    /// A call under way.
    struct Call {
        std::atomic<bool> isGivenUp = false;
        Outcome outcome = Outcome::Done;
    };

    void start();
    Outcome attempt(const Work& work, ui::LongWork shown, int timeout);
    void doWork(ConnectBridge connect, Call& call, const Work& work, QPromise<void>& promise);
    void giveUp(Outcome outcome);

    std::unique_ptr<Running> m_running;
    Call* m_call = nullptr; // the suite is busy
    std::vector<std::unique_ptr<Running>> m_givenAway;
};

// Never destroyed: a suite with a window outlives us.
Suite& suite = *new Suite;

// However the program ends: while the suite's own libraries can still be used.
void Suite::start()
{
    static const bool isEndedWithTheProgram = [] {
        qAddPostRoutine(endSuite);
        return true;
    }();
    Q_UNUSED(isEndedWithTheProgram)
    std::erase_if(m_givenAway, [](const auto& each) { return !each->process.isRunning(); });
    m_running.reset();
    m_running = std::make_unique<Running>();
}

void Suite::doWork(ConnectBridge connect, Call& call, const Work& work, QPromise<void>& promise)
{
    const QString folder = m_running->process.exchangeFolder();
    try {
        if (!m_running->bridge)
            m_running->bridge.reset(connect(m_running->process.pipeName(), call.isGivenUp));
        if (!m_running->bridge)
            throw SuiteGone();
        work(*m_running->bridge, folder, promise);
    } catch (const CannotWrite&) {
        throw writeError(folder);
    }
}

// A call that hangs ends when its suite does.
void Suite::giveUp(Outcome outcome)
{
    m_call->outcome = outcome;
    m_call->isGivenUp = true;
    m_running->process.kill();
}

Outcome Suite::attempt(const Work& work, ui::LongWork shown, int timeout)
{
    const ConnectBridge connect = loadBridge();
    if (!m_running || !m_running->process.isRunning())
        start();
    const auto process = static_cast<pid_t>(m_running->process.processId());
    Call call;
    m_call = &call;
    const auto isIdle = qScopeGuard([this] { m_call = nullptr; });
    QObject context;
    QTimer::singleShot(timeout, &context, [this] { giveUp(Outcome::Slow); });
    m_running->process.callOnEnd(&context, [&call] { call.isGivenUp = true; });
    shown.stop = [this] { giveUp(Outcome::Abandoned); };
    bool isLost = false;
    ui::doBesideBox(shown, [&](QPromise<void>& promise) {
        try {
            doWork(connect, call, work, promise);
        } catch (const SuiteGone&) {
            isLost = true;
        } catch (...) {
            // A suite that is killed takes the files on their way along, and the call complains of those.
            if (!call.isGivenUp && isAlive(process))
                throw;
            isLost = true;
        }
    });
    return isLost && call.outcome == Outcome::Done ? Outcome::Lost : call.outcome;
}

void Suite::run(const Work& work, const ui::LongWork& shown, int timeout)
{
    if (m_call)
        throw values::RuntimeError(values::Fault::Cancelled);
    Outcome outcome = Outcome::Lost;
    for (int tries = 0; tries < 2 && outcome == Outcome::Lost; ++tries) {
        outcome = attempt(work, shown, std::min(timeout, timeoutLimit));
        if (outcome == Outcome::Done)
            return;
        m_running.reset();
    }
    if (outcome == Outcome::Abandoned)
        throw values::RuntimeError(values::Fault::Cancelled);
    throw outcome == Outcome::Slow ? suiteSlowError() : suiteLostError();
}

void Suite::giveAway()
{
    // Without a display there is no window in which a person could work.
    if (!m_running || !SuiteProcess::hasDisplay())
        return;
    m_running->process.giveAway();
    m_running->bridge.reset();
    m_givenAway.push_back(std::move(m_running));
}

void Suite::end()
{
    if (m_call) {
        giveUp(Outcome::Abandoned);
        return;
    }
    if (!m_running)
        return;
    QElapsedTimer since;
    since.start();
    const bool isAsked = m_running->process.isRunning() && m_running->bridge &&
                         attempt([](Bridge& bridge, const QString&, QPromise<void>&) { bridge.endSuite(); }, {},
                                 closingTimeout) == Outcome::Done;
    if (isAsked)
        m_running->process.waitForEnd(static_cast<int>(std::max<qint64>(closingTimeout - since.elapsed(), 0)));
    m_running.reset();
}

} // namespace

void runOnSuite(const Work& work, const ui::LongWork& shown, int timeout)
{
    suite.run(work, shown, timeout);
}

void giveSuiteAway()
{
    suite.giveAway();
}

void endSuite()
{
    suite.end();
}

qint64 suiteProcessId()
{
    return suite.processId();
}

void limitTimeout(int milliseconds)
{
    timeoutLimit = milliseconds;
}

} // namespace office
