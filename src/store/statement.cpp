#include "statement.h"

#include "dialect.h"
#include "permissions.h"
#include "storedDate.h"

#include <sqlite3.h>

namespace store {

namespace {

struct Bind {
    int operator()(std::monostate) const { return sqlite3_bind_null(statement, position); }
    int operator()(qint64 number) const { return sqlite3_bind_int64(statement, position, number); }
    int operator()(double number) const { return sqlite3_bind_double(statement, position, number); }
    int operator()(bool yes) const { return sqlite3_bind_int(statement, position, yes); }
    int operator()(const QDateTime& date) const { return bindText(toStoredDate(date)); }
    int operator()(const QString& text) const { return bindText(text.toUtf8()); }
    int bindText(const QByteArray& text) const
    {
        return sqlite3_bind_text(statement, position, text.constData(), static_cast<int>(text.size()),
                                 SQLITE_TRANSIENT);
    }

    sqlite3_stmt* statement;
    int position; // from 1
};

} // namespace

void Statement::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

Statement::Statement(Connection& connection, const QString& text) : m_connection(connection)
{
    const Translation translation = translate(text);
    const Permissions permissions(m_connection.handle());
    prepare(translation.text.toUtf8());
    bind(translation.values);
}

Statement::Statement(Connection& connection, const QByteArray& nativeText, const std::vector<Field::Value>& values)
    : m_connection(connection)
{
    prepare(nativeText);
    bind(values);
}

void Statement::bind(const std::vector<Field::Value>& values)
{
    for (int position = 0; const Field::Value& value : values) {
        if (std::visit(Bind{handle(), ++position}, value) != SQLITE_OK)
            throw m_connection.lastError();
    }
}

void Statement::prepare(const QByteArray& text)
{
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(m_connection.handle(), text.constData(), static_cast<int>(text.size()) + 1,
                                        &statement, nullptr);
    m_statement.reset(statement);
    if (code != SQLITE_OK)
        throw m_connection.lastError();
}

bool Statement::step()
{
    const int code = sqlite3_step(handle());
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        throw m_connection.lastError();
    return code == SQLITE_ROW;
}

} // namespace store
