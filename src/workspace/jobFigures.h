#pragma once

#include <QString>

namespace workspace {

/// The lines that so many characters make, halves to the even neighbour. Throws TypeMismatch, DivisionByZero, Overflow.
qint32 linesOf(const QString& characters, qint32 charactersPerLine);

/// What so many lines cost, to four decimals as plain text; the rate may stand there as currency. Throws TypeMismatch,
/// Overflow.
QString totalOf(const QString& rate, const QString& lines);

/// A rate and a total, plain or as currency, as the job panel shows them. Throw TypeMismatch, Overflow.
QString shownRate(const QString& rate);
QString shownTotal(const QString& total);

} // namespace workspace
