#include "jobStatements.h"

#include "values/dates.h"

namespace workspace {

QString countLineType(qint32 typeId)
{
    return QStringLiteral("select count(*) from accttype where id=") + QString::number(typeId) +
           QStringLiteral(" and acctunit='Line'");
}

QString selectCharactersPerLine(qint32 typeId)
{
    return QStringLiteral("select acctcharline from accttype where id=") + QString::number(typeId);
}

QString selectJob(qint32 jobId)
{
    return QStringLiteral("select jobs.jobdate,jobacct.acctname,accttype.accttype,accttype.acctunit") +
           QStringLiteral(",jobs.jobchar,jobs.joblines,accttype.acctrate") +
           QStringLiteral(",jobs.jobstart,jobs.joblength,jobs.jobuploaded") +
           QStringLiteral(" from accttype,jobacct,jobs") + QStringLiteral(" where jobs.id=") + QString::number(jobId) +
           QStringLiteral(" and jobs.jobtypeid=accttype.id") + QStringLiteral(" and jobacct.id=accttype.acctid");
}

QString selectType(qint32 typeId)
{
    return QStringLiteral("select jobacct.acctname,accttype.accttype,accttype.acctunit") +
           QStringLiteral(",accttype.acctrate,accttype.acctcharline ") + QStringLiteral("from accttype,jobacct") +
           QStringLiteral(" where jobacct.id=accttype.acctid and ") + QStringLiteral("accttype.id=") +
           QString::number(typeId);
}

QString selectClientOfType(qint32 typeId)
{
    return QStringLiteral("select acctid from accttype where id=") + QString::number(typeId);
}

QString updateJob(const JobEntry& job)
{
    QString statement = QStringLiteral("UPDATE jobs ") + QStringLiteral("set jobdate=#") + job.date +
                        QStringLiteral("#,") + QStringLiteral("jobacctid=") + QString::number(job.clientId) +
                        QStringLiteral(",") + QStringLiteral("jobtypeid=") + QString::number(job.typeId) +
                        QStringLiteral(",") + QStringLiteral("jobreference='") + job.reference + QStringLiteral("',");
    if (values::isDate(job.start))
        statement += QStringLiteral("jobstart=#") + job.start + QStringLiteral("#,");
    return statement + QStringLiteral("jobchar=") + job.characters + QStringLiteral(",") + QStringLiteral("joblines=") +
           job.lines + QStringLiteral(",") + QStringLiteral("joblength='") + job.length + QStringLiteral("',") +
           QStringLiteral("jobuploaded='") + job.submitted + QStringLiteral("'") + QStringLiteral(" where id=") +
           QString::number(job.id);
}

QString deleteJob(qint32 jobId)
{
    return QStringLiteral("delete from jobs where id=") + QString::number(jobId);
}

} // namespace workspace
