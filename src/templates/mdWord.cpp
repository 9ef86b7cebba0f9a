#include "mdWord.h"

#include "clipboard.h"
#include "fetchContent.h"
#include "statements.h"

#include "office/workbook.h"
#include "store/connectionStrings.h"
#include "store/recordset.h"
#include "ui/messages.h"
#include "values/programFolder.h"
#include "values/runtimeError.h"

#include <QDir>

#include <optional>

using namespace Qt::StringLiterals;

namespace mdWord {

namespace {

QString templatesFolder()
{
    return modMain::ProgramFolder + u"/templates"_s;
}

std::optional<QString> findPath(const QString& keyCode)
{
    store::Connection connection(modMain::DBConnString);
    const store::Recordset found(connection, templates::selectPath(keyCode));
    if (found.atEnd())
        return std::nullopt;
    return found.field(0).toText();
}

QString toFileName(QString path)
{
    const QString fileName = QDir::cleanPath(templatesFolder() + path.replace(u'\\', u'/'));
    if (!fileName.startsWith(QDir::cleanPath(templatesFolder()) + u'/'))
        throw values::RuntimeError(values::Fault::FileNotFound);
    return fileName;
}

office::Block readGuide()
{
    office::Block guide{0, 2, {}};
    store::Connection connection(modMain::DBConnString);
    const qint16 count = store::Recordset(connection, templates::countTemplates()).field(0).toInteger();
    if (count == 0)
        return guide;
    for (store::Recordset row(connection, templates::selectGuide()); !row.atEnd(); row.moveNext())
        guide.rows.push_back({row.field(0).toText(), row.field(1).toText(), row.field(2).toText()});
    return guide;
}

} // namespace

bool GetTemplate(const QString& keyCode)
{
    const std::optional<QString> path = findPath(keyCode);
    if (!path)
        return false;
    templates::copyToClipboard(templates::fetchContent(toFileName(*path)));
    return true;
}

void ExportTemplateList()
{
    const QString guide = templatesFolder() + u"/template.xls"_s;
    office::makeWorkbook(templatesFolder() + u"/template.xlt"_s, {.sheet = u"Sheet1"_s, .blocks = {readGuide()}},
                         guide);
    // Printed first, because the suite that shows it then belongs to the person.
    const bool isPrinted = office::printWorkbook(guide, 1);
    office::showWorkbook(guide, office::ShowAs::File);
    if (!isPrinted)
        ui::showMessage(u"The template guide could not be printed: there is no default printer."_s);
}

} // namespace mdWord
