#include "period.h"

#include "clock.h"

using namespace Qt::StringLiterals;

namespace values {

std::optional<Period> periodOf(const PeriodChoice& choice)
{
    if (!choice.range)
        return std::nullopt;
    switch (*choice.range) {
    case Range::Today:
        return Period{today(), today()};
    case Range::ThisWeek:
        return weekOf(today());
    case Range::ThisMonth:
        return monthOf(today());
    case Range::FromTo:
        return Period{choice.from, choice.to};
    case Range::Other:
        return Period{choice.other, choice.other};
    }
    Q_UNREACHABLE();
}

Period weekOf(QDate day)
{
    // QDate counts Sunday as the seventh day.
    const QDate sunday = day.addDays(-(day.dayOfWeek() % 7));
    return {sunday, sunday.addDays(6)};
}

Period monthOf(QDate day)
{
    const int last = FindLast(QString::number(day.month())).toInt();
    return {QDate(day.year(), day.month(), 1), QDate(day.year(), day.month(), last)};
}

QString FindLast(const QString& month)
{
    if (month == u"2"_s)
        return u"28"_s;
    if (month == u"4"_s || month == u"6"_s || month == u"9"_s || month == u"11"_s)
        return u"30"_s;
    return u"31"_s;
}

} // namespace values
