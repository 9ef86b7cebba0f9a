#include "reportSheet.h"

namespace reports {

namespace {

constexpr int headingRow = 2;

QString formatCode(Values values)
{
    switch (values) {
    case Values::Text:
        return QStringLiteral("@");
    case Values::Count:
        return QStringLiteral("#,##0");
    case Values::Lines:
        return QStringLiteral("#,##0.00");
    case Values::Rate:
        return QStringLiteral("$#,##0.00##;($#,##0.00##)");
    case Values::Amount:
        return QStringLiteral("$#,##0.00;($#,##0.00)");
    case Values::DateTime:
        return QStringLiteral("m/d/yyyy h:mm:ss AM/PM");
    }
    Q_UNREACHABLE();
}

// Figures stand under each other at the right, all else begins at the left.
Qt::AlignmentFlag sideOf(Values values)
{
    return values == Values::Text || values == Values::DateTime ? Qt::AlignLeft : Qt::AlignRight;
}

office::Cell cellOf(const store::Field& field, Values values)
{
    if (field.isNull())
        return {};
    if (values == Values::Text)
        return field.toText();
    if (values == Values::DateTime)
        return office::dateNumber(field.toDate());
    return field.toDouble();
}

office::Block headings(int firstColumn, const std::vector<Column>& columns)
{
    office::Block block{firstColumn, headingRow, {{}}, true};
    for (const Column& column : columns)
        block.rows.front().emplace_back(column.heading);
    return block;
}

office::Block table(int firstColumn, const std::vector<Column>& columns, const store::RowSet& rows)
{
    office::Block block{firstColumn, headingRow + 1, {}};
    block.rows.resize(static_cast<std::size_t>(rows.rowCount()));
    for (int row = 0; row < rows.rowCount(); ++row) {
        std::vector<office::Cell>& cells = block.rows[static_cast<std::size_t>(row)];
        cells.reserve(columns.size());
        for (int column = 0; column < rows.columnCount(); ++column)
            cells.push_back(cellOf(rows.at(row, column), columns[static_cast<std::size_t>(column)].values));
    }
    return block;
}

} // namespace

office::Filling reportSheet(Kind kind, const QString& title, const QString& text, const std::vector<Column>& columns,
                            const store::RowSet& rows)
{
    const int firstColumn = kind == Kind::Detail ? 0 : 1;
    std::vector<Column> all = columns;
    if (kind == Kind::Detail)
        all.insert(all.begin(), {QStringLiteral("Reference ID"), Values::Text});
    office::Filling filling{.sheet = QStringLiteral("Report"),
                            .blocks = {headings(firstColumn, all), table(firstColumn, all, rows)},
                            .formats = {{0, formatCode(Values::Text)}},
                            .fitsColumns = true,
                            .titles = {{0, 0, {{title + QStringLiteral(" Report")}, {text}}}}};
    for (std::size_t i = 0; i < all.size(); ++i)
        filling.formats.push_back(
            {firstColumn + static_cast<int>(i), formatCode(all[i].values), sideOf(all[i].values)});
    return filling;
}

} // namespace reports
