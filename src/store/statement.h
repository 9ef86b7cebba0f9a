#pragma once

#include "connection.h"
#include "field.h"

#include <QString>

#include <memory>
#include <vector>

struct sqlite3_stmt;

namespace store {

/// One statement, prepared; of the program's dialect as a rule, which is translated first. Command and Recordset are
/// built on it.
class Statement {
public:
    /// Throws RuntimeError when the text is not a statement or names an unknown table or column.
    Statement(Connection& connection, const QString& text);
    /// One in the engine's own SQL, a text of the program, with values for its question marks.
    Statement(Connection& connection, const QByteArray& nativeText, const std::vector<Field::Value>& values);

    /// Goes to the next row; false when there is none.
    bool step();

    sqlite3_stmt* handle() const { return m_statement.get(); }

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };

    void prepare(const QByteArray& text);
    void bind(const std::vector<Field::Value>& values);

    Connection& m_connection;
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

} // namespace store
