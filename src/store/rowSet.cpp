#include "rowSet.h"

#include "storedDate.h"

#include "values/runtimeError.h"

namespace store {

using values::Fault;
using values::RuntimeError;

Field wholeField(std::optional<ColumnKind> kind, qint64 number)
{
    return kind == ColumnKind::YesNo ? Field(number != 0) : Field(number);
}

Field textField(std::optional<ColumnKind> kind, QByteArrayView utf8)
{
    if (kind == ColumnKind::Date) {
        if (const std::optional<QDateTime> date = fromStoredDate(utf8))
            return Field(*date);
    }
    return Field(QString::fromUtf8(utf8));
}

RowSet::RowSet(std::vector<std::optional<ColumnKind>> columns) : m_columns(std::move(columns)) {}

int RowSet::rowCount() const
{
    return m_columns.empty() ? 0 : static_cast<int>(m_cells.size() / m_columns.size());
}

std::size_t RowSet::indexOf(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        throw RuntimeError(Fault::SubscriptOutOfRange);
    return static_cast<std::size_t>(row) * m_columns.size() + static_cast<std::size_t>(column);
}

Field RowSet::at(int row, int column) const
{
    const Cell& cell = m_cells[indexOf(row, column)];
    const std::optional<ColumnKind> kind = m_columns[static_cast<std::size_t>(column)];
    switch (cell.kind) {
    case Kind::Null:
        break;
    case Kind::Number:
        return Field(cell.number);
    case Kind::Text:
        return textField(kind, QByteArrayView(cell.text, cell.length));
    case Kind::Whole:
        return wholeField(kind, cell.whole);
    }
    return Field();
}

void RowSet::removeRow(int row)
{
    const auto first = m_cells.begin() + static_cast<std::ptrdiff_t>(indexOf(row, 0));
    m_cells.erase(first, first + columnCount());
}

void RowSet::appendNull()
{
    m_cells.push_back({.whole = 0, .length = 0, .kind = Kind::Null});
}

void RowSet::appendWhole(qint64 number)
{
    m_cells.push_back({.whole = number, .length = 0, .kind = Kind::Whole});
}

void RowSet::appendNumber(double number)
{
    m_cells.push_back({.number = number, .length = 0, .kind = Kind::Number});
}

void RowSet::appendText(QByteArrayView utf8)
{
    m_cells.push_back({.text = m_texts.add(utf8), .length = static_cast<quint32>(utf8.size()), .kind = Kind::Text});
}

} // namespace store
