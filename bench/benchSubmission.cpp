// Marking 500 jobs of one day through the dialog, beside the same statements in the engine's own calls, each with its
// own open and close; and the list of 10,000 types.
#include "bareStore.h"
#include "stopwatch.h"

#include "store/connection.h"
#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "submission/frmEditJob.h"
#include "submission/frmUpload.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int jobCount = 500;

class ListOnly : public ui::Shell, public ui::Workspace {
public:
    ui::Workspace& workspace() override { return *this; }
    void setMenusEnabled(bool) override {}
    void ShowList(const QString&, const QDateTime&, const QString&) override {}
    void OpenJob(qint32, const QString&, qint16, const QDateTime&) override {}
    void ShowTemplateManager() override {}
};

void fillData()
{
    store::Connection connection(modMain::DBConnString);
    connection.runNative("insert into jobacct values (1, 'Riverside Clinic');"
                         "insert into accttype (acctid, accttype, acctrate, acctunit, acctcharline) "
                         "with recursive n(i) as (select 1 union all select i + 1 from n where i < 10000) "
                         "select 1, 'Type ' || i, 1.25, 'Line', 65 from n;"
                         "insert into jobs (jobdate, jobacctid, jobtypeid, jobreference) "
                         "with recursive n(i) as (select 1 union all select i + 1 from n where i < 500) "
                         "select '2004-08-16 00:00:00', 1, 1, 'A-' || i from n");
}

void unmarkAll()
{
    store::Connection connection(modMain::DBConnString);
    connection.runNative("update jobs set jobuploaded='.'");
}

void markBare(const QString& folder)
{
    unmarkAll();
    for (int i = 1; i <= jobCount; ++i) {
        sqlite3* database = openBare(folder);
        const QByteArray statement =
            "UPDATE jobs set jobuploaded='8/16/2004 12:00' where jobreference='A-" + QByteArray::number(i) + "'";
        runBare(database, statement.constData());
        closeBare(database);
    }
}

void markInDialog()
{
    unmarkAll();
    ListOnly shell;
    submission::frmUpload form(shell, nullptr);
    form.show();
    auto* date = form.findChild<QComboBox*>(QStringLiteral("cmbDate"));
    date->setCurrentIndex(0);
    Q_EMIT date->activated(0); // only a person's choice counts
    form.findChild<QListWidget*>(QStringLiteral("List1"))->selectAll();
    form.findChild<QPushButton*>(QStringLiteral("cmdSave"))->click();
}

void requireAllMarked(const QString& folder)
{
    sqlite3* database = openBare(folder);
    if (runBare(database, "select jobreference from jobs where jobuploaded='8/16/2004 12:00'") != jobCount)
        qFatal("not every job was marked");
    closeBare(database);
}

void showTypes()
{
    submission::frmEditJob form(nullptr);
    form.PopForm(2, QString());
    form.show();
    QCoreApplication::processEvents();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    store::createDataFiles(folder.path());
    modMain::setConnectionStrings(folder.path());
    fillData();
    compare(
        "mark 500 jobs as submitted", 3, 0.45, [&] { markBare(folder.path()); }, markInDialog);
    requireAllMarked(folder.path());
    showTypes();
    std::printf("%-46s %.1f ms (at most 100 ms)\n", "a list of 10,000 types, shown, warm", median(10, showTypes));
    return 0;
}
