#include "connection.h"

#include "collation.h"
#include "listOrder.h"
#include "storeError.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace store {

namespace {

// The size of a page with the settings below; the smallest data file has several.
constexpr int pageBytes = 1024;

constexpr int busyWaitMilliseconds = 2000;

// A file made with either version of the library opens with the other; the lower count of rounds makes opening a matter
// of a millisecond, which every user action pays.
constexpr char cipherSettings[] = "PRAGMA cipher_compatibility = 3; PRAGMA kdf_iter = 4000";

const QString dataSource = u"Data Source"_s;

// The values stand between their names and the next of the provider's own settings, so a folder may hold a semicolon.
QString settingOf(const QString& connectionString, const QString& name)
{
    const qsizetype start = connectionString.indexOf(name + u'=');
    if (start < 0)
        return QString();
    const qsizetype from = start + name.size() + 1;
    const qsizetype end = connectionString.indexOf(u";Jet OLEDB:"_s, from);
    return connectionString.mid(from, end < 0 ? -1 : end - from);
}

// Only the separators that the program puts behind its folder are turned into the platform's own: a folder may have a
// backslash in its name.
QString fileNameOf(const QString& connectionString)
{
    static const QRegularExpression ownSeparators(uR"(\\(data)\\([^\\/]+)$)"_s);
    return QDir::cleanPath(settingOf(connectionString, dataSource).replace(ownSeparators, u"/\\1/\\2"_s));
}

} // namespace

void Connection::Close::operator()(sqlite3* database) const
{
    sqlite3_close(database);
}

Connection::Connection(const QString& connectionString, Opening opening) : m_fileName(fileNameOf(connectionString))
{
    open(opening);
    registerTextCollation(handle());
    registerListOrder(handle());
    applyKey(settingOf(connectionString, u"Jet OLEDB:Database Password"_s));
}

void Connection::open(Opening opening)
{
    const QFileInfo file(m_fileName);
    if (!file.isFile()) {
        throw storeError(StoreFault::Unspecified,
                         u"Could not find file '%1'. Put it back, for example from a backup."_s.arg(
                             QDir::toNativeSeparators(m_fileName)));
    }
    // The engine takes an empty file for a new one and would fill it.
    if (opening == Opening::Existing && file.size() == 0) {
        throw storeError(StoreFault::Unspecified,
                         u"Unrecognized database format '%1'. The file is empty. Put a good copy of it "
                         "back, for example from a backup."_s.arg(QDir::toNativeSeparators(m_fileName)));
    }
    // Of what is smaller than a page, the engine would read no table and no error.
    if (opening == Opening::Existing && file.size() < pageBytes)
        throw damagedFile(QDir::toNativeSeparators(m_fileName));
    sqlite3* database = nullptr;
    const int code = sqlite3_open_v2(m_fileName.toUtf8().constData(), &database,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    m_database.reset(database);
    if (code != SQLITE_OK)
        throw lastError();
    sqlite3_busy_timeout(database, busyWaitMilliseconds);
}

void Connection::applyKey(const QString& password)
{
    const QByteArray key = password.toUtf8();
    if (sqlite3_key(handle(), key.constData(), static_cast<int>(key.size())) != SQLITE_OK)
        throw lastError();
    runNative(cipherSettings);
}

void Connection::runNative(const QByteArray& statement)
{
    if (sqlite3_exec(handle(), statement.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw lastError();
}

values::RuntimeError Connection::lastError() const
{
    return engineError(handle(), QDir::toNativeSeparators(m_fileName));
}

QString connectionStringOf(const QString& connectionString, const QString& fileName)
{
    return QString(connectionString)
        .replace(dataSource + u'=' + settingOf(connectionString, dataSource), dataSource + u'=' + fileName);
}

} // namespace store
