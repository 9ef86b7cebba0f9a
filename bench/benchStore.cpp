// One read and one save, each with its own open and close, beside the same in the engine's own calls.
#include "bareStore.h"
#include "stopwatch.h"

#include "store/command.h"
#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "store/recordset.h"

#include <QTemporaryDir>

namespace {

void fillData()
{
    store::Connection connection(modMain::DBConnString);
    connection.runNative("insert into jobacct values (1, 'Riverside Clinic');"
                         "insert into accttype values (1, 1, 'Discharge summary', 1.25, 'Line', 65);"
                         "insert into jobs (jobdate, jobacctid, jobtypeid, jobreference) values "
                         "('2004-08-20 00:00:00', 1, 1, 'A-114')");
}

void benchRead(const QString& folder)
{
    compare(
        "open, read one row, close", 500, 0.15,
        [&] {
            sqlite3* database = openBare(folder);
            runBare(database, "select acctname from jobacct where id=1");
            closeBare(database);
        },
        [] {
            store::Connection connection(modMain::DBConnString);
            store::Recordset(connection, QStringLiteral("select acctname from jobacct where id=1")).field(0).toText();
        });
}

void benchSave(const QString& folder)
{
    compare(
        "one save", 200, 0.45,
        [&] {
            sqlite3* database = openBare(folder);
            runBare(database,
                    "UPDATE jobs set jobdate='2004-08-20 00:00:00',jobacctid=1,jobtypeid=1,jobreference='A-114',"
                    "jobstart='2004-08-20 14:05:00',jobchar=5210,joblines=80,joblength='1:5:7',jobuploaded='.' "
                    "where id=1");
            closeBare(database);
        },
        [] {
            store::Connection connection(modMain::DBConnString);
            store::Command(connection, QStringLiteral("UPDATE jobs set jobdate=#8/20/2004#,jobacctid=1,jobtypeid=1,"
                                                      "jobreference='A-114',jobstart=#8/20/2004 14:05#,jobchar=5210,"
                                                      "joblines=80,joblength='1:5:7',jobuploaded='.' where id=1"))
                .execute();
        });
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    store::createDataFiles(folder.path());
    modMain::setConnectionStrings(folder.path());
    fillData();
    benchRead(folder.path());
    benchSave(folder.path());
    return 0;
}
