#include "dateConditions.h"

#include "joinSql.h"

#include "values/dates.h"

using namespace Qt::StringLiterals;

namespace store {

using values::Range;

namespace {

const QString dateColumn = u"jobdate"_s;

QString text(QDate date)
{
    return values::dateText(values::dateTime(date));
}

} // namespace

QString onDate(const QString& column, const QDateTime& date)
{
    return joinSql(u" AND ", column, u"=#", values::dateText(date), u"#");
}

QString jobDateCondition(const values::PeriodChoice& choice, const QString& todayColumn)
{
    const std::optional<values::Period> period = values::periodOf(choice);
    if (!period)
        return QString();
    if (choice.range == Range::Today || choice.range == Range::Other)
        return onDate(choice.range == Range::Today ? todayColumn : dateColumn, values::dateTime(period->first));
    return joinSql(u" AND jobdate Between #", text(period->first), u"# and #", text(period->last), u"#");
}

} // namespace store
