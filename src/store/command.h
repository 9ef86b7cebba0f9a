#pragma once

#include "connection.h"

#include <QString>

namespace store {

/// An insert, update or delete on an open data file.
class Command {
public:
    Command(Connection& connection, QString statement);

    /// Runs the statement: either all of its changes are stored, or none is and this throws.
    void execute();

private:
    Connection& m_connection;
    QString m_statement;
};

} // namespace store
