#include "bareStore.h"

#include "store/collation.h"

#include <sqlite3.h>

#include <cstdlib>
#include <cstring>

namespace {

void check(bool isGood, sqlite3* database)
{
    if (isGood)
        return;
    std::fprintf(stderr, "bare call failed: %s\n", sqlite3_errmsg(database));
    std::exit(1);
}

} // namespace

sqlite3* openBare(const QString& programFolder)
{
    sqlite3* database = nullptr;
    const QByteArray file = (programFolder + QStringLiteral("/data/dB.mdb")).toUtf8();
    check(sqlite3_open_v2(file.constData(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) ==
              SQLITE_OK,
          database);
    constexpr char key[] = "keRV3047BoQ";
    sqlite3_key(database, key, static_cast<int>(std::strlen(key)));
    sqlite3_exec(database, "PRAGMA cipher_compatibility = 3; PRAGMA kdf_iter = 4000", nullptr, nullptr, nullptr);
    sqlite3_busy_timeout(database, 2000);
    store::registerTextCollation(database);
    return database;
}

void closeBare(sqlite3* database)
{
    sqlite3_close(database);
}

int runBare(sqlite3* database, const char* statement)
{
    sqlite3_stmt* prepared = nullptr;
    check(sqlite3_prepare_v2(database, statement, -1, &prepared, nullptr) == SQLITE_OK, database);
    const int columns = sqlite3_column_count(prepared);
    std::size_t bytes = 0;
    int rows = 0;
    int code = sqlite3_step(prepared);
    for (; code == SQLITE_ROW; code = sqlite3_step(prepared), ++rows) {
        for (int i = 0; i < columns; ++i) {
            switch (sqlite3_column_type(prepared, i)) {
            case SQLITE_INTEGER:
                bytes += static_cast<std::size_t>(sqlite3_column_int64(prepared, i));
                break;
            case SQLITE_FLOAT:
                bytes += sqlite3_column_double(prepared, i) > 0;
                break;
            case SQLITE_NULL:
                break;
            default:
                sqlite3_column_text(prepared, i);
                bytes += static_cast<std::size_t>(sqlite3_column_bytes(prepared, i));
            }
        }
    }
    check(code == SQLITE_DONE, database);
    sqlite3_finalize(prepared);
    return bytes > 0 ? rows : -1; // what was read is used, or the compiler would leave the reading out
}
