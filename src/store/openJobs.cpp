#include "openJobs.h"

#include "connectionStrings.h"
#include "dataFiles.h"
#include "statement.h"
#include "storeError.h"

#include "values/programFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace store {

namespace {

QString fileName()
{
    return modMain::ProgramFolder + u"/data/open.mdb"_s;
}

QString asideName()
{
    return fileName() + u".damaged"_s;
}

// A later damaged file replaces an earlier one, which could not be read either. A journal goes with its file: it would
// be applied to the next one.
bool setFileAside()
{
    const QString journal = u"-journal"_s;
    for (const QString& suffix : {journal, QString()})
        QFile::remove(asideName() + suffix);
    QFile::rename(fileName() + journal, asideName() + journal);
    return QFile::rename(fileName(), asideName());
}

template <typename Use>
auto useFile(Use use)
{
    std::optional<Connection> connection;
    try {
        connection.emplace(modMain::openJobsConnectionString(modMain::ProgramFolder));
        return use(*connection);
    } catch (const values::RuntimeError&) {
        const bool isUseless = connection ? isDamaged(connection->handle()) : isTooSmall(fileName());
        connection.reset();
        if (!isUseless || !setFileAside())
            throw;
        throw storeError(StoreFault::Unspecified,
                         u"'%1' is damaged and is now called '%2'. The jobs in it are lost."_s.arg(
                             QDir::toNativeSeparators(fileName()), QFileInfo(asideName()).fileName()));
    }
}

} // namespace

std::vector<OpenJob> readOpenJobs()
{
    if (!QFile::exists(fileName()))
        return {};
    return useFile([](Connection& connection) {
        std::vector<OpenJob> jobs;
        Statement row(connection, "SELECT id, content FROM openjob ORDER BY id", {});
        while (row.step()) {
            const auto* content = reinterpret_cast<const char*>(sqlite3_column_text(row.handle(), 1));
            jobs.push_back({sqlite3_column_int64(row.handle(), 0), QByteArray(content)});
        }
        return jobs;
    });
}

qint64 keepOpenJob(const OpenJob& job)
{
    createOpenJobsFile(modMain::ProgramFolder);
    return useFile([&job](Connection& connection) {
        Statement(connection, "INSERT OR REPLACE INTO openjob (id, content) VALUES (nullif(?, 0), ?)",
                  {job.id, QString::fromUtf8(job.content)})
            .step();
        return qint64{sqlite3_last_insert_rowid(connection.handle())};
    });
}

void forgetOpenJob(qint64 id)
{
    if (!QFile::exists(fileName()))
        return;
    useFile([id](Connection& connection) {
        return Statement(connection, "DELETE FROM openjob WHERE id = ?", {id}).step();
    });
}

} // namespace store
