#include "oneInstance.h"

#include "ui/eventGuard.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QScopeGuard>
#include <QSocketNotifier>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <pwd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace app {

namespace {

constexpr int maximumMilliseconds = 2000;

// The folder itself and not its path, so that a link to it leads to the same name; and nothing of the user, so that
// another user's program is found, too.
QByteArray makeName(const struct stat& folder)
{
    return "penwright-" + QByteArray::number(qulonglong{folder.st_dev}) + '-' +
           QByteArray::number(qulonglong{folder.st_ino});
}

int openSocket()
{
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

// A name that begins with a zero byte stands in no folder, and the system forgets it when its process has ended.
bool call(int (*bindOrConnect)(int, const sockaddr*, socklen_t), int socket, const QByteArray& name)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::ranges::copy(name, address.sun_path + 1);
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1) + static_cast<socklen_t>(name.size());
    return bindOrConnect(socket, reinterpret_cast<const sockaddr*>(&address), length) == 0;
}

// Any user can take any name, so neither side believes a name: the system says who is at the other end.
uid_t findOtherUser(int socket)
{
    ucred other = {};
    socklen_t size = sizeof other;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 ? other.uid : static_cast<uid_t>(-1);
}

QString findUserName(uid_t user)
{
    const passwd* entry = getpwuid(user);
    return entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(user);
}

} // namespace

OneInstance::OneInstance(const QString& programFolder)
{
    struct stat folder = {};
    if (stat(QFile::encodeName(programFolder).constData(), &folder) != 0)
        return;
    const QByteArray name = makeName(folder);
    QDeadlineTimer deadline(maximumMilliseconds);
    // The first may be about to end, and then the folder is free after all.
    while (!takeName(name)) {
        m_isFirst = false;
        if (askFirst(name, static_cast<int>(deadline.remainingTime())))
            return;
        if (deadline.hasExpired()) {
            m_refusal = u"Penwright is already open in this folder but does not answer. Wait until it does, or end it, "
                        "then start it again."_s;
            return;
        }
        QThread::msleep(10);
    }
    m_isFirst = true;
}

OneInstance::~OneInstance()
{
    if (m_socket >= 0)
        close(m_socket);
}

// False only when another process has the name. Where the system gives no sockets, the program opens as if alone.
bool OneInstance::takeName(const QByteArray& name)
{
    m_socket = openSocket();
    if (call(bind, m_socket, name) && listen(m_socket, SOMAXCONN) == 0)
        return true;
    const bool isTaken = errno == EADDRINUSE;
    close(m_socket);
    m_socket = -1;
    return !isTaken;
}

// True when there is no more to ask: the first has come to the front, or belongs to another user.
bool OneInstance::askFirst(const QByteArray& name, int milliseconds)
{
    const int socket = openSocket();
    const auto closing = qScopeGuard([socket] { close(socket); });
    if (!call(connect, socket, name))
        return false;
    if (const uid_t user = findOtherUser(socket); user != geteuid()) {
        m_refusal =
            u"Penwright is already open in this folder, started by %1. Close it there first."_s.arg(findUserName(user));
        return true;
    }
    pollfd answer = {socket, POLLIN, 0};
    char anything;
    return poll(&answer, 1, milliseconds) > 0 && read(socket, &anything, 1) == 1;
}

void OneInstance::onNextStart(QObject& context, std::function<void()> handler)
{
    if (m_socket < 0)
        return;
    auto* notifier = new QSocketNotifier(m_socket, QSocketNotifier::Read, &context);
    ui::onEvent(notifier, &QSocketNotifier::activated, &context, [this, handler = std::move(handler)] {
        const int socket = accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        const auto closing = qScopeGuard([socket] { close(socket); });
        if (findOtherUser(socket) != geteuid())
            return;
        handler();
        const char anything = 1;
        send(socket, &anything, 1, MSG_NOSIGNAL);
    });
}

} // namespace app
