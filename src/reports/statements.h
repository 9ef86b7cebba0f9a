#pragma once

#include "values/period.h"

#include <QString>

#include <vector>

namespace reports {

/// Whose jobs a report is about: those of a client or of a type.
struct Subject {
    enum class Kind { Client, Type } kind;
    qint32 id;
};

/// How a column shows its values.
enum class Values { Text, Count, Lines, Rate, Amount, DateTime };

/// The optional columns of a detail report, in their order.
enum class Field { Characters, Lines, Rate, Total, Start, Length, Submitted };

/// A column of a report.
struct Column {
    QString heading;
    Values values;
};

QString selectSummary(const values::PeriodChoice& period, const Subject& subject);
std::vector<Column> summaryColumns();

QString selectDetail(const values::PeriodChoice& period, const Subject& subject, const std::vector<Field>& fields);
/// The columns after the reference.
std::vector<Column> detailColumns(const std::vector<Field>& fields);

} // namespace reports
