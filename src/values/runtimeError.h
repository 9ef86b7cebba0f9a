// values: dates, money and numbers as text and back, and the one error that all rooms throw.
#pragma once

#include <QString>

#include <exception>

namespace values {

/// The run-time errors that Penwright raises itself, with the numbers that its messages show.
enum class Fault {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    DiskFull = 61,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    InvalidUseOfNull = 94,
    InvalidArrayIndex = 381,
    ReadOnlyText = 383,
    NoCurrentRecord = 3021,
    Cancelled = 32755,
};

/// The one exception of the program: a number, and a description that tells the user what is wrong.
class RuntimeError : public std::exception {
public:
    RuntimeError(int number, const QString& description);
    /// The fault with its standard description.
    explicit RuntimeError(Fault fault);

    int number() const { return m_number; }
    const QString& description() const { return m_description; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_description;
    QByteArray m_what;
};

} // namespace values
