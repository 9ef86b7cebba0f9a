#include "clock.h"

#include "dates.h"

#include <utility>

namespace values {

namespace {

std::function<QDateTime()>& replacement()
{
    static std::function<QDateTime()> clock;
    return clock;
}

} // namespace

QDateTime now()
{
    const QDateTime wall = replacement() ? replacement()() : QDateTime::currentDateTime();
    // Taken apart and put together again, because converting to UTC would shift the hands of the clock.
    const QTime time = wall.time();
    return dateTime(wall.date(), QTime(time.hour(), time.minute(), time.second()));
}

QDate today()
{
    return now().date();
}

void setClock(std::function<QDateTime()> clock)
{
    replacement() = std::move(clock);
}

} // namespace values
