#include "connection.h"

#include "collation.h"
#include "fileKey.h"
#include "listOrder.h"
#include "storeError.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace store {

namespace {

// The size of a page with the settings below; every data file has several pages.
constexpr int pageBytes = 1024;

constexpr int busyWaitMilliseconds = 2000;

// Version 3 settings, so that a file made with either version of the library opens with the other. The low number of
// rounds (see fileKey.cpp) lets a file open in a few milliseconds the first time. Version 4 would also tell the
// standard error output of every damaged file; version 3 does not know its log.
constexpr char cipherSettings[] =
    "PRAGMA cipher_log_level = NONE; PRAGMA cipher_compatibility = 3; PRAGMA kdf_iter = 4000";

const QString dataSource = u"Data Source"_s;

// A value ends only where the next setting of the provider begins, so that a folder may have a semicolon in its name.
QString readSetting(const QString& connectionString, const QString& name)
{
    const qsizetype start = connectionString.indexOf(name + u'=');
    if (start < 0)
        return QString();
    const qsizetype from = start + name.size() + 1;
    const qsizetype end = connectionString.indexOf(u";Jet OLEDB:"_s, from);
    return connectionString.mid(from, end < 0 ? -1 : end - from);
}

// Replaces only the two backslashes that the program itself adds after its folder, because a folder may have others in
// its name.
QString readFileName(const QString& connectionString)
{
    static const QRegularExpression ownSeparators(uR"(\\(data)\\([^\\/]+)$)"_s);
    return QDir::cleanPath(readSetting(connectionString, dataSource).replace(ownSeparators, u"/\\1/\\2"_s));
}

} // namespace

bool isTooSmall(const QString& fileName)
{
    const QFileInfo file(fileName);
    return file.isFile() && file.size() < pageBytes;
}

void Connection::Close::operator()(sqlite3* database) const
{
    sqlite3_close(database);
}

Connection::Connection(const QString& connectionString, Opening opening) : m_fileName(readFileName(connectionString))
{
    open(opening);
    registerTextCollation(handle());
    registerListOrder(handle());
    applyKey(readSetting(connectionString, u"Jet OLEDB:Database Password"_s));
}

void Connection::open(Opening opening)
{
    const QFileInfo file(m_fileName);
    if (!file.isFile()) {
        throw storeError(StoreFault::Unspecified,
                         u"Could not find file '%1'. Put it back, for example from a backup."_s.arg(
                             QDir::toNativeSeparators(m_fileName)));
    }
    // The engine would take an empty file for a new database and fill it.
    if (opening == Opening::Existing && file.size() == 0) {
        throw storeError(StoreFault::Unspecified,
                         u"Unrecognized database format '%1'. The file is empty. Put a good copy of it "
                         "back, for example from a backup."_s.arg(QDir::toNativeSeparators(m_fileName)));
    }
    if (opening == Opening::Existing && isTooSmall(m_fileName))
        throw damagedFileError(QDir::toNativeSeparators(m_fileName));
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
    if (setFileKey(handle(), password.toUtf8()) != SQLITE_OK)
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

QString replaceDataSource(const QString& connectionString, const QString& fileName)
{
    return QString(connectionString)
        .replace(dataSource + u'=' + readSetting(connectionString, dataSource), dataSource + u'=' + fileName);
}

} // namespace store
