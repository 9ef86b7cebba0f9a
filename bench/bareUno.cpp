#include "bareUno.h"

#include "office/suiteProcess.h"
#include "office/uno/session.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/CellHoriJustify.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>

namespace uno = com::sun::star::uno;

namespace {

void setFormats(const office::Document& document, const uno::Reference<com::sun::star::table::XCellRange>& cells,
                const std::vector<office::ColumnFormat>& formats)
{
    const auto codes = uno::Reference<com::sun::star::util::XNumberFormatsSupplier>(document, uno::UNO_QUERY_THROW)
                           ->getNumberFormats();
    const auto columns =
        uno::Reference<com::sun::star::table::XColumnRowRange>(cells, uno::UNO_QUERY_THROW)->getColumns();
    for (const office::ColumnFormat& format : formats) {
        const office::lang::Locale locale("en", "US", "");
        const rtl::OUString code = office::toUno(format.code);
        sal_Int32 key = codes->queryKey(code, locale, false);
        if (key < 0)
            key = codes->addNew(code, locale);
        const rtl::OUString names[] = {"HoriJustify", "NumberFormat"};
        const uno::Any values[] = {uno::Any(format.side == Qt::AlignRight
                                                ? com::sun::star::table::CellHoriJustify_RIGHT
                                                : com::sun::star::table::CellHoriJustify_LEFT),
                                   uno::Any(key)};
        uno::Reference<com::sun::star::beans::XMultiPropertySet>(columns->getByIndex(format.column),
                                                                 uno::UNO_QUERY_THROW)
            ->setPropertyValues({names, 2}, {values, 2});
    }
}

} // namespace

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

void BareUno::fill(const QString& templateFile, const office::SheetContent& content, const QString& target)
{
    const office::Document document = m_private->session.openAsTemplate(templateFile);
    const office::DocumentCloser closer(document);
    const office::Block& block = content.blocks.back();
    const int rows = static_cast<int>(block.rows.size());
    const int columns = static_cast<int>(block.rows.front().size());
    uno::Sequence<uno::Sequence<uno::Any>> data(rows);
    for (int row = 0; row < rows; ++row) {
        uno::Sequence<uno::Any> cells(columns);
        for (int column = 0; column < columns; ++column) {
            const office::Cell& cell = block.rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            const auto* text = std::get_if<QString>(&cell);
            cells.getArray()[column] = text ? uno::Any(office::toUno(*text)) : uno::Any(std::get<double>(cell));
        }
        data.getArray()[row] = cells;
    }
    const uno::Reference<com::sun::star::sheet::XSpreadsheetDocument> book(document, uno::UNO_QUERY_THROW);
    const uno::Reference<com::sun::star::table::XCellRange> all(
        book->getSheets()->getByName(office::toUno(content.sheet)), uno::UNO_QUERY_THROW);
    setFormats(document, all, content.formats);
    uno::Reference<com::sun::star::sheet::XCellRangeData>(
        all->getCellRangeByPosition(block.column, block.row, block.column + columns - 1, block.row + rows - 1),
        uno::UNO_QUERY_THROW)
        ->setDataArray(data);
    uno::Reference<com::sun::star::frame::XStorable>(document, uno::UNO_QUERY_THROW)
        ->storeToURL(
            office::toUrl(target),
            office::makeSequence({office::makeProperty("FilterName", uno::Any(rtl::OUString("MS Excel 97")))}));
}
