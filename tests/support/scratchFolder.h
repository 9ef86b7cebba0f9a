#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// A program folder of a test's own with fresh data files, which the connection strings point to.
class ScratchFolder {
public:
    ScratchFolder();

    QString path() const { return m_folder.path(); }
    QString mainFile() const { return m_folder.filePath(QStringLiteral("data/dB.mdb")); }

    /// Runs a statement of the program's dialect on the main data file; throws what the store throws.
    void run(const QString& statement) const;
    /// All rows of a select, each with its fields joined by "|"; a null reads "(null)".
    QStringList rows(const QString& statement) const;

private:
    QTemporaryDir m_folder;
};
