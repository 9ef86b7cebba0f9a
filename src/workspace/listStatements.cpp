#include "listStatements.h"

#include "values/clock.h"
#include "values/dates.h"
#include "values/period.h"

namespace workspace {

namespace {

QString jobBaseQuery()
{
    return QStringLiteral("select jobs.id,jobs.jobdate,jobs.jobacctid,jobs.jobtypeid,") +
           QStringLiteral("jobs.jobreference,jobs.jobstart,jobs.joblength,") +
           QStringLiteral("jobs.jobuploaded,jobs.joblines,jobs.joblines * accttype.acctrate from jobs,accttype") +
           QStringLiteral(" where jobs.jobtypeid=accttype.id");
}

const QString inOrder = QStringLiteral(" order by jobs.ID asc");

QString text(QDate date)
{
    return values::dateText(values::dateTime(date));
}

QString on(const QString& date)
{
    return QStringLiteral(" AND jobdate=#") + date + QStringLiteral("#");
}

QString between(const values::Period& period)
{
    return QStringLiteral(" AND jobdate Between #") + text(period.first) + QStringLiteral("# and #") +
           text(period.last) + QStringLiteral("#");
}

QString dateCondition(const JobFilter& filter)
{
    if (!filter.range)
        return QString();
    switch (*filter.range) {
    case Range::Today:
        return on(text(values::today()));
    case Range::ThisWeek:
        return between(values::weekOf(values::today()));
    case Range::ThisMonth:
        return between(values::monthOf(values::today()));
    case Range::FromTo:
        return between({filter.from, filter.to});
    case Range::Other:
        return on(text(filter.other));
    }
    Q_UNREACHABLE();
}

} // namespace

QString selectClients()
{
    return QStringLiteral("select id,acctname from jobacct");
}

QString selectTypes()
{
    return QStringLiteral("select id,acctid,accttype,acctrate,acctunit,acctcharline from accttype");
}

QString selectJobsOf(const QDateTime& date)
{
    return jobBaseQuery() + on(values::dateText(date)) + inOrder;
}

QString selectJobs(const JobFilter& filter)
{
    QString statement = jobBaseQuery() + dateCondition(filter);
    if (filter.clientId)
        statement += QStringLiteral(" AND jobacctid=") + QString::number(*filter.clientId);
    if (filter.typeId)
        statement += QStringLiteral(" AND jobtypeid=") + QString::number(*filter.typeId);
    return statement + inOrder;
}

QString deleteRow(const QString& table, qint32 id)
{
    return QStringLiteral("delete from ") + table + QStringLiteral(" where id=") + QString::number(id);
}

} // namespace workspace
