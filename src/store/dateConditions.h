#pragma once

#include "values/period.h"

#include <QDateTime>
#include <QString>

namespace store {

/// " AND column=#date#".
QString onDate(const QString& column, const QDateTime& date);

/// The condition on the day of a job; empty when no period is chosen. `todayColumn` is the name that "Today" uses.
QString jobDateCondition(const values::PeriodChoice& choice, const QString& todayColumn);

} // namespace store
