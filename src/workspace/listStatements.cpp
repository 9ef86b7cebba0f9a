#include "listStatements.h"

#include "store/dateConditions.h"

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
const QString jobDate = QStringLiteral("jobdate");

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
    return jobBaseQuery() + store::onDate(jobDate, date) + inOrder;
}

QString selectJobs(const JobFilter& filter)
{
    QString statement = jobBaseQuery() + store::jobDateCondition(filter.period, jobDate);
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
