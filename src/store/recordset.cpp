#include "recordset.h"

#include "storedDate.h"

#include <sqlite3.h>

namespace store {

using values::Fault;
using values::RuntimeError;

namespace {

QByteArrayView textOf(sqlite3_stmt* statement, int column)
{
    return {reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
            sqlite3_column_bytes(statement, column)};
}

} // namespace

Recordset::Recordset(Connection& connection, const QString& statement) : m_statement(connection, statement)
{
    const int columns = sqlite3_column_count(m_statement.handle());
    for (int i = 0; i < columns; ++i) {
        const char* declared = sqlite3_column_decltype(m_statement.handle(), i);
        m_kinds.push_back(declared ? kindOfDeclaredType(declared) : std::nullopt);
    }
    moveNext();
}

void Recordset::moveNext()
{
    m_atEnd = !m_statement.step();
}

Field Recordset::field(int position) const
{
    if (m_atEnd)
        throw RuntimeError(Fault::NoCurrentRecord);
    if (position < 0 || position >= fieldCount())
        throw RuntimeError(Fault::SubscriptOutOfRange);
    RowSet row(m_kinds);
    appendRow(row);
    return row.at(0, position);
}

void Recordset::appendRow(RowSet& rows) const
{
    sqlite3_stmt* statement = m_statement.handle();
    for (int i = 0; i < fieldCount(); ++i) {
        switch (sqlite3_column_type(statement, i)) {
        case SQLITE_INTEGER:
            rows.appendWhole(sqlite3_column_int64(statement, i));
            break;
        case SQLITE_FLOAT:
            rows.appendNumber(sqlite3_column_double(statement, i));
            break;
        case SQLITE_NULL:
            rows.appendNull();
            break;
        default:
            rows.appendText(textOf(statement, i));
        }
    }
}

RowSet Recordset::readAll()
{
    RowSet rows(m_kinds);
    for (; !m_atEnd; moveNext())
        appendRow(rows);
    return rows;
}

} // namespace store
