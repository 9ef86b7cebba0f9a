#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

namespace workspace {

/// The time periods of the job filter, in the order of their option buttons.
enum class Range { Today, ThisWeek, ThisMonth, FromTo, Other };

/// What the job list is narrowed to; what is empty does not narrow.
struct JobFilter {
    std::optional<Range> range;
    QDate from;
    QDate to;
    QDate other;
    std::optional<qint32> clientId;
    std::optional<qint32> typeId;
};

QString selectClients();
QString selectTypes();
/// The jobs of one day.
QString selectJobsOf(const QDateTime& date);
QString selectJobs(const JobFilter& filter);
/// Deletes the row that a list shows with this id. The table is the list's own.
QString deleteRow(const QString& table, qint32 id);

} // namespace workspace
