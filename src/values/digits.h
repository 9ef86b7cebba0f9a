#pragma once

#include <QString>

namespace values {

/// Only 0 to 9, whereas QChar::isDigit() accepts the digits of every script.
constexpr bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// The number with 15 significant digits, but at least this many decimals, and never with an exponent.
QString decimalText(double value, int minimumDecimals);

/// Removes the zeros at the end of the decimals, and the point when no decimals are left.
QString removeTrailingZeros(QString text);

} // namespace values
