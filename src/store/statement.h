#pragma once

#include "connection.h"

#include <QString>

#include <memory>

struct sqlite3_stmt;

namespace store {

/// One statement of the program's dialect, translated and prepared. Command and Recordset are built on it.
class Statement {
public:
    /// Throws RuntimeError when the text is not a statement or names an unknown table or column.
    Statement(Connection& connection, const QString& text);

    /// Goes to the next row; false when there is none.
    bool step();

    sqlite3_stmt* handle() const { return m_statement.get(); }

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };

    void prepare(const QByteArray& text);

    Connection& m_connection;
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

} // namespace store
