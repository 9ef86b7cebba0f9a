#include "reportSheet.h"

#include "values/dates.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

constexpr int headingRow = 2;

QString formatCode(Values values)
{
    switch (values) {
    case Values::Text:
        return u"@"_s;
    case Values::Count:
        return u"#,##0"_s;
    case Values::Lines:
        return u"General"_s;
    case Values::Rate:
        return u"$#,##0.00##;($#,##0.00##)"_s;
    case Values::Amount:
        return u"$#,##0.00;($#,##0.00)"_s;
    case Values::DateTime:
        return u"m/d/yyyy h:mm:ss AM/PM"_s;
    }
    Q_UNREACHABLE();
}

// Numbers are aligned right, so that their digits stand below each other.
Qt::AlignmentFlag sideOf(Values values)
{
    return values == Values::Text || values == Values::DateTime ? Qt::AlignLeft : Qt::AlignRight;
}

office::Cell toCell(const store::Field& field, Values values)
{
    if (field.isNull())
        return {};
    if (values == Values::Text)
        return field.toText();
    if (values == Values::DateTime)
        return office::dateNumber(field.toDate());
    return field.toDouble();
}

office::Block makeHeadings(int firstColumn, const std::vector<Column>& columns)
{
    office::Block block{firstColumn, headingRow, {{}}, true};
    for (const Column& column : columns)
        block.rows.front().emplace_back(column.heading);
    return block;
}

office::Block makeTable(int firstColumn, const std::vector<Column>& columns, const store::RowSet& rows)
{
    office::Block block{firstColumn, headingRow + 1, {}};
    block.rows.resize(static_cast<std::size_t>(rows.rowCount()));
    for (int row = 0; row < rows.rowCount(); ++row) {
        std::vector<office::Cell>& cells = block.rows[static_cast<std::size_t>(row)];
        cells.reserve(columns.size());
        for (int column = 0; column < rows.columnCount(); ++column)
            cells.push_back(toCell(rows.at(row, column), columns[static_cast<std::size_t>(column)].values));
    }
    return block;
}

/// The longest texts of a column, the longest first.
std::vector<QString> findLongestTexts(const office::Block& table, std::size_t column, std::size_t count)
{
    std::vector<QString> texts;
    for (const std::vector<office::Cell>& row : table.rows) {
        if (const auto* text = std::get_if<QString>(&row[column]))
            texts.push_back(*text);
    }
    const auto end = texts.begin() + static_cast<std::ptrdiff_t>(std::min(count, texts.size()));
    std::ranges::partial_sort(texts, end, std::ranges::greater(), &QString::size);
    return {texts.begin(), end};
}

/// The largest number and the smallest: a minus sign may make the latter the widest.
std::vector<double> findExtremes(const office::Block& table, std::size_t column)
{
    std::vector<double> numbers{0, 0};
    for (const std::vector<office::Cell>& row : table.rows) {
        if (const auto* number = std::get_if<double>(&row[column])) {
            numbers[0] = std::max(numbers[0], *number);
            numbers[1] = std::min(numbers[1], *number);
        }
    }
    return numbers;
}

/// A few rows as wide as the widest of every column. No date is wider than one late on a late day of December, and no
/// rate is wider than one with four decimals.
office::Block findWidestCells(const office::Block& table, const std::vector<Column>& columns)
{
    constexpr std::size_t maximumSamples = 8;
    constexpr double fourDecimals = 0.8888;
    static const double wideDate = office::dateNumber(values::dateTime({2004, 12, 28}, {22, 58, 58}));
    office::Block widest{table.column, table.row, {}};
    widest.rows.assign(std::min(maximumSamples, table.rows.size()), std::vector<office::Cell>(columns.size()));
    const auto setCells = [&](std::size_t column, const auto& values) {
        for (std::size_t row = 0; row < std::min(values.size(), widest.rows.size()); ++row)
            widest.rows[row][column] = values[row];
    };
    for (std::size_t column = 0; column < columns.size(); ++column) {
        if (columns[column].values == Values::Text) {
            setCells(column, findLongestTexts(table, column, maximumSamples));
        } else if (columns[column].values == Values::DateTime) {
            setCells(column, std::vector<double>{wideDate});
        } else {
            std::vector<double> numbers = findExtremes(table, column);
            if (columns[column].values == Values::Rate)
                numbers[0] = std::floor(numbers[0]) + fourDecimals;
            setCells(column, numbers);
        }
    }
    return widest;
}

} // namespace

office::SheetContent makeReportSheet(Kind kind, const QString& title, const QString& text,
                                     const std::vector<Column>& columns, const store::RowSet& rows)
{
    const int firstColumn = kind == Kind::Detail ? 0 : 1;
    std::vector<Column> all = columns;
    if (kind == Kind::Detail)
        all.insert(all.begin(), {u"Reference ID"_s, Values::Text});
    office::SheetContent content{.sheet = u"Report"_s,
                                 .blocks = {makeHeadings(firstColumn, all), makeTable(firstColumn, all, rows)},
                                 .formats = {{0, formatCode(Values::Text)}},
                                 .titles = {{0, 0, {{title + u" Report"_s}, {text}}}}};
    for (std::size_t i = 0; i < all.size(); ++i)
        content.formats.push_back(
            {firstColumn + static_cast<int>(i), formatCode(all[i].values), sideOf(all[i].values)});
    content.widest = findWidestCells(content.blocks.back(), all);
    return content;
}

} // namespace reports
