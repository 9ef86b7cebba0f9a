#include "period.h"

using namespace Qt::StringLiterals;

namespace values {

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
