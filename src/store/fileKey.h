#pragma once

#include <QByteArray>

struct sqlite3;

namespace store {

/// Gives a data file that was just opened its key. Deriving a key from the password takes longer than all else that a
/// statement costs, so each file's key is derived once, kept in memory that never goes to the disk, and wiped when the
/// program ends. Any thread may call this. Returns the engine's result; a wrong password shows at the first statement.
int setFileKey(sqlite3* database, const QByteArray& password);

} // namespace store
