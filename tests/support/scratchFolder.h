#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// All rows of a select in a data file, each with its fields joined by "|"; a null reads "(null)".
QStringList readRows(const QString& connectionString, const QString& statement);

/// A temporary program folder with new data files, to which the connection strings point.
class ScratchFolder {
public:
    ScratchFolder();

    QString path() const { return m_folder.path(); }
    QString mainFile() const { return m_folder.filePath(QStringLiteral("data/dB.mdb")); }

    /// Runs a statement of the program's dialect on the main data file; throws what the store throws.
    void run(const QString& statement) const;
    /// All rows of a select in the main data file.
    QStringList rows(const QString& statement) const;
    void addClient(const QString& name) const { run("insert into jobacct (acctname) values ('" + name + "')"); }
    /// The names of the clients; `rest` continues the select.
    QStringList clients(const QString& rest = {}) const { return rows("select acctname from jobacct " + rest); }

private:
    QTemporaryDir m_folder;
};
