#pragma once

#include <QDateTime>
#include <QString>

#include <variant>

namespace store {

/// One value from a data file: null, whole number, number, text, date or yes/no.
class Field {
public:
    using Value = std::variant<std::monostate, qint64, double, QString, QDateTime, bool>;

    Field() = default;
    explicit Field(Value value);

    bool isNull() const { return std::holds_alternative<std::monostate>(m_value); }
    const Value& value() const { return m_value; }

    /// The value as text: dates as m/d/yyyy, numbers plain, yes/no as True or False. Throws InvalidUseOfNull.
    QString toText() const;
    /// Throws InvalidUseOfNull, or TypeMismatch for a date or a text that is not a number.
    double toDouble() const;
    /// As a 32-bit whole number; throws as toDouble() does, and Overflow.
    qint32 toLong() const;
    /// As a 16-bit whole number; throws as toDouble() does, and Overflow.
    qint16 toInteger() const;
    /// Throws InvalidUseOfNull, or TypeMismatch for a value that is not a date.
    QDateTime toDate() const;

private:
    Value m_value;
};

} // namespace store
