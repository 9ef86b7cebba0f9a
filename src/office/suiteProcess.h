#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <functional>

namespace office {

/// A running office suite for this program alone: with its own profile, so that it never touches documents that the
/// user has open, and listening on a pipe with a secret name. However the program ends, a suite without a visible
/// window ends too and leaves no files behind.
class SuiteProcess {
public:
    /// Starts the suite; throws 429 when it is not installed. It takes a moment until it listens.
    SuiteProcess();
    /// Kills the suite.
    ~SuiteProcess();
    SuiteProcess(const SuiteProcess&) = delete;
    SuiteProcess& operator=(const SuiteProcess&) = delete;

    const QString& pipeName() const { return m_pipeName; }
    /// A folder for temporary files that only we can read.
    QString exchangeFolder() const { return m_folder.path(); }
    qint64 processId() const { return m_process.processId(); }
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    /// Whether there is a display on which the suite can show windows.
    static bool hasDisplay();

    /// Calls the handler when the suite ends, as long as the context exists.
    void callOnEnd(QObject* context, const std::function<void()>& handler);
    /// Waits for the suite to end, at most this long.
    void waitForEnd(int milliseconds);
    /// Kills the suite and all processes that it has started.
    void kill();
    /// Leaves the suite to the person who works in its window: from now on it ends when that window closes.
    void giveAway();

private:
    QTemporaryDir m_folder;
    QString m_pipeName;
    QProcess m_process;
};

} // namespace office
