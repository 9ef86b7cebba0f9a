#include "dateConditions.h"

#include "values/dates.h"

namespace store {

using values::Range;

namespace {

const QString dateColumn = QStringLiteral("jobdate");

QString text(QDate date)
{
    return values::dateText(values::dateTime(date));
}

} // namespace

QString onDate(const QString& column, const QDateTime& date)
{
    return QStringLiteral(" AND ") + column + QStringLiteral("=#") + values::dateText(date) + QStringLiteral("#");
}

QString jobDateCondition(const values::PeriodChoice& choice, const QString& todayColumn)
{
    const std::optional<values::Period> period = values::periodOf(choice);
    if (!period)
        return QString();
    if (choice.range == Range::Today || choice.range == Range::Other)
        return onDate(choice.range == Range::Today ? todayColumn : dateColumn, values::dateTime(period->first));
    return QStringLiteral(" AND jobdate Between #") + text(period->first) + QStringLiteral("# and #") +
           text(period->last) + QStringLiteral("#");
}

} // namespace store
