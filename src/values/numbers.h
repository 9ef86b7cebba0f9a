#pragma once

#include <QString>

#include <optional>

namespace values {

/// Reads a number as people type it: blanks around it, a sign before or behind, a currency sign, digit grouping,
/// parentheses for a negative number, decimals, an exponent. The machine's locale plays no part. Empty when the text is
/// not a number.
std::optional<double> readNumber(const QString& text);

/// Whether readNumber() understands the text.
bool isNumeric(const QString& text);

/// Reads a number as readNumber() does; throws TypeMismatch, or Overflow.
double toDouble(const QString& text);

/// The nearest whole number, halves to the even neighbour.
double roundHalfEven(double value);

/// Rounds to a 16-bit whole number, halves to the even neighbour; throws Overflow.
qint16 toInteger(double value);

/// Rounds to a 32-bit whole number, halves to the even neighbour; throws Overflow.
qint32 toLong(double value);

/// Plain decimal text with at most 15 significant digits: 20, 0.12, -1.5.
QString numberText(double value);

} // namespace values
