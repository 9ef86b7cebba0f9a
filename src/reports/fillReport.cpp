#include "fillReport.h"

#include "reportFile.h"

#include "office/workbook.h"
#include "ui/messages.h"
#include "ui/programEnd.h"
#include "ui/readRows.h"
#include "values/clock.h"
#include "values/programFolder.h"
#include "values/runtimeError.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

/// Whether a workbook can hold the rows and there are any; shows a message if not.
bool checkRowCount(const store::RowSet& rows)
{
    if (rows.rowCount() == 0)
        ui::showMessage(u"The search criteria you enter returned no results."_s);
    else if (rows.rowCount() > maximumRows)
        ui::showMessage(
            u"The report would have %1 rows, and a workbook holds %2. Choose a shorter period."_s.arg(rows.rowCount())
                .arg(maximumRows));
    return rows.rowCount() > 0 && rows.rowCount() <= maximumRows;
}

/// Removed also when the program ends in the middle of a report, where nothing is destroyed any more.
class TemporaryFolder : public QTemporaryDir {
public:
    TemporaryFolder()
    {
        QObject::connect(&ui::ProgramEnd::instance(), &ui::ProgramEnd::coming, &m_context, [this] { remove(); });
    }

private:
    QObject m_context;
};

QString templateFile()
{
    return modMain::ProgramFolder + u"/templates/Report.xls"_s;
}

void openOrPrint(const Request& request, const QString& workbook)
{
    if (request.mode == Mode::Open)
        office::showWorkbook(workbook, office::ShowAs::NewDocument);
    const bool isPrinted = request.mode == Mode::Print || request.mode == Mode::Both;
    const int copies = request.mode == Mode::Both ? request.copies : 1;
    if (isPrinted && !office::printWorkbook(workbook, copies))
        ui::showMessage(u"The report could not be printed: there is no default printer."_s);
}

} // namespace

void prepareReports()
{
    office::prepareWorkbooks(templateFile());
}

void FillReport(const Request& request)
{
    const store::RowSet rows = ui::readRows(request.statement);
    if (!checkRowCount(rows))
        return;
    // A report that is not saved is made in a folder that only we can read.
    TemporaryFolder temporaryFolder;
    if (!temporaryFolder.isValid())
        throw values::RuntimeError(values::Fault::PathFileAccess);
    const bool isSaved = request.mode == Mode::Save || request.mode == Mode::Both;
    const QString folder = isSaved ? modMain::ProgramFolder + u"/reports"_s : temporaryFolder.path();
    const QString workbook = folder + u'/' + reportFileName(request.title, values::today());
    // One step more than rows, for writing the file.
    office::makeWorkbook(templateFile(),
                         makeReportSheet(request.kind, request.title, request.periodText, request.columns, rows),
                         workbook, {.text = u"Making the report"_s, .steps = rows.rowCount() + 1});
    openOrPrint(request, workbook);
}

} // namespace reports
