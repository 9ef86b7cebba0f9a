#pragma once

#include <QDateTime>

namespace backup {

/// Whether a scheduled backup is due: more calendar days than the interval have gone by. More, not as many: a daily one
/// comes every second day.
bool isDue(const QDateTime& lastBackup, qint32 intervalDays, const QDateTime& now);

} // namespace backup
