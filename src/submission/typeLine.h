#pragma once

#include <QString>

namespace submission {

/// The number of characters in the longest line.
inline constexpr int maximumTypeLine = 16 + 2 + 15 + 2 + 10 + 2 + 7;

/// One line of the type list in columns of (at most) 16, 15, 10 and 7 characters with two blanks between them. A short
/// field makes its column shorter.
QString PadTypeLine(const QString& client, const QString& type, const QString& unit, double rate);

} // namespace submission
