#pragma once

#include <QDateTime>

namespace backup {

/// Whether a scheduled backup is due: when more calendar days than the interval have passed, so that a daily backup is
/// made every second day.
bool isDue(const QDateTime& lastBackup, qint32 intervalDays, const QDateTime& now);

} // namespace backup
