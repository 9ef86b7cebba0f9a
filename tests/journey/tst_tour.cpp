// The main road from the first client to a billed job, by real keys and clicks. Leaves a picture of every window.
#include "journey.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

class Tour : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(start(m_folder.path())); }
    void startShowsAnEmptyWindow();
    void addClients();
    void addTypes();
    void openNewJob();
    void timeAndTypeTheJob();
    void saveAndFindIt();
    void filterTheJobs();
    void openItFromTheGrid();
    void openItByKeyboard();
    void correctTheJob();
    void submitJobs();
    void warnOfDoubleClicks();
    void askBeforeDeleting();
    void correctAndDeleteMasterData();
    void backUp();
    void exitWithAnOpenJob();

private:
    void addClient(const QString& name);
    void openEditor(int label, const QString& picture);
    void apply(int index);
};

void Tour::startShowsAnEmptyWindow()
{
    QVERIFY(play([&] {
        m_user->waitForTitle("Penwright");
        m_user->takePicture("main");
        m_user->choose({"Data", "Jobs"});
        m_user->takePicture("menu");
        m_user->press("Escape Escape Escape");
    }));
}

void Tour::addClient(const QString& name)
{
    m_user->choose({"Data", "Clients", "Add"});
    m_user->waitForWindow("frmAddAcct");
    m_user->type(name);
    m_user->takePicture("client");
    m_user->press("Return");
    m_user->waitForNoWindow();
}

void Tour::addClients()
{
    QVERIFY(play([&] {
        addClient("Riverside Clinic");
        m_user->waitForTitle("Penwright - [Clients List]");
        addClient("Law Office Harbour Street");
        addClient("Dr. Obi & Partners");
        m_user->takePicture("clients");
    }));
    QCOMPARE(m_folder.rows("select id,acctname from jobacct"),
             QStringList({"1|Riverside Clinic", "2|Law Office Harbour Street", "3|Dr. Obi & Partners"}));
}

void Tour::addTypes()
{
    QVERIFY(play([&] {
        m_user->choose({"Data", "Acct/type", "Add"});
        m_user->waitForWindow("frmAddType");
        m_user->press("alt+l Down Tab");
        m_user->type("Discharge summary\t1.25\t");
        m_user->press("Tab");
        m_user->press("alt+s");
        m_user->waitForWindow("Please enter how many characters constitute a line.");
        m_user->takePicture("message");
        m_user->press("Return");
        m_user->waitForWindow("frmAddType");
        m_user->type("65");
        m_user->takePicture("type");
        m_user->press("Return");
        m_user->waitForTitle("Penwright - [Job Type List]");
        m_user->waitForNoWindow();
        m_user->takePicture("types");
    }));
    QCOMPARE(m_folder.rows("select * from accttype"), QStringList{"1|1|Discharge summary|1.25|Line|65"});
}

void Tour::openNewJob()
{
    QVERIFY(play([&] {
        m_user->press("F6");
        m_user->waitForWindow("frmAddJob");
        m_user->press("Tab");
        m_user->type("riverside clinic\tdischarge summary\tA-114");
        m_user->takePicture("new-job");
        m_user->press("Return");
        m_user->waitForText("lblJob_10", "A-114");
        m_user->waitForNoWindow();
    }));
}

void Tour::timeAndTypeTheJob()
{
    QVERIFY(play([&] {
        m_user->click("cmdStart");
        m_user->waitForText("cmdStart", "Pause");
        m_user->waitForText("lblSec", "2");
        m_user->click("txtChar");
        m_user->type("1000\t");
        m_user->waitForText("lblJob_5", "15");
        m_user->waitForText("lblJobTotal", "$18.75");
        m_user->takePicture("job-panel");
        m_user->click("cmdStop");
        m_user->waitForText("cmdStart", "Start");
    }));
}

void Tour::saveAndFindIt()
{
    QVERIFY(play([&] {
        m_user->click("cmdSave");
        m_user->waitForTitle("Penwright - [Job List]");
        m_user->waitForText("txtTotal", "$18.75");
        m_user->waitForText("txtCount", "1");
        m_user->takePicture("jobs");
    }));
    const QStringList job =
        m_folder.rows("select jobreference,jobchar,joblines,jobuploaded,joblength from jobs where id=1");
    QVERIFY2(job.first().startsWith("A-114|1000|15|.|0:"), qPrintable(job.first()));
}

