#pragma once

#include <QString>

#include <compare>

namespace values {

/// An amount of money: a fixed-point number with four decimals, halves rounded to even, within 64 bits.
class Money {
public:
    Money() = default;

    /// Throws Overflow.
    static Money fromDouble(double value);
    /// Reads what readNumber() reads; throws TypeMismatch or Overflow.
    static Money fromText(const QString& text);

    double toDouble() const;
    /// Plain decimal text without trailing zeros: 20, 1.2345, -0.5.
    QString text() const;
    /// $1,234.50, a negative amount in parentheses; two decimals.
    QString currencyText() const;

    /// Throws Overflow.
    Money& operator+=(Money other);
    friend auto operator<=>(Money, Money) = default;

private:
    qint64 m_tenThousandths = 0;
};

} // namespace values
