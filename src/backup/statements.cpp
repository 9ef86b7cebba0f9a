#include "statements.h"

#include "values/dates.h"

namespace backup {

QString selectIsActive()
{
    return QStringLiteral("select dobackup from bu where id=1");
}

QString selectSchedule()
{
    return QStringLiteral("select freq,lastbu,path from bu where id=1");
}

QString selectLastBackup()
{
    return QStringLiteral("select freq,lastbu from bu where id=1");
}

QString selectSettings()
{
    return QStringLiteral("select freq,lastbu,path,dobackup  from bu where id=1");
}

QString updateLastBackup(QDate today)
{
    return QStringLiteral("update bu set lastbu=#") + values::dateText(values::dateTime(today)) +
           QStringLiteral("# where id=1");
}

QString updateSettings(qint32 days, const QString& path, bool isActive)
{
    return QStringLiteral("update bu set freq=") + QString::number(days) + QStringLiteral(",path='") + path +
           QStringLiteral("',dobackup=") + (isActive ? QStringLiteral("True") : QStringLiteral("False")) +
           QStringLiteral(" where id= 1");
}

QString updatePath(const QString& path)
{
    return QStringLiteral("update bu set path='") + path + QStringLiteral("' where id= 1");
}

} // namespace backup
