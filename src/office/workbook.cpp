#include "workbook.h"

#include "session.h"
#include "suite.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>

#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/view/XPrintable.hpp>

namespace office {

using values::Fault;
using values::RuntimeError;
namespace sheet = com::sun::star::sheet;

namespace {

RuntimeError accessError(const QString& fileName)
{
    return {static_cast<int>(Fault::PathFileAccess),
            QStringLiteral("Path/File access error: '%1' could not be opened or written.")
                .arg(QDir::toNativeSeparators(fileName))};
}

using Row = uno::Sequence<uno::Any>;

uno::Sequence<Row> dataOf(const Block& block)
{
    uno::Sequence<Row> data(static_cast<sal_Int32>(block.rows.size()));
    Row* row = data.getArray();
    for (const QStringList& texts : block.rows) {
        Row cells(static_cast<sal_Int32>(texts.size()));
        uno::Any* cell = cells.getArray();
        for (const QString& text : texts)
            *cell++ <<= toUno(text);
        *row++ = cells;
    }
    return data;
}

// As data, not as what one would type: "=1+1" is a text.
void fill(const uno::Reference<lang::XComponent>& document, const Block& block)
{
    if (block.rows.empty())
        return;
    const uno::Reference<sheet::XSpreadsheetDocument> book(document, uno::UNO_QUERY_THROW);
    const uno::Reference<com::sun::star::table::XCellRange> cells(book->getSheets()->getByName(toUno(block.sheet)),
                                                                  uno::UNO_QUERY_THROW);
    const int lastColumn = block.column + static_cast<int>(block.rows.front().size()) - 1;
    const int lastRow = block.row + static_cast<int>(block.rows.size()) - 1;
    const uno::Reference<sheet::XCellRangeData> range(
        cells->getCellRangeByPosition(block.column, block.row, lastColumn, lastRow), uno::UNO_QUERY_THROW);
    range->setDataArray(dataOf(block));
}

// Through a name beside it: an earlier workbook stays whole until the new one is.
void replaceWith(const QString& made, const QString& fileName)
{
    QFile source(made);
    QSaveFile target(fileName);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly) ||
        target.write(source.readAll()) != source.size() || !target.commit())
        throw accessError(fileName);
}

} // namespace

void makeWorkbook(const QString& templateFile, const Block& block, const QString& fileName)
{
    if (!QFileInfo(templateFile).isFile())
        throw RuntimeError(Fault::FileNotFound);
    onSuite([&](Session& session) {
        const uno::Reference<lang::XComponent> document = session.open(templateFile, true);
        if (!document.is())
            throw accessError(templateFile);
        const ClosedAtEnd closed(document);
        fill(document, block);
        const QString made = session.exchangeFolder() + QStringLiteral("/workbook.xls");
        const uno::Reference<com::sun::star::frame::XStorable> storable(document, uno::UNO_QUERY_THROW);
        storable->storeToURL(urlOf(made), sequence({property("FilterName", uno::Any(rtl::OUString("MS Excel 97")))}));
        replaceWith(made, fileName);
        QFile::remove(made);
    });
}

bool showAndPrintWorkbook(const QString& fileName)
{
    // Without a queue the suite would ask for a printer in a box of its own and wait for the answer.
    const bool hasPrinter =
        QProcess::execute(QStringLiteral("sh"),
                          {QStringLiteral("-c"), QStringLiteral("lpstat -d 2>/dev/null | grep -q ':'")}) == 0;
    onSuite([&](Session& session) {
        const uno::Reference<lang::XComponent> document = session.show(fileName);
        if (!document.is())
            throw accessError(fileName);
        if (hasPrinter)
            uno::Reference<com::sun::star::view::XPrintable>(document, uno::UNO_QUERY_THROW)
                ->print(sequence({property("Wait", uno::Any(true))}));
    });
    return hasPrinter;
}

} // namespace office
