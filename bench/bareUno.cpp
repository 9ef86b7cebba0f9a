#include "bareUno.h"

#include "office/suiteProcess.h"
#include "office/uno/session.h"

#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCellRange.hpp>

namespace uno = com::sun::star::uno;

struct BareUno::Private {
    office::SuiteProcess process;
    std::atomic<bool> isAbandoned = false;
    office::Session session{process.pipeName(), isAbandoned};
};

BareUno::BareUno() : m_private(new Private) {}

BareUno::~BareUno()
{
    m_private->session.endSuite();
    m_private->process.waitForEnd(3000);
    delete m_private;
}

void BareUno::read(const QString& fileName, const QString& target)
{
    const office::Document document = m_private->session.open(fileName, "", "");
    const office::DocumentCloser closer(document);
    const uno::Reference<com::sun::star::frame::XStorable> storable(document, uno::UNO_QUERY_THROW);
    for (const char* filter : {"Rich Text Format", "HTML (StarWriter)"}) {
        storable->storeToURL(office::toUrl(target),
                             office::makeSequence({office::makeProperty(
                                 "FilterName", uno::Any(rtl::OUString::createFromAscii(filter)))}));
    }
}

void BareUno::fill(const QString& templateFile, const QString& sheet, int rows, int textColumns, int numberColumns,
                   const QString& target)
{
    const office::Document document = m_private->session.openAsTemplate(templateFile);
    const office::DocumentCloser closer(document);
    const int columns = textColumns + numberColumns;
    uno::Sequence<uno::Sequence<uno::Any>> data(rows);
    for (int row = 0; row < rows; ++row) {
        uno::Sequence<uno::Any> cells(columns);
        for (int column = 0; column < columns; ++column)
            cells.getArray()[column] = column < textColumns
                                           ? uno::Any("MR-" + rtl::OUString::number(column < 1 ? row : 10000 + column))
                                           : uno::Any(column * 1234.5 + row);
        data.getArray()[row] = cells;
    }
    const uno::Reference<com::sun::star::sheet::XSpreadsheetDocument> book(document, uno::UNO_QUERY_THROW);
    const uno::Reference<com::sun::star::table::XCellRange> all(book->getSheets()->getByName(office::toUno(sheet)),
                                                                uno::UNO_QUERY_THROW);
    uno::Reference<com::sun::star::sheet::XCellRangeData>(all->getCellRangeByPosition(0, 3, columns - 1, rows + 2),
                                                          uno::UNO_QUERY_THROW)
        ->setDataArray(data);
    uno::Reference<com::sun::star::frame::XStorable>(document, uno::UNO_QUERY_THROW)
        ->storeToURL(
            office::toUrl(target),
            office::makeSequence({office::makeProperty("FilterName", uno::Any(rtl::OUString("MS Excel 97")))}));
}
