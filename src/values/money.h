#pragma once

#include <QString>

#include <compare>
#include <optional>

namespace values {

/// An amount of money: a fixed-point number with four decimals, halves rounded to even, within 64 bits.
class Money {
public:
    Money() = default;

    /// Empty when the value is too large.
    static std::optional<Money> tryFromDouble(double value);
    /// Throws Overflow.
    static Money fromDouble(double value);
    /// Reads what readNumber() reads; throws TypeMismatch or Overflow.
    static Money fromText(const QString& text);

    double toDouble() const;
    /// Plain decimal text without trailing zeros: 20, 1.2345, -0.5.
    QString text() const;
    /// $1,234.50, a negative amount in parentheses; two decimals, halves rounded away from zero as banks do.
    QString currencyText() const;
    /// The same with as many of the four decimals as the amount has, but at least two, so that nothing is rounded away.
    QString rateText() const;

    /// Throws Overflow.
    Money& operator+=(Money other);
    friend auto operator<=>(Money, Money) = default;

private:
    qint64 m_tenThousandths = 0;
};

/// A stored amount or rate as Money shows it, or as a plain number when it is too large for Money. They never throw, so
/// that views may call them while painting.
QString currencyText(double amount);
QString rateText(double rate);

} // namespace values
