#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace values {

/// All days from the first to the last, both included.
struct Period {
    QDate first;
    QDate last;
};

/// The periods that a person chooses from, in the order of their option buttons.
enum class Range { Today, ThisWeek, ThisMonth, FromTo, Other };

/// What a person chose, and the days for "From/To" and "Other".
struct PeriodChoice {
    std::optional<Range> range;
    QDate from;
    QDate to;
    QDate other;
};

/// The days that a choice means today; empty when nothing is chosen. A first day after the last one stays so.
std::optional<Period> periodOf(const PeriodChoice& choice);

/// The week of a day, Sunday to Saturday.
Period weekOf(QDate day);

/// The month of a day, from the 1st to the day that FindLast() gives.
Period monthOf(QDate day);

/// The last day of a month (1 to 12), both as text. February always ends on the 28th, so that a month's
/// list looks the same every year.
QString FindLast(const QString& month);

} // namespace values
