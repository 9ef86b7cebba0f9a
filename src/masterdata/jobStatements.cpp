#include "jobStatements.h"

#include "store/joinSql.h"

using namespace Qt::StringLiterals;
using store::joinSql;

namespace masterdata {

QString insertJob(const QString& date, qint32 clientId, qint32 typeId, const QString& reference)
{
    return joinSql(u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(#", date, u"#,", clientId, u",",
                   typeId, u",'", reference, u"')");
}

QString selectClientsByName()
{
    return u"select ID,acctname from jobacct order by acctname asc"_s;
}

QString selectTypesOf(qint32 clientId)
{
    return joinSql(u"select ID,accttype from accttype where acctid=", clientId, u" order by accttype asc");
}

QString selectNewestJobId()
{
    return u"select max(id) from jobs"_s;
}

QString selectNewJob(qint32 id)
{
    return joinSql(u"select jobtypeid,jobreference from jobs where id =", id);
}

} // namespace masterdata
