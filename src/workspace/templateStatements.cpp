#include "templateStatements.h"

#include "store/joinSql.h"

using namespace Qt::StringLiterals;
using store::joinSql;

namespace workspace {

QString selectTemplates()
{
    return u"select id,tempname,tempref,tempdesc,temppath from template order by tempname asc"_s;
}

QString selectTemplate(qint32 id)
{
    return joinSql(u"select tempname,tempref,tempdesc,temppath from template where id=", id);
}

QString insertTemplate(const TemplateEntry& entry)
{
    return joinSql(u"insert into template(tempname,tempref,tempdesc,temppath)values('", entry.name, u"','",
                   entry.keyCode, u"','", entry.description, u"','", entry.path, u"')");
}

QString updateTemplate(qint32 id, const TemplateEntry& entry)
{
    return joinSql(u"UPDATE template set tempname='", entry.name, u"', tempref='", entry.keyCode, u"', tempdesc='",
                   entry.description, u"', temppath='", entry.path, u"' where ID=", id);
}

QString deleteTemplate(qint32 id)
{
    return joinSql(u"delete from template where id=", id);
}

} // namespace workspace
