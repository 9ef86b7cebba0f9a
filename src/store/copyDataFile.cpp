#include "copyDataFile.h"

#include "connection.h"
#include "storeError.h"

#include <QDir>
#include <QFileInfo>

#include <sqlite3.h>

namespace store {

namespace {

constexpr int allPages = -1;

// Which of the two files the engine complains of.
QString fileAtFault(int code, const QString& source, const QString& copy)
{
    const bool isOfCopy = code == SQLITE_FULL || code == SQLITE_READONLY || code == SQLITE_CANTOPEN;
    return QDir::toNativeSeparators(isOfCopy ? QFileInfo(copy).path() : source);
}

} // namespace

void copyDataFile(const QString& connectionString, const QString& emptyFile)
{
    Connection source(connectionString);
    Connection copy(connectionStringOf(connectionString, emptyFile), Opening::New);
    // Nobody else sees the copy before it is whole, and the caller flushes it.
    copy.runNative("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
    // Says whether the file can be read at all.
    source.runNative("SELECT count(*) FROM sqlite_master");
    sqlite3_backup* backup = sqlite3_backup_init(copy.handle(), "main", source.handle(), "main");
    if (!backup)
        throw copy.lastError();
    sqlite3_backup_step(backup, allPages);
    const int code = sqlite3_backup_finish(backup);
    if (code != SQLITE_OK)
        throw engineError(copy.handle(), fileAtFault(code & 0xff, source.fileName(), emptyFile));
}

} // namespace store
