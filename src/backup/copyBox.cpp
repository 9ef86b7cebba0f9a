#include "copyBox.h"

#include "ui/waitCursor.h"

#include <QApplication>
#include <QEventLoop>
#include <QLocale>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <future>

using namespace Qt::StringLiterals;

namespace backup {

namespace {

constexpr int longWorkMilliseconds = 500;
constexpr int lookMilliseconds = 100;
constexpr int steps = 1000;

struct Copying {
    CopyProgress progress;
    std::future<void> end;
};
Copying* current = nullptr;

QString sizeText(qint64 bytes)
{
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

class CopyBox : public QProgressDialog {
public:
    explicit CopyBox(CopyProgress& progress) : QProgressDialog(QApplication::activeWindow()), m_progress(progress)
    {
        setObjectName(u"copyBox"_s);
        setWindowModality(Qt::ApplicationModal);
        setRange(0, steps);
        setAutoReset(false);
        setAutoClose(false);
        setCancelButtonText(u"Cancel"_s);
        // The box stays until the copying has really stopped.
        disconnect(this, SIGNAL(canceled()), this, SLOT(cancel()));
        connect(this, &QProgressDialog::canceled, this, &CopyBox::stop);
        m_looks.callOnTimeout([this] { look(); });
        m_looks.start(lookMilliseconds);
        look();
        show();
    }

protected:
    void reject() override { stop(); }

private:
    void stop()
    {
        m_progress.isStopped = true;
        m_looks.stop();
        setLabelText(u"Stopping the backup"_s);
        findChild<QPushButton*>()->setEnabled(false);
    }

    void look()
    {
        const qint64 all = std::max<qint64>(m_progress.allBytes, 1);
        setLabelText(u"Backing up\n%1 of %2 files, %3 of %4"_s.arg(m_progress.files)
                         .arg(m_progress.allFiles)
                         .arg(sizeText(m_progress.bytes), sizeText(m_progress.allBytes)));
        setValue(static_cast<int>(std::min<qint64>(steps * m_progress.bytes / all, steps)));
    }

    CopyProgress& m_progress;
    QTimer m_looks;
};

} // namespace

void copyBesideBox(const std::function<void(CopyProgress&)>& copying)
{
    const ui::WaitCursor wait;
    Copying state;
    QEventLoop loop;
    bool isDone = false;
    const auto end = [&] {
        isDone = true;
        loop.quit();
    };
    state.end = std::async(std::launch::async, [&] {
        const auto said = qScopeGuard([&] { QMetaObject::invokeMethod(&loop, end, Qt::QueuedConnection); });
        copying(state.progress);
    });
    current = &state;
    const auto forget = qScopeGuard([] { current = nullptr; });
    QTimer::singleShot(longWorkMilliseconds, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (!isDone) {
        const CopyBox box(state.progress);
        loop.exec();
    }
    // The loop also ends with the whole program's.
    if (!isDone)
        state.progress.isStopped = true;
    state.end.get();
}

void stopCopying()
{
    if (!current)
        return;
    current->progress.isStopped = true;
    current->end.wait();
}

} // namespace backup
