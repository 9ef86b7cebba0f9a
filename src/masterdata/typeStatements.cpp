#include "typeStatements.h"

#include "store/joinSql.h"

using store::joinSql;

namespace masterdata {

QString insertType(const TypeEntry& type)
{
    return joinSql(u"insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)values(", type.clientId, u",'",
                   type.name, u"',", type.rate, u",", type.charactersPerLine, u",'", type.unit, u"')");
}

QString updateType(qint16 id, const TypeEntry& type)
{
    return joinSql(u"update accttype set acctid=", type.clientId, u", accttype='", type.name, u"', acctrate=",
                   type.rate, u", acctcharline=", type.charactersPerLine, u", acctunit='", type.unit, u"' where ID=",
                   id);
}

QString deleteType(const QString& id)
{
    return joinSql(u"DELETE from accttype where id=", id);
}

QString selectType(qint16 id)
{
    return joinSql(u"select acctID,accttype,acctrate,acctunit,acctcharline from accttype where id=", id);
}

} // namespace masterdata
