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

/// How many rows go over at once: enough to be quick, few enough to be stopped soon.
constexpr std::size_t pieceRows = 2000;

/// What keeps the texts of neighbouring columns apart, in hundredths of a millimetre.
constexpr sal_Int32 columnAir = 200;
constexpr sal_Int16 textIndent = 300;

uno::Any valueOf(const Cell& cell)
{
    if (const auto* number = std::get_if<double>(&cell))
        return uno::Any(*number);
    const auto* text = std::get_if<QString>(&cell);
    // An empty text leaves a cell empty; no value at all would be an error in it.
    return uno::Any(text ? toUno(*text) : rtl::OUString());
}

void setProperty(const uno::Reference<uno::XInterface>& object, const char* name, const uno::Any& value)
{
    uno::Reference<com::sun::star::beans::XPropertySet>(object, uno::UNO_QUERY_THROW)
        ->setPropertyValue(rtl::OUString::createFromAscii(name), value);
}

Cells rangeOf(const Cells& cells, const Block& block, std::size_t firstRow, std::size_t rowCount)
{
    const int top = block.row + static_cast<int>(firstRow);
    return cells->getCellRangeByPosition(block.column, top,
                                         block.column + static_cast<int>(block.rows.front().size()) - 1,
                                         top + static_cast<int>(rowCount) - 1);
}

// As data, not as what one would type: "=1+1" is a text.
void writePiece(const Cells& cells, const Block& block, std::size_t firstRow, std::size_t rowCount)
{
    uno::Sequence<UnoRow> data(static_cast<sal_Int32>(rowCount));
    UnoRow* target = data.getArray();
    for (std::size_t row = firstRow; row < firstRow + rowCount; ++row) {
        UnoRow values(static_cast<sal_Int32>(block.rows[row].size()));
        std::ranges::transform(block.rows[row], values.getArray(), [](const Cell& cell) { return valueOf(cell); });
        *target++ = values;
    }
    uno::Reference<sheet::XCellRangeData>(rangeOf(cells, block, firstRow, rowCount), uno::UNO_QUERY_THROW)
        ->setDataArray(data);
}

using Told = std::function<void(std::size_t count)>;

void writeBlock(const Cells& cells, const Block& block, const Told& tell = {})
{
    for (std::size_t row = 0; row < block.rows.size(); row += pieceRows) {
        const std::size_t count = std::min(pieceRows, block.rows.size() - row);
        writePiece(cells, block, row, count);
        if (tell)
            tell(count);
    }
    if (block.isBold)
        setProperty(rangeOf(cells, block, 0, block.rows.size()), "CharWeight",
                    uno::Any(com::sun::star::awt::FontWeight::BOLD));
}

uno::Reference<table::XTableColumns> columnsOf(const Cells& cells)
{
    return uno::Reference<table::XColumnRowRange>(cells, uno::UNO_QUERY_THROW)->getColumns();
}

uno::Any keyOf(const uno::Reference<com::sun::star::util::XNumberFormats>& known, const rtl::OUString& code)
{
    // Codes mean the same everywhere; the one for texts has no region.
    const lang::Locale region = code == "@" ? lang::Locale() : lang::Locale("en", "US", "");
    const sal_Int32 key = known->queryKey(code, region, false);
    return uno::Any(key < 0 ? known->addNew(code, region) : key);
}

void setFormats(const Document& workbook, const Cells& cells, const std::vector<ColumnFormat>& formats)
{
    const auto known = uno::Reference<com::sun::star::util::XNumberFormatsSupplier>(workbook, uno::UNO_QUERY_THROW)
                           ->getNumberFormats();
    const uno::Reference<table::XTableColumns> columns = columnsOf(cells);
    for (const ColumnFormat& format : formats) {
        const bool isRight = format.side == Qt::AlignRight;
        // What begins at the left keeps its distance from figures before it.
        const sal_Int16 indent = isRight || format.column == 0 ? 0 : textIndent;
        const rtl::OUString names[] = {"HoriJustify", "NumberFormat", "ParaIndent"};
        const uno::Any values[] = {uno::Any(isRight ? table::CellHoriJustify_RIGHT : table::CellHoriJustify_LEFT),
                                   keyOf(known, toUno(format.code)), uno::Any(indent)};
        uno::Reference<com::sun::star::beans::XMultiPropertySet>(columns->getByIndex(format.column),
                                                                 uno::UNO_QUERY_THROW)
            ->setPropertyValues({names, std::size(names)}, {values, std::size(values)});
    }
}

void fitColumns(const Cells& cells, const Block& block)
{
    const uno::Reference<table::XTableColumns> columns = columnsOf(rangeOf(cells, block, 0, 1));
    setProperty(columns, "OptimalWidth", uno::Any(true));
    for (sal_Int32 i = 0; i < columns->getCount(); ++i) {
        const uno::Reference<com::sun::star::beans::XPropertySet> column(columns->getByIndex(i), uno::UNO_QUERY_THROW);
        sal_Int32 width = 0;
        column->getPropertyValue("Width") >>= width;
        column->setPropertyValue("Width", uno::Any(width + columnAir));
    }
}

} // namespace

bool fillSheet(const Document& workbook, const Filling& filling, QPromise<void>& progress)
{
    const uno::Reference<sheet::XSpreadsheetDocument> book(workbook, uno::UNO_QUERY_THROW);
    const uno::Reference<sheet::XSpreadsheets> sheets = book->getSheets();
    if (!sheets->hasByName(toUno(filling.sheet)))
        return false;
    const Cells cells(sheets->getByName(toUno(filling.sheet)), uno::UNO_QUERY_THROW);
    setFormats(workbook, cells, filling.formats);
    int written = 0;
    const auto tell = [&](std::size_t count) { progress.setProgressValue(written += static_cast<int>(count)); };
    bool isFitted = filling.widest.rows.empty();
    for (const Block& block : filling.blocks) {
        writeBlock(cells, block, tell);
        if (isFitted)
            continue;
        writeBlock(cells, filling.widest);
        fitColumns(cells, block);
        isFitted = true;
    }
    for (const Block& title : filling.titles)
        writeBlock(cells, title);
    return true;
}

} // namespace office
