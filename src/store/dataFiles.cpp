#include "dataFiles.h"

#include "connection.h"
#include "connectionStrings.h"
#include "schema.h"
#include "storedDate.h"

#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace store {

namespace {

using Statements = std::vector<QByteArray>;

Statements mainStatements()
{
    Statements statements;
    for (const Table& table : mainTables())
        statements.push_back(createTableStatement(table));
    for (const QByteArray& index : indexStatements())
        statements.push_back(index);
    return statements;
}

Statements backupStatements()
{
    const QByteArray today = toStoredDate(values::dateTime(values::today()));
    return {createTableStatement(backupTable()),
            "INSERT INTO bu (id, freq, lastbu, path, dobackup) VALUES (1, 7, '" + today + "', 'Not set', 0)"};
}

[[noreturn]] void throwWriteError(const QString& fileName)
{
    throw values::RuntimeError(static_cast<int>(values::Fault::PathFileAccess),
                               u"Could not make '%1'. See that you may write there and that the disk is not "
                               "full."_s.arg(QDir::toNativeSeparators(fileName)));
}

void createEmptyFile(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
        throwWriteError(fileName);
}

// Made in a temporary folder and moved when it is complete, so that an interruption never leaves half a data file.
// Moving it never replaces a file.
void createFile(const QString& programFolder, const QString& name, QString (*connectionString)(const QString&),
                const Statements& statements)
{
    const QString fileName = programFolder + u"/data/"_s + name;
    if (QFile::exists(fileName))
        return;
    const QTemporaryDir temporaryFolder(programFolder + u"/making-XXXXXX"_s);
    if (!temporaryFolder.isValid() || !QDir(temporaryFolder.path()).mkdir(u"data"_s))
        throwWriteError(fileName);
    const QString temporaryFile = temporaryFolder.filePath(u"data/"_s + name);
    createEmptyFile(temporaryFile);
    {
        Connection connection(connectionString(temporaryFolder.path()), Opening::New);
        connection.runNative("BEGIN");
        for (const QByteArray& statement : statements)
            connection.runNative(statement);
        connection.runNative("COMMIT");
    }
    if (!QFile::rename(temporaryFile, fileName) && !QFile::exists(fileName))
        throwWriteError(fileName);
}

} // namespace

void createDataFiles(const QString& programFolder)
{
    const QDir folder(programFolder);
    const QString data = u"data"_s;
    if (!folder.exists(data) && !folder.mkdir(data, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
        throwWriteError(folder.filePath(data));
    createFile(programFolder, u"dB.mdb"_s, modMain::mainConnectionString, mainStatements());
    createFile(programFolder, u"BU.mdb"_s, modMain::backupConnectionString, backupStatements());
}

void createOpenJobsFile(const QString& programFolder)
{
    createFile(programFolder, u"open.mdb"_s, modMain::openJobsConnectionString,
               {createTableStatement(openJobsTable())});
}

} // namespace store
