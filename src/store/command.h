#pragma once

#include "connection.h"

#include <QString>

namespace store {

/// An insert, update or delete on an open data file.
class Command {
public:
    Command(Connection& connection, const QString& statement);

    /// Runs it. Either all of it is stored when this returns, or nothing is and it throws.
    void execute();

private:
    Connection& m_connection;
    QString m_statement;
};

} // namespace store
