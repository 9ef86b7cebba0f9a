#include "digits.h"

#include <algorithm>

namespace values {

QString decimalText(double value, int fewestDecimals)
{
    // The exponent of the rounded number: 9.9999999999999999 has two digits before the point.
    const QString scientific = QString::number(value, 'e', 14);
    const int exponent = scientific.sliced(scientific.indexOf(u'e') + 1).toInt();
    return QString::number(value, 'f', std::max(fewestDecimals, 14 - exponent));
}

QString withoutTrailingZeros(QString text)
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
