#include "typeStatements.h"

namespace masterdata {

QString insertType(const TypeEntry& type)
{
    return QStringLiteral("insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)") +
           QStringLiteral("values(") + QString::number(type.clientId) + QStringLiteral(",'") + type.name +
           QStringLiteral("',") + type.rate + QStringLiteral(",") + type.charactersPerLine + QStringLiteral(",'") +
           type.unit + QStringLiteral("')");
}

QString updateType(qint16 id, const TypeEntry& type)
{
    return QStringLiteral("update accttype set acctid=") + QString::number(type.clientId) + QStringLiteral(",") +
           QStringLiteral(" accttype='") + type.name + QStringLiteral("',") + QStringLiteral(" acctrate=") + type.rate +
           QStringLiteral(",") + QStringLiteral(" acctcharline=") + type.charactersPerLine + QStringLiteral(",") +
           QStringLiteral(" acctunit='") + type.unit + QStringLiteral("'") + QStringLiteral(" where ID=") +
           QString::number(id);
}

QString deleteType(const QString& id)
{
    return QStringLiteral("DELETE from accttype where id=") + id;
}

QString selectType(qint16 id)
{
    return QStringLiteral("select acctID,accttype,acctrate,acctunit,acctcharline from accttype where id=") +
           QString::number(id);
}

} // namespace masterdata
