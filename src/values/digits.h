#pragma once

#include <QString>

namespace values {

/// One of 0 to 9, whereas QChar::isDigit() takes the digits of every script.
constexpr bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// The number to 15 significant digits, but at least with so many decimals; never with an exponent.
QString decimalText(double value, int fewestDecimals);

/// Cuts the zeros off the end of the decimals, and the point if no decimals are left.
QString withoutTrailingZeros(QString text);

} // namespace values
