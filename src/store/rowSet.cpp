#include "rowSet.h"

#include "storedDate.h"

#include "values/runtimeError.h"

namespace store {

using values::Fault;
using values::RuntimeError;

RowSet::RowSet(std::vector<std::optional<ColumnKind>> columns) : m_columns(std::move(columns)) {}

int RowSet::rowCount() const
{
    return m_columns.empty() ? 0 : static_cast<int>(m_cells.size() / m_columns.size());
}

qsizetype RowSet::indexOf(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        throw RuntimeError(Fault::SubscriptOutOfRange);
    return static_cast<qsizetype>(row) * columnCount() + column;
}

Field RowSet::at(int row, int column) const
{
    const Cell& cell = m_cells[static_cast<std::size_t>(indexOf(row, column))];
    switch (cell.kind) {
    case Kind::Null:
        return Field();
    case Kind::Number:
        return Field(cell.number);
    case Kind::Text:
        return textField(cell, column);
    case Kind::Whole:
        break;
    }
    if (m_columns[static_cast<std::size_t>(column)] == ColumnKind::YesNo)
        return Field(cell.whole != 0);
    return Field(cell.whole);
}

Field RowSet::textField(const Cell& cell, int column) const
{
    const QByteArrayView text = QByteArrayView(m_texts).sliced(cell.offset, cell.length);
    if (m_columns[static_cast<std::size_t>(column)] == ColumnKind::Date) {
        if (const std::optional<QDateTime> date = fromStoredDate(text))
            return Field(*date);
    }
    return Field(QString::fromUtf8(text));
}

void RowSet::removeRow(int row)
{
    const auto first = m_cells.begin() + indexOf(row, 0);
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
    m_cells.push_back({.offset = m_texts.size(), .length = static_cast<quint32>(utf8.size()), .kind = Kind::Text});
    m_texts.append(utf8);
}

} // namespace store
