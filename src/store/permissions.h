#pragma once

#include <QtGlobal>

struct sqlite3;

namespace store {

/// While it lives, the engine prepares only what the program's statements need: reading and changing rows of our own
/// tables, counting, summing, the highest value. It is the second door behind translate().
class Permissions {
public:
    explicit Permissions(sqlite3* database);
    ~Permissions();
    Q_DISABLE_COPY(Permissions)

private:
    sqlite3* m_database;
};

} // namespace store
