#include "dateConditions.h"

#include "joinSql.h"

#include "values/dates.h"

using namespace Qt::StringLiterals;

namespace store {

using values::Range;

namespace {

const QString dateColumn = u"jobdate"_s;

QString dayText(QDate date)
{
    return values::dateText(values::dateTime(date));
}

} // namespace

QString dateCondition(const QString& column, const QDateTime& date)
{
    return joinSql(u" AND ", column, u"=#", values::dateText(date), u"#");
}

QString jobDateCondition(const values::PeriodChoice& choice, const QString& todayColumn)
{
    const std::optional<values::Period> period = values::periodOf(choice);
    if (!period)
        return QString();
    if (choice.range == Range::Today || choice.range == Range::Other)
        return dateCondition(choice.range == Range::Today ? todayColumn : dateColumn, values::dateTime(period->first));
    return joinSql(u" AND jobdate Between #", dayText(period->first), u"# and #", dayText(period->last), u"#");
}

} // namespace store
