#include "templateStatements.h"

namespace workspace {

QString selectTemplates()
{
    return QStringLiteral("select id,tempname,tempref,tempdesc,temppath from template order by tempname asc");
}

QString selectTemplate(qint32 id)
{
    return QStringLiteral("select tempname,tempref,tempdesc,temppath from template where id=") + QString::number(id);
}

QString insertTemplate(const TemplateEntry& entry)
{
    return QStringLiteral("insert into template") + QStringLiteral("(tempname,tempref,tempdesc,temppath)") +
           QStringLiteral("values('") + entry.name + QStringLiteral("','") + entry.keyCode + QStringLiteral("','") +
           entry.description + QStringLiteral("','") + entry.path + QStringLiteral("')");
}

QString updateTemplate(qint32 id, const TemplateEntry& entry)
{
    return QStringLiteral("UPDATE template ") + QStringLiteral("set tempname='") + entry.name + QStringLiteral("',") +
           QStringLiteral(" tempref='") + entry.keyCode + QStringLiteral("',") + QStringLiteral(" tempdesc='") +
           entry.description + QStringLiteral("',") + QStringLiteral(" temppath='") + entry.path + QStringLiteral("'") +
           QStringLiteral(" where ID=") + QString::number(id);
}

QString deleteTemplate(qint32 id)
{
    return QStringLiteral("delete from template where id=") + QString::number(id);
}

} // namespace workspace
