#include "statement.h"

#include "dialect.h"

#include <sqlite3.h>

namespace store {

void Statement::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

Statement::Statement(Connection& connection, const QString& text) : m_connection(connection)
{
    const QByteArray translated = translate(text).toUtf8();
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(connection.handle(), translated.constData(),
                                        static_cast<int>(translated.size()) + 1, &statement, nullptr);
    m_statement.reset(statement);
    if (code != SQLITE_OK)
        throw connection.lastError();
}

bool Statement::step()
{
    const int code = sqlite3_step(handle());
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        throw m_connection.lastError();
    return code == SQLITE_ROW;
}

} // namespace store
