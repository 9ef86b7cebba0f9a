#pragma once

struct sqlite3;

namespace store {

/// The name under which the data files know their text order: without regard to case, for all of Unicode.
inline constexpr char textCollation[] = "PENWRIGHT_TEXT";

/// Makes the text order known to an open database. Every tool that opens a data file needs it.
void registerTextCollation(sqlite3* database);

} // namespace store
