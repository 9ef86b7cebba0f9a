#include "jobStatements.h"

#include "store/joinSql.h"
#include "values/dates.h"

using store::joinSql;

namespace workspace {

QString countLineType(qint32 typeId)
{
    return joinSql(u"select count(*) from accttype where id=", typeId, u" and acctunit='Line'");
}

QString selectCharactersPerLine(qint32 typeId)
{
    return joinSql(u"select acctcharline from accttype where id=", typeId);
}

QString selectJob(qint32 jobId)
{
    return joinSql(u"select jobs.jobdate,jobacct.acctname,accttype.accttype,accttype.acctunit"
                   ",jobs.jobchar,jobs.joblines,accttype.acctrate"
                   ",jobs.jobstart,jobs.joblength,jobs.jobuploaded"
                   " from accttype,jobacct,jobs where jobs.id=",
                   jobId, u" and jobs.jobtypeid=accttype.id and jobacct.id=accttype.acctid");
}

QString selectStoredJob(qint32 jobId)
{
    return joinSql(u"select jobdate,jobtypeid,jobreference,jobstart,jobchar,joblines,joblength,jobuploaded"
                   u" from jobs where id=",
                   jobId);
}

QString selectType(qint32 typeId)
{
    return joinSql(
        u"select jobacct.acctname,accttype.accttype,accttype.acctunit,accttype.acctrate,accttype.acctcharline"
        " from accttype,jobacct where jobacct.id=accttype.acctid and accttype.id=",
        typeId);
}

QString selectClientOfType(qint32 typeId)
{
    return joinSql(u"select acctid from accttype where id=", typeId);
}

QString updateJob(const JobEntry& job)
{
    const QString start = values::isDate(job.start) ? joinSql(u"jobstart=#", job.start, u"#,") : QString();
    return joinSql(u"UPDATE jobs set jobdate=#", job.date, u"#,jobacctid=", job.clientId, u",jobtypeid=", job.typeId,
                   u",jobreference='", job.reference, u"',", start, u"jobchar=", job.characters, u",joblines=",
                   job.lines, u",joblength='", job.length, u"',jobuploaded='", job.submitted, u"' where id=", job.id);
}

QString deleteJob(qint32 jobId)
{
    return joinSql(u"delete from jobs where id=", jobId);
}

} // namespace workspace
