#pragma once

#include "values/period.h"

#include <QDateTime>
#include <QString>

namespace store {

/// " AND column=#date#".
QString dateCondition(const QString& column, const QDateTime& date);

/// The condition that a job lies in the period; empty when none is chosen. `todayColumn` is the column's name for
/// "Today".
QString jobDateCondition(const values::PeriodChoice& choice, const QString& todayColumn);

} // namespace store
