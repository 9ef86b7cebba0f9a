#include "digits.h"

#include <algorithm>

namespace values {

QString decimalText(double value, int minimumDecimals)
{
    // The exponent is that of the rounded number: 9.9999999999999999 becomes 10.
    const QString scientific = QString::number(value, 'e', 14);
    const int exponent = scientific.sliced(scientific.indexOf(u'e') + 1).toInt();
    return QString::number(value, 'f', std::max(minimumDecimals, 14 - exponent));
}

QString removeTrailingZeros(QString text)
{
    if (!text.contains(u'.'))
        return text;
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

} // namespace values
