// Long lists: 100,000 and 1,000,000 jobs into the grid until they are shown, beside a bare read of the same rows, and
// what they cost in memory; a day's few jobs among them.
#include "bareStore.h"
#include "stopwatch.h"

#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "store/recordset.h"
#include "values/dates.h"
#include "workspace/frmJobs.h"
#include "workspace/listStatements.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <malloc.h>
#include <unistd.h>

namespace {

class NoShell : public ui::Shell {
public:
    ui::Workspace& workspace() override { qFatal("not used here"); }
    void setMenusEnabled(bool) override {}
};

const QDateTime busyDay = values::dateTime(QDate(2004, 8, 20), QTime(0, 0));
const QDateTime busiestDay = values::dateTime(QDate(2004, 8, 19), QTime(0, 0));
const QDateTime quietDay = values::dateTime(QDate(2004, 8, 21), QTime(0, 0));

// Inserts many jobs of one day with a single statement.
QByteArray manyJobs(int count, const char* day)
{
    return "insert into jobs (jobdate, jobacctid, jobtypeid, jobreference, jobstart, jobchar, joblines, joblength) "
           "with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
           QByteArray::number(count) + ") select '" + day + " 00:00:00', 1, 1, 'A-' || i, '" + day +
           " 14:05:07', 65 * i, i % 100, '1:5:7' from n";
}

void fillData()
{
    store::Connection connection(modMain::DBConnString);
    connection.runNative("insert into jobacct values (1, 'Riverside Clinic');"
                         "insert into accttype values (1, 1, 'Discharge summary', 1.25, 'Line', 65)");
    connection.runNative(manyJobs(100'000, "2004-08-20"));
    connection.runNative(manyJobs(20, "2004-08-21"));
}

double residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

void list(workspace::frmJobs& form, const QDateTime& day)
{
    form.ShowList(QStringLiteral("job"), day, QString());
    QCoreApplication::processEvents();
}

void compareList(const char* what, int rounds, workspace::frmJobs& form, const QString& folder, const QDateTime& day)
{
    const QByteArray statement = "select jobs.id,jobs.jobdate,jobs.jobacctid,jobs.jobtypeid,jobs.jobreference,"
                                 "jobs.jobstart,jobs.joblength,jobs.jobuploaded,jobs.joblines,"
                                 "jobs.joblines * accttype.acctrate from jobs,accttype where "
                                 "jobs.jobtypeid=accttype.id AND jobdate='" +
                                 day.toString(QStringLiteral("yyyy-MM-dd")).toLatin1() +
                                 " 00:00:00' order by jobs.ID asc";
    compare(
        what, rounds, 1.15,
        [&] {
            sqlite3* database = openBare(folder);
            runBare(database, statement.constData());
            closeBare(database);
        },
        [&] { list(form, day); });
}

void printMemory(workspace::frmJobs& form, const QDateTime& day, double rows)
{
    list(form, quietDay);
    malloc_trim(0);
    const double before = residentBytes();
    list(form, day);
    std::printf("%-46s %.0f bytes a cell (at most 40)\n", "  its memory", (residentBytes() - before) / rows / 10);
    std::fflush(stdout);
}

void printShortList()
{
    const double open = median(200, [] {
        store::Connection connection(modMain::DBConnString);
        store::Recordset(connection, QStringLiteral("select acctname from jobacct where id=1")).field(0).toText();
    });
    const double all = median(200, [] {
        store::Connection connection(modMain::DBConnString);
        store::Recordset(connection, workspace::selectJobsOf(quietDay)).readAll();
    });
    std::printf("%-46s open %.3f ms, and the list %.3f ms (at most 5 ms)\n", "a day's 20 jobs among 1,100,020", open,
                all - open);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    store::createDataFiles(folder.path());
    modMain::setConnectionStrings(folder.path());
    fillData();
    NoShell shell;
    workspace::frmJobs form(shell);
    form.resize(1100, 600);
    form.show();
    compareList("list of 100,000 jobs in the grid, shown", 15, form, folder.path(), busyDay);
    printMemory(form, busyDay, 100'000);
    store::Connection(modMain::DBConnString).runNative(manyJobs(1'000'000, "2004-08-19"));
    compareList("list of 1,000,000 jobs", 5, form, folder.path(), busiestDay);
    printMemory(form, busiestDay, 1'000'000);
    printShortList();
    return 0;
}
