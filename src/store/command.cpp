#include "command.h"

#include "statement.h"

namespace store {

Command::Command(Connection& connection, QString statement)
    : m_connection(connection), m_statement(std::move(statement))
{
}

void Command::execute()
{
    Statement statement(m_connection, m_statement);
    while (statement.step()) {
    }
}

} // namespace store
