#pragma once

#include "values/period.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace workspace {

/// Which jobs are listed. An empty value sets no condition.
struct JobFilter {
    values::PeriodChoice period;
    std::optional<qint32> clientId;
    std::optional<qint32> typeId;
};

QString selectTypes();
/// The jobs of one day.
QString selectJobsOf(const QDateTime& date);
QString selectJobs(const JobFilter& filter);
/// Deletes the row with this id from the table of a list.
QString deleteRow(const QString& table, qint32 id);

} // namespace workspace
