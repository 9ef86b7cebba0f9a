#pragma once

struct sqlite3;

namespace store {

/// The name of the order in which lists show texts: the rules of the language, where Ärzte stands beside Arnold. No
/// data file knows it: an index must stay true on every machine, and these rules change with the system's library.
inline constexpr char listCollation[] = "PENWRIGHT_LIST";

/// Makes the order known to an open database.
void registerListOrder(sqlite3* database);

} // namespace store
