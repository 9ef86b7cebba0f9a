#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace values {

/// The day that a time without a date belongs to.
inline const QDate timeOnlyDay(1899, 12, 30);

/// A date-time without time zone or summer time.
QDateTime dateTime(QDate date, QTime time = QTime(0, 0));

/// Reads a date, a time, or a date and a time as people type them: month first, day first when the first number cannot
/// be a month, month names, ISO. Years from 100 to 9999; of two digits, 30 to 99 are 19xx and 0 to 29 are 20xx; without
/// a year, this year. Empty when the text is none of these.
std::optional<QDateTime> readDate(const QString& text);

/// Whether readDate() understands the text.
bool isDate(const QString& text);

/// Reads a date as readDate() does; throws TypeMismatch.
QDateTime toDate(const QString& text);

/// m/d/yyyy, then a blank and h:mm:ss AM/PM unless it is midnight; a time without a date shows the time only.
QString dateText(const QDateTime& value);

} // namespace values
