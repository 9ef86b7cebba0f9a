#pragma once

#include "store/connection.h"

#include <QStringList>

#include <sqlite3.h>

/// Runs a statement in the engine's own SQL and gives the first value of every row, joined by "|".
inline QString nativeValues(const store::Connection& connection, const char* statement)
{
    QStringList values;
    const auto collect = [](void* list, int, char** row, char**) {
        static_cast<QStringList*>(list)->append(QString::fromUtf8(row[0]));
        return 0;
    };
    if (sqlite3_exec(connection.handle(), statement, collect, &values, nullptr) != SQLITE_OK)
        values << QString::fromUtf8(sqlite3_errmsg(connection.handle()));
    return values.join(u'|');
}
