#pragma once

#include <QString>

namespace workspace {

/// The number of lines for these characters, halves to the even neighbour. Throws TypeMismatch, DivisionByZero,
/// Overflow.
qint32 calculateLines(const QString& characters, qint32 charactersPerLine);

/// The price of these lines as plain text with up to four decimals; the rate may be written as currency. Throws
/// TypeMismatch, Overflow.
QString calculateTotal(const QString& rate, const QString& lines);

/// A rate and a total as the job panel shows them; each may be given plain or as currency. Throw TypeMismatch,
/// Overflow.
QString formatRate(const QString& rate);
QString formatTotal(const QString& total);

} // namespace workspace
