#pragma once

#include "values/runtimeError.h"

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3;

namespace store {

/// Whether the file is a finished data file, or an empty one that is being made.
enum class Opening { Existing, New };

/// Whether a file is smaller than any data file can be: the engine would find neither a table in it nor an error.
bool isTooSmall(const QString& fileName);

/// An open data file. Every routine opens its own and lets it close at the end of its scope.
class Connection {
public:
    /// Opens the file that the connection string names, with the password in it. Never creates the file.
    /// Throws RuntimeError -2147467259. A wrong password shows at the first statement.
    explicit Connection(const QString& connectionString, Opening opening = Opening::Existing);

    /// Runs a statement in the engine's own SQL. Only for the program's own texts, never for typed ones.
    void runNative(const QByteArray& statement);

    /// The path of the file.
    const QString& fileName() const { return m_fileName; }

    /// The handle for calls of the engine.
    sqlite3* handle() const { return m_database.get(); }

    /// The error of the engine's last call.
    values::RuntimeError lastError() const;

private:
    struct Close {
        void operator()(sqlite3* database) const;
    };

    void open(Opening opening);
    void applyKey(const QString& password);

    QString m_fileName;
    std::unique_ptr<sqlite3, Close> m_database;
};

/// The connection string that opens another file with the same password and settings.
QString replaceDataSource(const QString& connectionString, const QString& fileName);

} // namespace store
