#include "statements.h"

#include "store/joinSql.h"

using namespace Qt::StringLiterals;

namespace templates {

QString selectPath(const QString& keyCode)
{
    return store::joinSql(u"Select temppath from template where tempref='", keyCode, u"'");
}

QString countTemplates()
{
    return u"select count(*) from template"_s;
}

QString selectGuide()
{
    return u"select tempname,tempref,tempdesc from template order by tempname asc"_s;
}

QString selectKeyCodes()
{
    return u"select tempname,tempref,tempdesc from template order by tempref asc"_s;
}

} // namespace templates
