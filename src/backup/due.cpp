#include "due.h"

namespace backup {

bool isDue(const QDateTime& lastBackup, qint32 intervalDays, const QDateTime& now)
{
    return lastBackup.date().daysTo(now.date()) > intervalDays;
}

} // namespace backup
