#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace app {

/// One program to one program folder: the first process to ask has the folder until it ends, however it ends. Nothing
/// is read or written in the folder.
class OneInstance {
public:
    /// Takes the folder or, if a program is open there, has that one come to the front; waits two seconds at most.
    explicit OneInstance(const QString& programFolder);
    ~OneInstance();
    Q_DISABLE_COPY_MOVE(OneInstance)

    /// Whether this process has the folder, and may open a window.
    bool isFirst() const { return m_isFirst; }

    /// Why there is nothing to see for a process that is not the first. Empty when the first has come to the front.
    QString refusal() const { return m_refusal; }

    /// Calls the handler, from the event loop, when the same user starts the program again. Until `context` goes, which
    /// must not outlive this object.
    void onNextStart(QObject& context, std::function<void()> handler);

private:
    bool takeName(const QByteArray& name);
    bool askFirst(const QByteArray& name, int milliseconds);

    int m_socket = -1;
    bool m_isFirst = true;
    QString m_refusal;
};

} // namespace app
