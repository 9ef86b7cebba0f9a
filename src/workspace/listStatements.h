#pragma once

#include "values/period.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace workspace {

/// What the job list is narrowed to; what is empty does not narrow.
struct JobFilter {
    values::PeriodChoice period;
    std::optional<qint32> clientId;
    std::optional<qint32> typeId;
};

QString selectTypes();
/// The jobs of one day.
QString selectJobsOf(const QDateTime& date);
QString selectJobs(const JobFilter& filter);
/// Deletes the row that a list shows with this id. The table is the list's own.
QString deleteRow(const QString& table, qint32 id);

} // namespace workspace
