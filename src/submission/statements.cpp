#include "statements.h"

namespace submission {

QString selectUnsubmittedDates()
{
    return QStringLiteral("select distinct jobdate from jobs where jobuploaded='.'");
}

QString selectUnsubmittedOf(const QString& date)
{
    return QStringLiteral("Select jobreference from jobs where jobdate=#") + date +
           QStringLiteral("# and jobuploaded='.'");
}

QString markSubmitted(const QString& reference, const QString& date, const QString& time)
{
    return QStringLiteral("UPDATE jobs ") + QStringLiteral("set jobuploaded='") + date + QStringLiteral(" ") + time +
           QStringLiteral("'") + QStringLiteral(" where jobreference='") + reference + QStringLiteral("'");
}

QString selectTypesByClient()
{
    return QStringLiteral("select accttype.id,jobacct.acctname,accttype.accttype,") +
           QStringLiteral("accttype.acctunit,accttype.acctrate from jobacct,accttype") +
           QStringLiteral(" where jobacct.id=accttype.acctid order by jobacct.acctname,accttype.accttype asc");
}

} // namespace submission
