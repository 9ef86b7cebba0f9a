// What people do all day, each with 100,000 jobs in the file: the lists, filters, dialogs, a job opened and saved. Each
// until it is painted, 95 of 100 times.
#include "stopwatch.h"

#include "masterdata/frmAddJob.h"
#include "reports/frmReport.h"
#include "store/connection.h"
#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "submission/frmUpload.h"
#include "values/clock.h"
#include "values/dates.h"
#include "workspace/frmJobs.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

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

void print(const char* what, const std::function<void()>& action)
{
    std::vector<double> times;
    for (int i = 0; i < 105; ++i) {
        times.push_back(median(1, [&] {
            action();
            QCoreApplication::processEvents();
        }));
    }
    // The first ones warm it up.
    times.erase(times.begin(), times.begin() + 5);
    std::ranges::sort(times);
    std::printf("%-46s median %6.2f ms, 95 of 100 %6.2f ms (at most 16 ms)\n", what, times[50], times[94]);
    std::fflush(stdout);
}

template <typename Form, typename... Arguments>
void showForm(Arguments&&... arguments)
{
    Form form(std::forward<Arguments>(arguments)...);
    form.show();
    QCoreApplication::processEvents();
}

void benchLists(workspace::frmJobs& form)
{
    for (const auto& [what, mode] :
         {std::pair("list of a day's jobs", "job"), {"list of 50 clients", "accts"}, {"list of 150 types", "type"}})
        print(what, [&] { form.ShowList(QLatin1String(mode), day, QString()); });
    form.ShowList(QStringLiteral("job"), day, QString());
    auto* range = form.findChild<QRadioButton*>(QStringLiteral("optRange_2"));
    for (const auto& [what, client] : {std::pair("jobs of a month", 0), {"jobs of a month of one client", 1}}) {
        form.findChild<QComboBox*>(QStringLiteral("cmbClient"))->setCurrentIndex(client);
        print(what, [&] {
            range->setChecked(true);
            form.findChild<QPushButton*>(QStringLiteral("cmdList"))->click();
        });
    }
}

void benchJob(workspace::frmJobs& form)
{
    const auto open = [&] { form.OpenJob(98'010, QStringLiteral("A-98010"), 1, day); };
    const auto press = [&](const char* button) { form.findChild<QPushButton*>(QLatin1String(button))->click(); };
    print("a job opened and closed", [&] {
        open();
        QCoreApplication::processEvents();
        press("cmdClose");
    });
    print("a job opened and saved", [&] {
        open();
        QCoreApplication::processEvents();
        press("cmdSave");
    });
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
    benchLists(*shell.form);
    benchJob(*shell.form);
    print("New Job shown", [&] { showForm<masterdata::frmAddJob>(shell, nullptr); });
    print("Submitted shown", [&] { showForm<submission::frmUpload>(shell, nullptr); });
    print("Report Manager shown", [] { showForm<reports::frmReport>(nullptr); });
    return 0;
}
