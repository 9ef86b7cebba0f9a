#include "jobStatements.h"

namespace masterdata {

QString insertJob(const QString& date, qint32 clientId, qint32 typeId, const QString& reference)
{
    return QStringLiteral("insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(#") + date +
           QStringLiteral("#,") + QString::number(clientId) + QStringLiteral(",") + QString::number(typeId) +
           QStringLiteral(",'") + reference + QStringLiteral("')");
}

QString selectClientsByName()
{
    return QStringLiteral("select ID,acctname from jobacct order by acctname asc");
}

QString selectTypesOf(qint32 clientId)
{
    return QStringLiteral("select ID,accttype from accttype where acctid=") + QString::number(clientId) +
           QStringLiteral(" order by accttype asc");
}

QString selectNewestJobId()
{
    return QStringLiteral("select max(id) from jobs");
}

QString selectNewJob(qint32 id)
{
    return QStringLiteral("select jobtypeid,jobreference from jobs where id =") + QString::number(id);
}

} // namespace masterdata
