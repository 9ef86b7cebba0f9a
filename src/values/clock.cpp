#include "clock.h"

#include "dates.h"

#include <utility>

namespace values {

namespace {

std::function<QDateTime()>& replacementClock()
{
    static std::function<QDateTime()> clock;
    return clock;
}

} // namespace

QDateTime now()
{
    const QDateTime wallTime = replacementClock() ? replacementClock()() : QDateTime::currentDateTime();
    // Built anew from date and time: converting to UTC would shift the hour.
    const QTime time = wallTime.time();
    return dateTime(wallTime.date(), QTime(time.hour(), time.minute(), time.second()));
}

QDate today()
{
    return now().date();
}

void setClock(std::function<QDateTime()> clock)
{
    replacementClock() = std::move(clock);
}

} // namespace values
