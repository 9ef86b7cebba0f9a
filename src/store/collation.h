#pragma once

#include <QByteArrayView>

struct sqlite3;

namespace store {

/// The name under which the data files know their text order: without regard to case, for all of Unicode.
inline constexpr char textCollation[] = "PENWRIGHT_TEXT";

/// Compares two texts in UTF-8 in that order: below 0, 0 or above 0.
int compareTexts(QByteArrayView left, QByteArrayView right);

/// Makes the text order known to an open database. Every tool that opens a data file needs it.
void registerTextCollation(sqlite3* database);

} // namespace store
