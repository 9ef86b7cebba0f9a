#pragma once

#include "field.h"
#include "rowSet.h"
#include "schema.h"
#include "statement.h"

#include <optional>
#include <vector>

namespace store {

/// The rows that a select gives, read forward one by one.
class Recordset {
public:
    /// Opens on the first row.
    Recordset(Connection& connection, const QString& statement);

    bool atEnd() const { return m_atEnd; }
    void moveNext();
    int fieldCount() const { return static_cast<int>(m_kinds.size()); }

    /// A value of the current row, by position. Throws NoCurrentRecord at the end, SubscriptOutOfRange past the
    /// columns.
    Field field(int position) const;

    /// All rows from the current one on, to keep after the file is closed.
    RowSet readAll();

private:
    void appendValue(RowSet& rows, int position) const;

    Statement m_statement;
    std::vector<std::optional<ColumnKind>> m_kinds;
    bool m_atEnd = false;
};

/// All rows that a select gives, on a connection of its own.
RowSet readRows(const QString& connectionString, const QString& statement);

} // namespace store
