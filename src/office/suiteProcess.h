#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <functional>

namespace office {

/// A running office suite of our own: it has a profile of its own, so that it never meddles with documents the user has
/// open, and listens on a pipe with a name that nobody else knows. However the program ends, a suite that nobody sees
/// ends with it and leaves nothing behind.
class SuiteProcess {
public:
    /// Starts it; throws 429 with the package to install when it is not there. It takes a moment until it listens.
    SuiteProcess();
    /// Ends it at once.
    ~SuiteProcess();
    SuiteProcess(const SuiteProcess&) = delete;
    SuiteProcess& operator=(const SuiteProcess&) = delete;

    const QString& pipeName() const { return m_pipeName; }
    /// A folder for files on their way, which only we can read.
    QString exchangeFolder() const { return m_folder.path(); }
    qint64 processId() const { return m_process.processId(); }
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    /// Whether it can show a window at all.
    static bool hasDisplay();

    /// Tells when it ends by itself, as long as the context lives.
    void onEnd(QObject* context, const std::function<void()>& handler);
    /// Gives it time to end by itself, in milliseconds.
    void waitForEnd(int milliseconds);
    /// Ends it at once, with all processes that it has started.
    void kill();
    /// From now on it belongs to the person who works in its window, and ends when that closes.
    void giveAway();

private:
    QTemporaryDir m_folder;
    QString m_pipeName;
    QProcess m_process;
};

} // namespace office
