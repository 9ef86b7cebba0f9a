#pragma once

#include <QByteArrayView>

struct sqlite3;

namespace store {

/// The name of the order in which the data files compare texts: ignoring case, for all of Unicode.
inline constexpr char textCollation[] = "PENWRIGHT_TEXT";

/// Compares two texts in UTF-8 in that order: below 0, 0 or above 0.
int compareTexts(QByteArrayView left, QByteArrayView right);

/// Registers the text order with an open database. Every tool that opens a data file needs it.
void registerTextCollation(sqlite3* database);

} // namespace store
