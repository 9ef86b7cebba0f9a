// Any text typed into a statement is either translated or refused with an error, and a translation is never two
// statements; the engine itself counts them.
#include "store/dialect.h"

#include "values/runtimeError.h"

#include <sqlite3.h>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static sqlite3* database = [] {
        sqlite3* opened = nullptr;
        sqlite3_open(":memory:", &opened);
        sqlite3_exec(opened, "create table jobacct (id, acctname); create table accttype (id, acctrate)", nullptr,
                     nullptr, nullptr);
        return opened;
    }();
    const QString typed = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const QString& statement : {typed, QStringLiteral("select * from jobacct where id=") + typed,
                                     QStringLiteral("update accttype set acctrate=") + typed}) {
        try {
            const QByteArray text = store::translate(statement).text.toUtf8();
            sqlite3_stmt* prepared = nullptr;
            const char* rest = nullptr;
            if (sqlite3_prepare_v2(database, text.constData(), -1, &prepared, &rest) == SQLITE_OK && *rest != '\0')
                std::abort();
            sqlite3_finalize(prepared);
        } catch (const values::RuntimeError&) {
            continue;
        }
    }
    return 0;
}
