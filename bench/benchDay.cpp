// What people do all day, with 100,000 jobs in the file: lists, filters, a job opened and saved, forms shown and saved.
#include "stopwatch.h"

#include "about/frmAbout.h"
#include "backup/frmBackup.h"
#include "masterdata/frmAddAcct.h"
#include "masterdata/frmAddJob.h"
#include "masterdata/frmAddType.h"
#include "office/suite.h"
#include "reports/fillReport.h"
#include "reports/frmReport.h"
#include "store/connection.h"
#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "submission/frmUpload.h"
#include "templates/frmCallTemp.h"
#include "values/clock.h"
#include "values/dates.h"
#include "workspace/frmJobs.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>

#include <memory>

namespace {

const QDateTime day = values::dateTime(QDate(2004, 8, 20));

class OneWindow : public ui::Shell {
public:
    ui::Workspace& workspace() override { return *form; }
    void setMenusEnabled(bool) override {}

    std::unique_ptr<workspace::frmJobs> form = std::make_unique<workspace::frmJobs>(*this);
};

// Twenty jobs a day for 5,000 days.
void fillData()
{
    store::Connection(modMain::DBConnString)
        .runNative(
            "insert into jobacct (acctname) with recursive n(i) as (select 1 union all select i + 1 from n where "
            "i < 50) select 'Client ' || i from n;"
            "insert into accttype (acctid, accttype, acctrate, acctunit, acctcharline) with recursive n(i) as "
            "(select 1 union all select i + 1 from n where i < 150) select 1 + i % 50, 'Type ' || i, 0.085, "
            "'Line', 65 from n;"
            "insert into jobs (jobdate, jobacctid, jobtypeid, jobreference, jobstart, jobchar, joblines, "
            "joblength) with recursive n(i) as (select 1 union all select i + 1 from n where i < 100000) select "
            "date('2004-08-20', (i / 20 - 4900) || ' days') || ' 00:00:00', 1 + i % 50, i, 'A-' || i, "
            "'2004-08-20 14:05:07', 65 * i, i % 100, '1:5:7' from n;"
            "update jobs set jobtypeid = 1 + jobtypeid % 150;"
            "update jobs set jobuploaded = '8/16/2004 17:00' where jobdate < '2004-08-01'");
}

// Until it is painted.
void print(
    const char* what, const std::function<void()>& action, const std::function<void()>& prepare = [] {})
{
    constexpr double oneFrame = 16;
    printTimes(
        what, oneFrame,
        [&] {
            action();
            QCoreApplication::processEvents();
        },
        [&] {
            prepare();
            QCoreApplication::processEvents();
        });
}

template <typename Widget>
Widget& find(const QWidget& form, const char* name)
{
    return *form.findChild<Widget*>(QLatin1String(name));
}

void press(const QWidget& form, const char* button)
{
    find<QAbstractButton>(form, button).click();
}

void printLists(workspace::frmJobs& form)
{
    for (const auto& [what, mode] :
         {std::pair("list of a day's jobs", "job"), {"list of 50 clients", "accts"}, {"list of 150 types", "type"}})
        print(what, [&] { form.ShowList(QLatin1String(mode), day, QString()); });
    form.ShowList(QStringLiteral("job"), day, QString());
    auto& client = find<QComboBox>(form, "cmbClient");
    auto& type = find<QComboBox>(form, "cmbAcct");
    const auto printFilter = [&](const char* what) {
        print(
            what, [&] { press(form, "cmdList"); }, [&] { press(form, "optRange_2"); });
    };
    printFilter("jobs of a month");
    client.setCurrentIndex(1);
    printFilter("jobs of a month of one client");
    client.setCurrentIndex(client.count() - 1);
    type.setCurrentIndex(1);
    printFilter("jobs of a month of one type");
}

void printJob(workspace::frmJobs& form)
{
    const auto open = [&] { form.OpenJob(98'010, QStringLiteral("A-98010"), 1, day); };
    print("a job opened", open, [&] { press(form, "cmdClose"); });
    print(
        "a job saved, with the list that follows", [&] { press(form, "cmdSave"); }, open);
    print(
        "a job closed, with the list that follows", [&] { press(form, "cmdClose"); }, open);
    open();
    // Each one is kept.
    auto& characters = find<QLineEdit>(form, "txtChar");
    print("a character typed in Char:", [&] {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QStringLiteral("1"));
        QCoreApplication::sendEvent(&characters, &key);
    });
    press(form, "cmdClose");
}

// Each is a form of its own, filled in before it is saved.
template <typename Form>
void printSave(
    const char* what, ui::Shell& shell, const std::function<void(Form&)>& fillIn,
    const std::function<void()>& prepare = [] {})
{
    std::unique_ptr<Form> form;
    print(
        what, [&] { press(*form, "cmdSave"); },
        [&] {
            prepare();
            form = std::make_unique<Form>(shell, nullptr);
            form->show();
            fillIn(*form);
        });
}

void unmark()
{
    store::Connection(modMain::DBConnString)
        .runNative("update jobs set jobuploaded = '.' where jobdate = '2004-08-20 00:00:00'");
}

void tickAll(submission::frmUpload& form)
{
    auto& dates = find<QComboBox>(form, "cmbDate");
    dates.setCurrentIndex(dates.findText(QStringLiteral("8/20/2004")));
    Q_EMIT dates.activated(dates.currentIndex()); // only a person's choice counts
    find<QListWidget>(form, "List1").selectAll();
}

void printSaves(ui::Shell& shell)
{
    using namespace masterdata;
    printSave<frmAddAcct>("a client saved", shell, [](frmAddAcct& form) { form.PopForm(1); });
    printSave<frmAddType>("a type saved", shell, [](frmAddType& form) { form.PopForm(1); });
    printSave<submission::frmUpload>("20 jobs marked as submitted", shell, tickAll, unmark);
}

template <typename Form, typename... Arguments>
void printForm(const char* what, Arguments&&... arguments)
{
    std::unique_ptr<Form> form;
    print(
        what,
        [&] {
            form = std::make_unique<Form>(std::forward<Arguments>(arguments)...);
            form->show();
        },
        [&] { form.reset(); });
}

void printForms(ui::Shell& shell)
{
    printForm<masterdata::frmAddJob>("New Job shown", shell, nullptr);
    printForm<masterdata::frmAddAcct>("Client shown", shell, nullptr);
    printForm<masterdata::frmAddType>("Type shown", shell, nullptr);
    printForm<submission::frmUpload>("Submitted shown", shell, nullptr);
    printForm<backup::frmBackup>("Backup shown", nullptr);
    printForm<templates::frmCallTemp>("Call Template shown", nullptr);
    printForm<about::frmAbout>("About shown", nullptr);
    // The suite starts beside it the first time.
    reports::prepareReports();
    office::runOnSuite([](office::Bridge&, const QString&, QPromise<void>&) {});
    printForm<reports::frmReport>("Report Manager shown", nullptr);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    store::createDataFiles(folder.path());
    modMain::setConnectionStrings(folder.path());
    values::setClock([] { return day.addSecs(9 * 3600); });
    fillData();
    OneWindow shell;
    shell.form->resize(1100, 600);
    shell.form->show();
    printLists(*shell.form);
    printJob(*shell.form);
    printSaves(shell);
    printForms(shell);
    office::endSuite();
    return 0;
}
