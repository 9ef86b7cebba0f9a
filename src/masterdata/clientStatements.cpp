#include "clientStatements.h"

namespace masterdata {

QString insertClient(const QString& name)
{
    return QStringLiteral("insert into jobacct(acctname)values('") + name + QStringLiteral("')");
}

QString updateClient(qint16 id, const QString& name)
{
    return QStringLiteral("update jobacct set acctname='") + name + QStringLiteral("' where ID=") + QString::number(id);
}

QString deleteClient(const QString& id)
{
    return QStringLiteral("DELETE from jobacct where id=") + id;
}

QString selectClient(qint16 id)
{
    return QStringLiteral("select acctname from jobacct where id=") + QString::number(id);
}

} // namespace masterdata
