#include "statements.h"

#include "store/joinSql.h"
#include "values/dates.h"

using namespace Qt::StringLiterals;
using store::joinSql;

namespace backup {

QString selectIsActive()
{
    return u"select dobackup from bu where id=1"_s;
}

QString selectSchedule()
{
    return u"select freq,lastbu,path from bu where id=1"_s;
}

QString selectLastBackup()
{
    return u"select freq,lastbu from bu where id=1"_s;
}

QString selectSettings()
{
    return u"select freq,lastbu,path,dobackup  from bu where id=1"_s;
}

QString updateLastBackup(QDate today)
{
    return joinSql(u"update bu set lastbu=#", values::dateText(values::dateTime(today)), u"# where id=1");
}

QString updateSettings(qint32 days, const QString& path, bool isActive)
{
    return joinSql(u"update bu set freq=", days, u",path='", path, u"',dobackup=", isActive, u" where id= 1");
}

QString updatePath(const QString& path)
{
    return joinSql(u"update bu set path='", path, u"' where id= 1");
}

} // namespace backup
