#include "longWork.h"

#include "waitCursor.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <memory>
#include <thread>

using namespace Qt::StringLiterals;

namespace ui {

namespace {

/// Work under way: what is known of it on the windows' thread. Work that is done while other work waits is the inner
/// one.
class Running {
public:
    explicit Running(const LongWork& shown) : m_shown(shown), m_outer(std::exchange(s_inner, this))
    {
        m_watcher.setFuture(m_promise.future());
        m_promise.setProgressRange(0, shown.steps);
        m_promise.start();
    }
    ~Running() { s_inner = m_outer; }
    Q_DISABLE_COPY_MOVE(Running)

    static Running* inner() { return s_inner; }
    const LongWork& shown() const { return m_shown; }
    QPromise<void>& promise() { return m_promise; }
    const QFutureWatcher<void>& watcher() const { return m_watcher; }
    bool isFinished() const { return m_watcher.future().isFinished(); }

    void startThread(const std::function<void(QPromise<void>&)>& work)
    {
        m_thread = std::thread([this, &work] {
            try {
                work(m_promise);
            } catch (...) {
                m_promise.setException(std::current_exception());
            }
            m_promise.finish();
        });
    }

    void joinThread()
    {
        if (m_thread.joinable())
            m_thread.join();
    }

    void stop()
    {
        if (m_watcher.isCanceled())
            return;
        m_watcher.cancel();
        if (m_shown.stop)
            m_shown.stop();
    }

private:
    static inline Running* s_inner = nullptr;

    const LongWork& m_shown;
    Running* m_outer;
    QPromise<void> m_promise;
    QFutureWatcher<void> m_watcher;
    std::thread m_thread;
};

class WorkBox : public QProgressDialog {
public:
    explicit WorkBox(Running& work) : QProgressDialog(QApplication::activeWindow()), m_work(work)
    {
        setObjectName(u"workBox"_s);
        setWindowModality(Qt::ApplicationModal);
        setAutoReset(false);
        setAutoClose(false);
        setCancelButtonText(u"Cancel"_s);
        // The dialog's own answer would hide it while the work still stops.
        disconnect(this, &QProgressDialog::canceled, this, nullptr);
        connect(this, &QProgressDialog::canceled, this, &WorkBox::stop);
        const QFutureWatcher<void>& watcher = work.watcher();
        setRange(watcher.progressMinimum(), watcher.progressMaximum());
        setValue(watcher.progressValue());
        setLabelText(watcher.progressText().isEmpty() ? work.shown().text : watcher.progressText());
        connect(&watcher, &QFutureWatcherBase::progressRangeChanged, this, &QProgressDialog::setRange);
        connect(&watcher, &QFutureWatcherBase::progressValueChanged, this, &QProgressDialog::setValue);
        connect(&watcher, &QFutureWatcherBase::progressTextChanged, this, &WorkBox::showText);
        connect(&watcher, &QFutureWatcherBase::finished, this, &QWidget::hide);
        show();
    }

protected:
    void reject() override { stop(); }

private:
    void showText(const QString& text)
    {
        if (!text.isEmpty() && !m_work.watcher().isCanceled())
            setLabelText(text);
    }

    void stop()
    {
        findChild<QPushButton*>()->setEnabled(false);
        if (!m_work.shown().stopping.isEmpty())
            setLabelText(m_work.shown().stopping);
        m_work.stop();
    }

    Running& m_work;
};

void handleEventsUntilDone(Running& work)
{
    std::unique_ptr<WorkBox> box;
    QTimer comes;
    comes.setSingleShot(true);
    comes.callOnTimeout([&] { box = std::make_unique<WorkBox>(work); });
    if (!work.shown().text.isEmpty())
        comes.start(work.shown().boxAfter);
    // One step at a time: a loop of the application's kind would not run any more once the application was told to end.
    QEventLoop loop;
    while (!work.isFinished())
        loop.processEvents(QEventLoop::WaitForMoreEvents |
                           (box ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents));
}

} // namespace

void doBesideBox(const LongWork& shown, const std::function<void(QPromise<void>&)>& work)
{
    const WaitCursor wait;
    Running running(shown);
    running.startThread(work);
    handleEventsUntilDone(running);
    running.joinThread();
    running.promise().future().waitForFinished();
}

int doStepByStep(const LongWork& shown, const std::function<void(int)>& doStep)
{
    Running running(shown);
    std::unique_ptr<WorkBox> box;
    QElapsedTimer since;
    since.start();
    int done = 0;
    while (done < shown.steps && !running.promise().isCanceled()) {
        doStep(done);
        running.promise().setProgressValue(++done);
        // Only between two steps: it must not come over a message that a step shows.
        if (!box && since.hasExpired(shown.boxAfter))
            box = std::make_unique<WorkBox>(running);
        QCoreApplication::processEvents(box ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    }
    running.promise().finish();
    return done;
}

void stopLongWork()
{
    Running* running = Running::inner();
    if (!running)
        return;
    running->stop();
    running->joinThread();
}

} // namespace ui
