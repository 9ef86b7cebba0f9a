#include "statements.h"

namespace templates {

QString selectPath(const QString& keyCode)
{
    return QStringLiteral("Select temppath from template where tempref='") + keyCode + QStringLiteral("'");
}

QString countTemplates()
{
    return QStringLiteral("select count(*) from template");
}

QString selectGuide()
{
    return QStringLiteral("select tempname,tempref,tempdesc from template order by tempname asc");
}

} // namespace templates
