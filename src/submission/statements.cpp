#include "statements.h"

#include "store/joinSql.h"

using namespace Qt::StringLiterals;
using store::joinSql;

namespace submission {

QString selectUnsubmittedDates()
{
    return u"select distinct jobdate from jobs where jobuploaded='.'"_s;
}

QString selectUnsubmittedReferences(const QString& date)
{
    return joinSql(u"Select jobreference from jobs where jobdate=#", date, u"# and jobuploaded='.'");
}

QString updateSubmitted(const QString& reference, const QString& date, const QString& time)
{
    return joinSql(u"UPDATE jobs set jobuploaded='", date, u" ", time, u"' where jobreference='", reference, u"'");
}

QString selectTypesByClient()
{
    return u"select accttype.id,jobacct.acctname,accttype.accttype,accttype.acctunit,accttype.acctrate"
           " from jobacct,accttype where jobacct.id=accttype.acctid"
           " order by jobacct.acctname,accttype.accttype asc"_s;
}

} // namespace submission
