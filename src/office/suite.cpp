#include "suite.h"

#include "suiteError.h"
#include "suiteProcess.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <dlfcn.h>

#include <algorithm>
#include <csignal>
#include <future>
#include <memory>
#include <optional>
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

/// A suite with the connection to it.
class RunningSuite {
public:
    RunningSuite()
    {
        process.callOnEnd(&m_context, [this] { isGivenUp = true; });
    }
    ~RunningSuite() { giveUp(); }
    Q_DISABLE_COPY_MOVE(RunningSuite)

    /// On the thread of the work. Waits for what was begun ahead.
    void doWork(ConnectBridge connect, const Work& work, QPromise<void>& promise);
    /// Does work on a thread of its own at once; what it throws is lost.
    void doAhead(const Work& work);
    bool isPrepared() const
    {
        return !m_ahead.valid() || m_ahead.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    }
    void giveUp()
    {
        isGivenUp = true;
        process.kill();
    }

    SuiteProcess process;
    std::unique_ptr<Bridge> bridge;
    std::atomic<bool> isGivenUp = false;

private:
    void doNow(ConnectBridge connect, const Work& work, QPromise<void>& promise);

    QObject m_context;
    std::future<void> m_ahead;
};

void RunningSuite::doNow(ConnectBridge connect, const Work& work, QPromise<void>& promise)
{
    const QString folder = process.exchangeFolder();
    try {
        if (!bridge)
            bridge.reset(connect(process.pipeName(), isGivenUp));
        if (!bridge)
            throw SuiteGone();
        work(*bridge, folder, promise);
    } catch (const CannotWrite&) {
        throw writeError(folder);
    }
}

void RunningSuite::doWork(ConnectBridge connect, const Work& work, QPromise<void>& promise)
{
    if (m_ahead.valid())
        m_ahead.wait();
    doNow(connect, work, promise);
}

void RunningSuite::doAhead(const Work& work)
{
    m_ahead = std::async(std::launch::async, [this, work] {
        QPromise<void> nobody;
        doNow(loadBridge(), work, nobody);
    });
}

/// The one suite of the program: at most one call at a time.
class Suite {
public:
    void run(const Work& work, const ui::LongWork& shown, int timeout);
    void prepare(const Work& work);
    void giveAway();
    void end();
    qint64 processId() const { return m_running ? m_running->process.processId() : 0; }

private:
    void start();
    Outcome attempt(const Work& work, ui::LongWork shown, int timeout);
    void giveUp(Outcome outcome);

    std::unique_ptr<RunningSuite> m_running;
    std::optional<Outcome> m_call; // how the call under way ends; none: the suite is idle
    std::vector<std::unique_ptr<RunningSuite>> m_givenAway;
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
    m_running = std::make_unique<RunningSuite>();
}

// A call that hangs ends when its suite does.
void Suite::giveUp(Outcome outcome)
{
    m_call = outcome;
    m_running->giveUp();
}

Outcome Suite::attempt(const Work& work, ui::LongWork shown, int timeout)
{
    const ConnectBridge connect = loadBridge();
    if (!m_running || !m_running->process.isRunning())
        start();
    const auto process = static_cast<pid_t>(m_running->process.processId());
    m_call = Outcome::Done;
    const auto isIdle = qScopeGuard([this] { m_call.reset(); });
    QObject context;
    QTimer::singleShot(timeout, &context, [this] { giveUp(Outcome::Slow); });
    shown.stop = [this] { giveUp(Outcome::Abandoned); };
    bool isLost = false;
    ui::doBesideBox(shown, [&](QPromise<void>& promise) {
        try {
            m_running->doWork(connect, work, promise);
        } catch (const SuiteGone&) {
            isLost = true;
        } catch (...) {
            // A suite that is killed takes the files on their way along, and the call complains of those.
            if (!m_running->isGivenUp && isAlive(process))
                throw;
            isLost = true;
        }
    });
    return isLost && m_call == Outcome::Done ? Outcome::Lost : *m_call;
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

void Suite::prepare(const Work& work)
{
    if (m_call || (m_running && m_running->process.isRunning()))
        return;
    try {
        start();
        m_running->doAhead(work);
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): nobody has asked for anything yet.
        // The next call meets the same error and shows it.
    }
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
    const bool isAsked = m_running->isPrepared() && m_running->process.isRunning() && m_running->bridge &&
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

void prepareSuite(const Work& work)
{
    suite.prepare(work);
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
