#include "recordset.h"

#include "storedDate.h"

#include <sqlite3.h>

namespace store {

using values::Fault;
using values::RuntimeError;

namespace {

// To ask the value itself is quicker than to ask the statement for its kind, its bytes and its size, and safe because
// one thread alone uses a connection.
sqlite3_value* valueOf(const Statement& statement, int position)
{
    return sqlite3_column_value(statement.handle(), position);
}

QByteArrayView textOf(sqlite3_value* value)
{
    return {reinterpret_cast<const char*>(sqlite3_value_text(value)), sqlite3_value_bytes(value)};
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
    const std::optional<ColumnKind> kind = m_kinds[static_cast<std::size_t>(position)];
    sqlite3_value* value = valueOf(m_statement, position);
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return wholeField(kind, sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return Field(sqlite3_value_double(value));
    case SQLITE_NULL:
        return Field();
    default:
        return textField(kind, textOf(value));
    }
}

void Recordset::appendValue(RowSet& rows, int position) const
{
    sqlite3_value* value = valueOf(m_statement, position);
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        rows.appendWhole(sqlite3_value_int64(value));
        break;
    case SQLITE_FLOAT:
        rows.appendNumber(sqlite3_value_double(value));
        break;
    case SQLITE_NULL:
        rows.appendNull();
        break;
    default:
        rows.appendText(textOf(value));
    }
}

RowSet Recordset::readAll()
{
    RowSet rows(m_kinds);
    for (; !m_atEnd; moveNext()) {
        for (int i = 0; i < fieldCount(); ++i)
            appendValue(rows, i);
    }
    return rows;
}

RowSet readRows(const QString& connectionString, const QString& statement)
{
    Connection connection(connectionString);
    return Recordset(connection, statement).readAll();
}

} // namespace store
