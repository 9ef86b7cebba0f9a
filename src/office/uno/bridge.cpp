#include "office/bridge.h"

#include "session.h"

#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/view/XPrintable.hpp>

namespace office {

namespace sheet = com::sun::star::sheet;

namespace {

using Document = uno::Reference<lang::XComponent>;
using Row = uno::Sequence<uno::Any>;

void store(const Document& document, const QString& fileName, const Form& form)
{
    const uno::Reference<com::sun::star::frame::XStorable> storable(document, uno::UNO_QUERY_THROW);
    storable->storeToURL(urlOf(fileName),
                         sequence({property("FilterName", uno::Any(rtl::OUString::createFromAscii(form.filter))),
                                   property("FilterOptions", uno::Any(rtl::OUString::createFromAscii(form.options)))}));
}

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
void fillBlock(const Document& document, const Block& block)
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

/// No error of the suite's own kind leaves this library.
template <typename Verb>
bool guarded(Verb verb)
{
    try {
        return verb();
    } catch (const uno::Exception&) {
        throw SuiteGone();
    }
}

class UnoBridge : public Bridge {
public:
    UnoBridge(const QString& pipeName, const std::atomic<bool>& abandoned) : m_session(pipeName, abandoned) {}

    bool convert(const QString& fileName, const Form& form, const QStringList& targets,
                 const std::vector<Form>& targetForms) override
    {
        return guarded([&] {
            const Document document = m_session.open(fileName, form.filter, form.options);
            if (!document.is())
                return false;
            const ClosedAtEnd closed(document);
            for (std::size_t i = 0; i < targetForms.size(); ++i)
                store(document, targets[static_cast<qsizetype>(i)], targetForms[i]);
            return true;
        });
    }

    bool fill(const QString& templateFile, const Block& block, const QString& target) override
    {
        return guarded([&] {
            const Document document = m_session.open(templateFile, "", "");
            if (!document.is())
                return false;
            const ClosedAtEnd closed(document);
            fillBlock(document, block);
            store(document, target, {"MS Excel 97", ""});
            return true;
        });
    }

    bool show(const QString& fileName, bool print) override
    {
        return guarded([&] {
            const Document document = m_session.show(fileName);
            if (document.is() && print)
                uno::Reference<com::sun::star::view::XPrintable>(document, uno::UNO_QUERY_THROW)
                    ->print(sequence({property("Wait", uno::Any(true))}));
            return document.is();
        });
    }

    bool hasVisibleWindow() override
    {
        return guarded([&] { return m_session.hasVisibleWindow(); });
    }

private:
    Session m_session;
};

} // namespace

} // namespace office

extern "C" office::Bridge* penwrightConnectBridge(const QString& pipeName, const std::atomic<bool>& abandoned)
{
    try {
        return new office::UnoBridge(pipeName, abandoned);
    } catch (const com::sun::star::uno::Exception&) {
        return nullptr;
    }
}
