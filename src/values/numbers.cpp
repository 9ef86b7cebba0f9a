#include "numbers.h"

#include "digits.h"
#include "runtimeError.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace values {

namespace {

bool isSign(QChar c)
{
    return c == u'+' || c == u'-';
}

/// Moves the digits at the front of rest to the end of plain, without the commas that group them, and counts them.
int takeDigits(QStringView& rest, QString& plain, bool areGrouped)
{
    int count = 0;
    for (; !rest.isEmpty(); rest = rest.sliced(1)) {
        if (isDigit(rest.front())) {
            plain += rest.front();
            ++count;
        } else if (!areGrouped || count == 0 || rest.front() != u',') {
            break;
        }
    }
    return count;
}

/// Reads digits, decimals and exponent; a number that is too large becomes infinite.
std::optional<double> readMagnitude(QStringView rest)
{
    QString plain;
    int digits = takeDigits(rest, plain, true);
    if (rest.startsWith(u'.')) {
        plain += u'.';
        rest = rest.sliced(1);
        digits += takeDigits(rest, plain, false);
    }
    if (digits == 0)
        return {};

    if (rest.startsWith(u'e', Qt::CaseInsensitive)) {
        plain += u'e';
        rest = rest.sliced(1);
        if (!rest.isEmpty() && isSign(rest.front())) {
            plain += rest.front();
            rest = rest.sliced(1);
        }
        if (takeDigits(rest, plain, false) == 0)
            return {};
    }
    if (!rest.isEmpty())
        return {};
    // Only the size can still be wrong: a number too large gives infinity, one too small gives zero.
    return plain.toDouble();
}

/// Reads what readNumber() reads, but a number that is too large becomes infinite.
std::optional<double> readUnbounded(const QString& text)
{
    QStringView rest = QStringView(text).trimmed();
    bool hasSign = false;
    bool hasCurrency = false;
    bool isNegative = false;
    if (rest.startsWith(u'(') && rest.endsWith(u')')) {
        hasSign = isNegative = true;
        rest = rest.sliced(1).chopped(1).trimmed();
    } else if (!rest.isEmpty() && isSign(rest.back())) {
        hasSign = true;
        isNegative = rest.back() == u'-';
        rest = rest.chopped(1).trimmed();
    }
    while (!rest.isEmpty()) {
        if (!hasSign && isSign(rest.front())) {
            hasSign = true;
            isNegative = rest.front() == u'-';
        } else if (!hasCurrency && rest.front() == u'$') {
            hasCurrency = true;
        } else {
            break;
        }
        rest = rest.sliced(1).trimmed();
    }
    const std::optional<double> magnitude = readMagnitude(rest);
    return magnitude && isNegative ? -*magnitude : magnitude;
}

template <typename Whole>
Whole toWhole(double value)
{
    const double rounded = roundHalfEven(value);
    // Negated, so that NaN is refused too.
    if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max()))
        throw RuntimeError(Fault::Overflow);
    return static_cast<Whole>(rounded);
}

} // namespace

std::optional<double> readNumber(const QString& text)
{
    const std::optional<double> number = readUnbounded(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

bool isNumeric(const QString& text)
{
    return readNumber(text).has_value();
}

double toDouble(const QString& text)
{
    const std::optional<double> number = readUnbounded(text);
    if (!number)
        throw RuntimeError(Fault::TypeMismatch);
    if (!std::isfinite(*number))
        throw RuntimeError(Fault::Overflow);
    return *number;
}

double roundHalfEven(double value)
{
    return std::nearbyint(value);
}

qint16 toInteger(double value)
{
    return toWhole<qint16>(value);
}

qint32 toLong(double value)
{
    return toWhole<qint32>(value);
}

QString numberText(double value)
{
    if (value == 0.0)
        return u"0"_s; // not "-0"
    const double magnitude = std::abs(value);
    if (magnitude < 1e-5 || magnitude > 1e15)
        return QString::number(value, 'G', 15);

    // The format 'G' would show small numbers with an exponent.
    return removeTrailingZeros(decimalText(value, 0));
}

} // namespace values