void Tour::filterTheJobs()
{
    for (int i = 0; i < 30; ++i) {
        m_folder.run(u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,jobchar,joblines,jobstart,"
                     "joblength,jobuploaded)values(#12/%1/2003#,1,1,'B-%2',%3,%4,#12/%1/2003 11:05:07 AM#,"
                     "'1:5:%1','12/%1/2003 12:00')"_s.arg(i + 1)
                         .arg(200 + i)
                         .arg(65000 + 65 * i)
                         .arg(1000 + i));
    }
    QVERIFY(play([&] {
        m_user->press("alt+o Tab");
        m_user->type("12/1/2003");
        m_user->click("cmdList");
        m_user->waitForText("txtCount", "31");
        m_user->takePicture("jobs-filtered");
        m_user->click("cmdList");
        m_user->waitForText("txtCount", "1");
    }));
}

void Tour::openItFromTheGrid()
{
    QVERIFY(play([&] {
        m_user->clickCell(0, 0);
        m_user->waitForText("lblJob_10", "A-114");
        m_user->waitForText("lblJobTotal", "$18.75");
        m_user->press("F7");
        m_user->choose({"Help"});
        m_user->takePicture("job-locked-menus");
        m_user->press("Escape Escape");
        m_user->click("cmdClose");
        m_user->waitForText("txtCount", "1");
    }));
}

void Tour::openItByKeyboard()
{
    QVERIFY(play([&] {
        m_user->press("F7");
        m_user->press("Return");
        m_user->waitForText("lblJob_10", "A-114");
        m_user->press("alt+l");
        m_user->waitForText("txtCount", "1");
    }));
}

void Tour::openEditor(int label, const QString& picture)
{
    m_user->click(u"lblJob_%1"_s.arg(label));
    m_user->waitForWindow("frmEditJob");
    m_user->takePicture(picture);
}

void Tour::apply(int index)
{
    m_user->click(u"cmdApply_%1"_s.arg(index));
    m_user->waitForNoWindow();
}

void Tour::correctTheJob()
{
    m_folder.run("insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)"
                 "values(2,'Dictated letters and memoranda',12.5,0,'Report')");
    QVERIFY(play([&] {
        m_user->clickCell(0, 0);
        openEditor(10, "edit-reference");
        m_user->type("A-115");
        apply(10);
        m_user->waitForText("lblJob_10", "A-115");
        openEditor(8, "edit-length");
        m_user->type("1\t05\t30");
        apply(8);
        m_user->waitForText("lblJob_8", "1:05:30");
        openEditor(7, "edit-start");
        m_user->type("08/20/2004\t2:05 PM");
        apply(7);
        m_user->waitForText("lblJob_7", "8/20/2004 2:05:00 PM");
        openEditor(9, "edit-submitted");
        m_user->press("Escape");
        m_user->waitForNoWindow();
        openEditor(0, "edit-date");
        m_user->type("soon\t");
        m_user->waitForWindow("Please insert a date in this field.");
        m_user->press("Return");
        m_user->waitForWindow("frmEditJob");
        m_user->press("Escape");
        m_user->waitForNoWindow();
        openEditor(2, "edit-type");
        m_user->press("Down Return");
        m_user->waitForText("lblJob_3", "Report");
        m_user->waitForNoWindow();
        m_user->takePicture("job-panel-report");
        m_user->click("cmdSave");
        m_user->waitForText("txtCount", "1");
    }));
    // Changing the type works out no lines and no total.
    QCOMPARE(m_folder.rows("select jobacctid,jobtypeid,jobreference,jobstart,joblines from jobs where id=1"),
             QStringList{"2|2|A-115|8/20/2004 2:05:00 PM|15"});
}

