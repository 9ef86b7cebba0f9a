#include "longWork.h"

#include "waitCursor.h"

#include <QApplication>
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

class WorkBox : public QProgressDialog {
public:
    WorkBox(const LongWork& shown, QFutureWatcher<void>& watcher)
        : QProgressDialog(shown.text, u"Cancel"_s, 0, shown.steps, QApplication::activeWindow())
        , m_watcher(watcher)
        , m_stop(shown.stop)
    {
        setObjectName(u"workBox"_s);
        setWindowModality(Qt::ApplicationModal);
        setAutoReset(false);
        setAutoClose(false);
        disconnect(this, SIGNAL(canceled()), this, SLOT(cancel()));
        connect(this, &QProgressDialog::canceled, this, &WorkBox::stop);
        connect(&watcher, &QFutureWatcherBase::progressValueChanged, this, &QProgressDialog::setValue);
        connect(&watcher, &QFutureWatcherBase::finished, this, &QWidget::hide);
        setValue(watcher.progressValue());
        show();
    }

protected:
    void reject() override { stop(); }

private:
    void stop()
    {
        if (m_watcher.isCanceled())
            return;
        findChild<QPushButton*>()->setEnabled(false);
        m_watcher.cancel();
        if (m_stop)
            m_stop();
    }

    QFutureWatcher<void>& m_watcher;
    std::function<void()> m_stop;
};

void handleEventsUntilDone(const LongWork& shown, QFutureWatcher<void>& watcher)
{
    std::unique_ptr<WorkBox> box;
    QTimer comes;
    comes.setSingleShot(true);
    comes.callOnTimeout([&] { box = std::make_unique<WorkBox>(shown, watcher); });
    if (!shown.text.isEmpty())
        comes.start(shown.boxAfter);
    // One step at a time: a loop of the application's kind would not run any more once the application was told to end.
    QEventLoop loop;
    while (!watcher.future().isFinished())
        loop.processEvents(QEventLoop::WaitForMoreEvents |
                           (box ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents));
}

} // namespace

bool doBesideBox(const LongWork& shown, const std::function<void(QPromise<void>&)>& work)
{
    const WaitCursor wait;
    QPromise<void> promise;
    QFutureWatcher<void> watcher;
    watcher.setFuture(promise.future());
    promise.setProgressRange(0, shown.steps);
    promise.start();
    std::thread worker([&] {
        try {
            work(promise);
        } catch (...) {
            promise.setException(std::current_exception());
        }
        promise.finish();
    });
    handleEventsUntilDone(shown, watcher);
    worker.join();
    watcher.waitForFinished();
    return !watcher.isCanceled();
}

} // namespace ui
