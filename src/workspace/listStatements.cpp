#include "listStatements.h"

#include "store/dateConditions.h"
#include "store/joinSql.h"

using namespace Qt::StringLiterals;
using store::joinSql;

namespace workspace {

namespace {

const QString jobBaseQuery = u"select jobs.id,jobs.jobdate,jobs.jobacctid,jobs.jobtypeid,"
                             "jobs.jobreference,jobs.jobstart,jobs.joblength,"
                             "jobs.jobuploaded,jobs.joblines,jobs.joblines * accttype.acctrate from jobs,accttype"
                             " where jobs.jobtypeid=accttype.id"_s;
const QString orderById = u" order by jobs.ID asc"_s;
const QString jobDate = u"jobdate"_s;

} // namespace

QString selectTypes()
{
    return u"select id,acctid,accttype,acctrate,acctunit,acctcharline from accttype"_s;
}

QString selectJobsOf(const QDateTime& date)
{
    return jobBaseQuery + store::dateCondition(jobDate, date) + orderById;
}

QString selectJobs(const JobFilter& filter)
{
    QString statement = jobBaseQuery + store::jobDateCondition(filter.period, jobDate);
    if (filter.clientId)
        statement += joinSql(u" AND jobacctid=", *filter.clientId);
    if (filter.typeId)
        statement += joinSql(u" AND jobtypeid=", *filter.typeId);
    return statement + orderById;
}

QString deleteRow(const QString& table, qint32 id)
{
    return joinSql(u"delete from ", table, u" where id=", id);
}

} // namespace workspace
