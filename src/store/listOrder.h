#pragma once

struct sqlite3;

namespace store {

/// The name of the order in which lists show texts: the rules of the language, where Ärzte stands beside Arnold. No
/// data file declares it: these rules change with the system's library, and an index must stay right everywhere.
inline constexpr char listCollation[] = "PENWRIGHT_LIST";

/// Registers this order with an open database.
void registerListOrder(sqlite3* database);

} // namespace store
