#pragma once

#include <QtGlobal>

struct sqlite3;

namespace store {

/// As long as it exists, the engine prepares only what the program's statements need: reading and changing rows of our
/// own tables, count, sum and max. A second safeguard behind translate().
class Permissions {
public:
    explicit Permissions(sqlite3* database);
    ~Permissions();
    Q_DISABLE_COPY(Permissions)

private:
    sqlite3* m_database;
};

} // namespace store
