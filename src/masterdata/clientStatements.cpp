#include "clientStatements.h"

#include "store/joinSql.h"

using store::joinSql;

namespace masterdata {

QString insertClient(const QString& name)
{
    return joinSql(u"insert into jobacct(acctname)values('", name, u"')");
}

QString updateClient(qint16 id, const QString& name)
{
    return joinSql(u"update jobacct set acctname='", name, u"' where ID=", id);
}

QString deleteClient(const QString& id)
{
    return joinSql(u"DELETE from jobacct where id=", id);
}

QString selectClient(qint16 id)
{
    return joinSql(u"select acctname from jobacct where id=", id);
}

} // namespace masterdata
