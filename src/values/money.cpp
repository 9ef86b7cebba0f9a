#include "money.h"

#include "digits.h"
#include "numbers.h"
#include "runtimeError.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

using namespace Qt::StringLiterals;

namespace values {

namespace {

// The same below zero, so that the sign of an amount can always change.
constexpr qint64 maximumTenThousandths = std::numeric_limits<qint64>::max();

/// Whether a number becomes one larger when these digits behind it are cut off. Halves go to the even number.
bool isRoundedUp(QStringView cutOff, bool isOdd)
{
    if (cutOff.front() != u'5')
        return cutOff.front() > u'5';
    const bool isHalf = std::ranges::all_of(cutOff.sliced(1), [](QChar digit) { return digit == u'0'; });
    return !isHalf || isOdd;
}

/// Ten thousandths, rounded by the decimal digits: with 15 of them 1.00005 is what was typed and not the binary
/// fraction next to it. Rounding to four decimals needs at least five.
std::optional<qint64> roundByDigits(double value)
{
    const QString text = decimalText(std::abs(value), 5);
    const qsizetype point = text.indexOf(u'.');
    const QString kept = text.first(point) + text.sliced(point + 1, 4);
    quint64 magnitude = kept.toULongLong();
    if (isRoundedUp(QStringView(text).sliced(point + 5), magnitude % 2 == 1))
        ++magnitude;
    if (magnitude > quint64{maximumTenThousandths})
        return std::nullopt;
    return static_cast<qint64>(magnitude) * (value < 0 ? -1 : 1);
}

QString groupDigits(qint64 number)
{
    QString text = QString::number(number);
    for (qsizetype place = text.size() - 3; place > 0; place -= 3)
        text.insert(place, u',');
    return text;
}

QString padWithZeros(qint64 number, int width)
{
    return QString::number(number).rightJustified(width, u'0');
}

QString addSign(const QString& amount, bool isNegative)
{
    return isNegative ? u'(' + amount + u')' : amount;
}

} // namespace

std::optional<Money> Money::tryFromDouble(double value)
{
    // No amount is this large. NaN fails here as well.
    if (!(std::abs(value) < 1e15))
        return std::nullopt;

    Money money;
    const double scaled = value * 10000;
    const double nearest = std::nearbyint(scaled);
    // Nearly every amount is clear of a half and needs no slow look at its digits; a list adds up thousands.
    if (std::abs(scaled) < 1e11 && std::abs(scaled - nearest) < 0.49)
        money.m_tenThousandths = static_cast<qint64>(nearest);
    else if (const std::optional<qint64> tenThousandths = roundByDigits(value))
        money.m_tenThousandths = *tenThousandths;
    else
        return std::nullopt;
    return money;
}

Money Money::fromDouble(double value)
{
    if (const std::optional<Money> money = tryFromDouble(value))
        return *money;
    throw RuntimeError(Fault::Overflow);
}

Money Money::fromText(const QString& text)
{
    return fromDouble(values::toDouble(text));
}

double Money::toDouble() const
{
    return static_cast<double>(m_tenThousandths) / 10000;
}

QString Money::text() const
{
    const qint64 magnitude = std::abs(m_tenThousandths);
    const QString decimals = QString::number(magnitude / 10000) + u'.' + padWithZeros(magnitude % 10000, 4);
    return (m_tenThousandths < 0 ? u"-"_s : QString()) + removeTrailingZeros(decimals);
}

QString Money::currencyText() const
{
    const auto cents = static_cast<qint64>((static_cast<quint64>(std::abs(m_tenThousandths)) + 50) / 100);
    return addSign(u'$' + groupDigits(cents / 100) + u'.' + padWithZeros(cents % 100, 2),
                   m_tenThousandths < 0 && cents != 0);
}

QString Money::rateText() const
{
    const qint64 magnitude = std::abs(m_tenThousandths);
    QString decimals = padWithZeros(magnitude % 10000, 4);
    while (decimals.size() > 2 && decimals.endsWith(u'0'))
        decimals.chop(1);
    return addSign(u'$' + groupDigits(magnitude / 10000) + u'.' + decimals, m_tenThousandths < 0);
}

Money& Money::operator+=(Money other)
{
    const qint64 added = other.m_tenThousandths;
    if (added > 0 ? m_tenThousandths > maximumTenThousandths - added
                  : m_tenThousandths < -maximumTenThousandths - added)
        throw RuntimeError(Fault::Overflow);
    m_tenThousandths += added;
    return *this;
}

QString currencyText(double amount)
{
    const std::optional<Money> money = Money::tryFromDouble(amount);
    return money ? money->currencyText() : numberText(amount);
}

QString rateText(double rate)
{
    const std::optional<Money> money = Money::tryFromDouble(rate);
    return money ? money->rateText() : numberText(rate);
}

} // namespace values
