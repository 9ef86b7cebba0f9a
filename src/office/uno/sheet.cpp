#include "sheet.h"

#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/CellHoriJustify.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>

#include <algorithm>
#include <functional>

namespace office {

namespace sheet = com::sun::star::sheet;
namespace table = com::sun::star::table;

namespace {

using Cells = uno::Reference<table::XCellRange>;
using UnoRow = uno::Sequence<uno::Any>;

/// How many rows one call writes: enough to be fast, few enough to be cancelled soon.
constexpr std::size_t pieceRows = 2000;

/// The space between the texts of neighbouring columns, in hundredths of a millimetre.
constexpr sal_Int32 columnGap = 200;
constexpr sal_Int16 textIndent = 300;

uno::Any toUnoValue(const Cell& cell)
{
    if (const auto* number = std::get_if<double>(&cell))
        return uno::Any(*number);
    const auto* text = std::get_if<QString>(&cell);
    // An empty text leaves the cell empty; a void value would show as an error.
    return uno::Any(text ? toUno(*text) : rtl::OUString());
}

void setProperty(const uno::Reference<uno::XInterface>& object, const char* name, const uno::Any& value)
{
    uno::Reference<com::sun::star::beans::XPropertySet>(object, uno::UNO_QUERY_THROW)
        ->setPropertyValue(rtl::OUString::createFromAscii(name), value);
}

Cells findRange(const Cells& cells, const Block& block, std::size_t firstRow, std::size_t rowCount)
{
    const int top = block.row + static_cast<int>(firstRow);
    return cells->getCellRangeByPosition(block.column, top,
                                         block.column + static_cast<int>(block.rows.front().size()) - 1,
                                         top + static_cast<int>(rowCount) - 1);
}

// Writes data, not input as typed: "=1+1" stays a text.
void writePiece(const Cells& cells, const Block& block, std::size_t firstRow, std::size_t rowCount)
{
    uno::Sequence<UnoRow> data(static_cast<sal_Int32>(rowCount));
    UnoRow* target = data.getArray();
    for (std::size_t row = firstRow; row < firstRow + rowCount; ++row) {
        UnoRow values(static_cast<sal_Int32>(block.rows[row].size()));
        std::ranges::transform(block.rows[row], values.getArray(), [](const Cell& cell) { return toUnoValue(cell); });
        *target++ = values;
    }
    uno::Reference<sheet::XCellRangeData>(findRange(cells, block, firstRow, rowCount), uno::UNO_QUERY_THROW)
        ->setDataArray(data);
}

using TellProgress = std::function<void(std::size_t count)>;

void writeBlock(const Cells& cells, const Block& block, const TellProgress& tell = {})
{
    for (std::size_t row = 0; row < block.rows.size(); row += pieceRows) {
        const std::size_t count = std::min(pieceRows, block.rows.size() - row);
        writePiece(cells, block, row, count);
        if (tell)
            tell(count);
    }
    if (block.isBold)
        setProperty(findRange(cells, block, 0, block.rows.size()), "CharWeight",
                    uno::Any(com::sun::star::awt::FontWeight::BOLD));
}

uno::Reference<table::XTableColumns> findColumns(const Cells& cells)
{
    return uno::Reference<table::XColumnRowRange>(cells, uno::UNO_QUERY_THROW)->getColumns();
}

uno::Any findOrAddFormat(const uno::Reference<com::sun::star::util::XNumberFormats>& numberFormats,
                         const rtl::OUString& code)
{
    // The codes are US English whatever the suite's language is; the code for texts has no region.
    const lang::Locale region = code == "@" ? lang::Locale() : lang::Locale("en", "US", "");
    const sal_Int32 key = numberFormats->queryKey(code, region, false);
    return uno::Any(key < 0 ? numberFormats->addNew(code, region) : key);
}

void setFormats(const Document& workbook, const Cells& cells, const std::vector<ColumnFormat>& formats)
{
    const auto numberFormats =
        uno::Reference<com::sun::star::util::XNumberFormatsSupplier>(workbook, uno::UNO_QUERY_THROW)
            ->getNumberFormats();
    const uno::Reference<table::XTableColumns> columns = findColumns(cells);
    for (const ColumnFormat& format : formats) {
        const bool isAlignedRight = format.side == Qt::AlignRight;
        // An indent separates left-aligned values from the numbers of the column before.
        const sal_Int16 indent = isAlignedRight || format.column == 0 ? 0 : textIndent;
        const rtl::OUString names[] = {"HoriJustify", "NumberFormat", "ParaIndent"};
        const uno::Any values[] = {
            uno::Any(isAlignedRight ? table::CellHoriJustify_RIGHT : table::CellHoriJustify_LEFT),
            findOrAddFormat(numberFormats, toUno(format.code)), uno::Any(indent)};
        uno::Reference<com::sun::star::beans::XMultiPropertySet>(columns->getByIndex(format.column),
                                                                 uno::UNO_QUERY_THROW)
            ->setPropertyValues({names, std::size(names)}, {values, std::size(values)});
    }
}

void fitColumns(const Cells& cells, const Block& block)
{
    const uno::Reference<table::XTableColumns> columns = findColumns(findRange(cells, block, 0, 1));
    setProperty(columns, "OptimalWidth", uno::Any(true));
    for (sal_Int32 i = 0; i < columns->getCount(); ++i) {
        const uno::Reference<com::sun::star::beans::XPropertySet> column(columns->getByIndex(i), uno::UNO_QUERY_THROW);
        sal_Int32 width = 0;
        column->getPropertyValue("Width") >>= width;
        column->setPropertyValue("Width", uno::Any(width + columnGap));
    }
}

} // namespace

bool fillSheet(const Document& workbook, const SheetContent& content, QPromise<void>& progress)
{
    const uno::Reference<sheet::XSpreadsheetDocument> book(workbook, uno::UNO_QUERY_THROW);
    const uno::Reference<sheet::XSpreadsheets> sheets = book->getSheets();
    if (!sheets->hasByName(toUno(content.sheet)))
        return false;
    const Cells cells(sheets->getByName(toUno(content.sheet)), uno::UNO_QUERY_THROW);
    setFormats(workbook, cells, content.formats);
    int written = 0;
    const auto tell = [&](std::size_t count) { progress.setProgressValue(written += static_cast<int>(count)); };
    bool areColumnsFitted = content.widest.rows.empty();
    for (const Block& block : content.blocks) {
        writeBlock(cells, block, tell);
        if (areColumnsFitted)
            continue;
        writeBlock(cells, content.widest);
        fitColumns(cells, block);
        areColumnsFitted = true;
    }
    for (const Block& title : content.titles)
        writeBlock(cells, title);
    return true;
}

} // namespace office
