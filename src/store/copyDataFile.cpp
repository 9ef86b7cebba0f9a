#include "copyDataFile.h"

#include "connection.h"
#include "storeError.h"

#include <QByteArrayList>
#include <QDir>
#include <QFileInfo>

#include <sqlite3.h>

#include <algorithm>

namespace store {

using namespace Qt::StringLiterals;

namespace {

constexpr int allPages = -1;

// Which of the two files the error is about.
QString findFileAtFault(int code, const QString& source, const QString& copy)
{
    const bool isCopyAtFault = code == SQLITE_FULL || code == SQLITE_READONLY || code == SQLITE_CANTOPEN;
    return QDir::toNativeSeparators(isCopyAtFault ? QFileInfo(copy).path() : source);
}

// Pages that could all be read need not form a data file: to the engine, a file of a single byte is an empty database.
bool isSound(const Connection& file)
{
    QByteArray verdict;
    const auto keepVerdict = [](void* result, int, char** row, char**) {
        *static_cast<QByteArray*>(result) = row[0];
        return SQLITE_OK;
    };
    return sqlite3_exec(file.handle(), "PRAGMA quick_check(1)", keepVerdict, &verdict, nullptr) == SQLITE_OK &&
           verdict == "ok";
}

bool hasTable(const Connection& file, const Table& table)
{
    QByteArrayList columns;
    for (const Column& column : table.columns)
        columns << column.name;
    const QByteArray statement = "SELECT " + columns.join(',') + " FROM " + table.name + " LIMIT 0";
    return sqlite3_exec(file.handle(), statement.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

} // namespace

void copyDataFile(const QString& connectionString, const QString& emptyFile, std::span<const Table> tables)
{
    Connection source(connectionString);
    Connection copy(replaceDataSource(connectionString, emptyFile), Opening::New);
    // No journal and no flushing: nobody else sees the copy before it is complete, and the caller flushes it.
    copy.runNative("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
    // Fails if the file cannot be read at all.
    source.runNative("SELECT count(*) FROM sqlite_master");
    sqlite3_backup* backup = sqlite3_backup_init(copy.handle(), "main", source.handle(), "main");
    if (!backup)
        throw copy.lastError();
    sqlite3_backup_step(backup, allPages);
    const int code = sqlite3_backup_finish(backup);
    if (code != SQLITE_OK)
        throw engineError(copy.handle(), findFileAtFault(code & 0xff, source.fileName(), emptyFile));
    if (!isSound(copy) || !std::ranges::all_of(tables, [&](const Table& table) { return hasTable(copy, table); })) {
        throw storeError(StoreFault::Unspecified, u"The data file '%1' is not whole, so it was not backed up. Put a "
                                                  "good copy of it back, for example from an earlier backup."_s.arg(
                                                      QDir::toNativeSeparators(source.fileName())));
    }
}

} // namespace store