void Tour::submitJobs()
{
    for (const QString reference : {"C-1", "C-2", "C-3"}) {
        m_folder.run(u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(#8/16/2004#,1,1,'"_s +
                     reference + "')");
    }
    QVERIFY(play([&] {
        m_user->press("F8");
        m_user->waitForWindow("frmUpload");
        m_user->press("Home alt+j space Down Down space");
        m_user->takePicture("submit");
        m_user->press("alt+s");
        m_user->waitForText("txtDate", "8/16/2004");
        m_user->takePicture("submit-partly");
        m_user->press("alt+j ctrl+a Return");
        m_user->waitForNoWindow();
        m_user->waitForText("txtCount", "3");
        m_user->press("F7");
        m_user->waitForText("txtCount", "1");
    }));
    QCOMPARE(m_folder.rows("select jobuploaded from jobs where jobdate=#8/16/2004#"),
             QStringList(3, "8/16/2004 12:00"));
}

// The second press of the gesture lands on what the first one opened: the job panel, or a window behind a dialog.
void Tour::warnOfDoubleClicks()
{
    const QString warning = "Slow down on the mouse clicks there!\nPlease use single clicks only.";
    QVERIFY(play([&] {
        m_user->clickCell(0, 0, 2);
        m_user->waitForWindow(warning);
        m_user->takePicture("slow-down");
        m_user->press("Return");
        m_user->waitForNoWindow();
        m_user->waitForText("lblJob_10", "A-115");
        m_user->click("cmdClose");
        m_user->choose({"Data", "Clients", "List"});
        m_user->waitForTitle("Penwright - [Clients List]");
        m_user->clickCell(2, 0, 2);
        m_user->waitForWindow(warning);
        m_user->press("Return");
        m_user->waitForWindow("frmAddAcct");
        m_user->takePicture("client-edit");
        m_user->press("Escape");
        m_user->waitForNoWindow();
    }));
}

void Tour::askBeforeDeleting()
{
    QVERIFY(play([&] {
        m_user->press("Delete");
        m_user->waitForWindow("Are you sure?");
        m_user->takePicture("delete-row");
        m_user->press("Return");
        m_user->waitForNoWindow();
    }));
    QCOMPARE(m_folder.rows("select count(*) from jobacct"), QStringList{"3"});
}

void Tour::correctAndDeleteMasterData()
{
    QVERIFY(play([&] {
        m_user->clickCell(1, 0);
        m_user->waitForWindow("frmAddAcct");
        m_user->type("Law Office Ferry Lane");
        m_user->press("Return");
        m_user->waitForNoWindow();
        m_user->clickCell(2, 0);
        m_user->waitForWindow("frmAddAcct");
        m_user->click("cmdDelete");
        m_user->waitForWindow("Are you sure you want to delete this client?");
        m_user->takePicture("delete-client");
        m_user->press("alt+y");
        m_user->waitForNoWindow();
        m_user->choose({"Data", "Acct/type", "List"});
        m_user->clickCell(0, 0);
        m_user->waitForWindow("frmAddType");
        m_user->takePicture("type-edit");
        m_user->press("Escape");
        m_user->waitForNoWindow();
    }));
    QCOMPARE(m_folder.rows("select acctname from jobacct"), QStringList({"Riverside Clinic", "Law Office Ferry Lane"}));
}

void Tour::backUp()
{
    // The documents folder of this user.
    qputenv("HOME", QFile::encodeName(m_folder.path()));
    for (const char* folder : {"reports", "templates"})
        QDir(m_folder.path()).mkpath(QLatin1String(folder));
    const QString copy =
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/PWR Backup/data/dB.mdb";
    QVERIFY(play([&] {
        m_user->choose({"File", "Backup"});
        m_user->waitForWindow("frmBackup");
        m_user->takePicture("backup-not-set");
        // Leaving it once stores the default folder.
        m_user->click("cmdClose");
        m_user->waitForNoWindow();
        m_user->choose({"File", "Backup"});
        m_user->waitForWindow("frmBackup");
        m_user->takePicture("backup");
        m_user->click("cmdBackup");
        m_user->waitForWindow("Backup was successful.");
        m_user->press("Return");
        m_user->waitForNoWindow();
    }));
    QVERIFY2(QFile::exists(copy), qPrintable(copy));
}

void Tour::exitWithAnOpenJob()
{
    QVERIFY(play([&] {
        m_user->press("F7");
        m_user->clickCell(0, 0);
        m_user->waitForText("lblJob_10", "A-115");
        m_user->press("alt+F4");
        m_user->waitFor("the end", [&] { return m_ends == QList<int>({EXIT_SUCCESS}); });
    }));
}

int main(int argc, char* argv[])
{
    return runJourney<Tour>(argc, argv);
}

#include "tst_tour.moc"
