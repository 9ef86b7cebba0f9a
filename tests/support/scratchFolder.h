#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// All rows of a select in a data file, each with its fields joined by "|"; a null reads "(null)".
QStringList rowsOf(const QString& connectionString, const QString& statement);

/// A program folder of a test's own with fresh data files, which the connection strings point to.
class ScratchFolder {
public:
    ScratchFolder();

    QString path() const { return m_folder.path(); }
    QString mainFile() const { return m_folder.filePath(QStringLiteral("data/dB.mdb")); }

    /// Runs a statement of the program's dialect on the main data file; throws what the store throws.
    void run(const QString& statement) const;
    /// All rows of a select in the main data file.
    QStringList rows(const QString& statement) const;
    void addClient(const QString& name) const;
    /// The names of the clients that the rest of the select chooses.
    QStringList clients(const QString& rest = {}) const;

private:
    QTemporaryDir m_folder;
};
