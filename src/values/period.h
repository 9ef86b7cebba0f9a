#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace values {

/// Two days and all between them.
struct Period {
    QDate first;
    QDate last;
};

/// The periods that a person chooses from, in the order of their option buttons.
enum class Range { Today, ThisWeek, ThisMonth, FromTo, Other };

/// A person's choice, and the days that "From/To" and "Other" stand for.
struct PeriodChoice {
    std::optional<Range> range;
    QDate from;
    QDate to;
    QDate other;
};

/// The days that a choice means, seen from today; empty when nothing is chosen. The ends are not swapped.
std::optional<Period> periodOf(const PeriodChoice& choice);

/// The week of a day, Sunday to Saturday.
Period weekOf(QDate day);

/// The month of a day, from the 1st to the day that FindLast() gives.
Period monthOf(QDate day);

/// The last day of a month given as its number, both as text. February always ends on the 28th, so that a month's
/// list looks the same every year.
QString FindLast(const QString& month);

} // namespace values
