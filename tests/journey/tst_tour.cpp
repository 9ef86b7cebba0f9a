// The main road from the first client to a billed job, by real keys and clicks. Leaves a picture of every window.
#include "user.h"

#include "app/start.h"
#include "support/scratchFolder.h"
#include "ui/eventGuard.h"

#include <QDir>
#include <QStandardPaths>
#include <QTest>

class Tour : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
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
    void play(const std::function<void()>& story) { QCOMPARE(m_user->play(story), QString()); }
    void addClient(const QString& name);
    void openEditor(int label, const QString& picture);
    void apply(int index);

    ScratchFolder m_folder;
    QList<int> m_ends;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<User> m_user;
};

void Tour::initTestCase()
{
    QString pictures = QStringLiteral(TOUR_FOLDER);
    if (qApp->devicePixelRatio() > 1)
        pictures += QStringLiteral("/150");
    m_user = std::make_unique<User>(pictures);
    // The end of the program shall not be that of the test.
    ui::setProgramEnd([this](int code) { m_ends << code; });
    m_window = modMain::Main(m_folder.path());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void Tour::startShowsAnEmptyWindow()
{
    play([&] {
        m_user->waitForTitle(QStringLiteral("Penwright"));
        m_user->takePicture(QStringLiteral("main"));
        m_user->choose({QStringLiteral("Data"), QStringLiteral("Jobs")});
        m_user->takePicture(QStringLiteral("menu"));
        m_user->press(QStringLiteral("Escape Escape Escape"));
    });
}

void Tour::addClient(const QString& name)
{
    m_user->choose({QStringLiteral("Data"), QStringLiteral("Clients"), QStringLiteral("Add")});
    m_user->waitForWindow(QStringLiteral("frmAddAcct"));
    m_user->type(name);
    m_user->takePicture(QStringLiteral("client"));
    m_user->press(QStringLiteral("Return"));
    m_user->waitForNoWindow();
}

void Tour::addClients()
{
    play([&] {
        addClient(QStringLiteral("Riverside Clinic"));
        m_user->waitForTitle(QStringLiteral("Penwright - [Clients List]"));
        addClient(QStringLiteral("Law Office Harbour Street"));
        addClient(QStringLiteral("Dr. Obi & Partners"));
        m_user->takePicture(QStringLiteral("clients"));
    });
    QCOMPARE(m_folder.rows(QStringLiteral("select id,acctname from jobacct")),
             QStringList({QStringLiteral("1|Riverside Clinic"), QStringLiteral("2|Law Office Harbour Street"),
                          QStringLiteral("3|Dr. Obi & Partners")}));
}

void Tour::addTypes()
{
    play([&] {
        m_user->choose({QStringLiteral("Data"), QStringLiteral("Acct/type"), QStringLiteral("Add")});
        m_user->waitForWindow(QStringLiteral("frmAddType"));
        m_user->press(QStringLiteral("alt+l Down Tab"));
        m_user->type(QStringLiteral("Discharge summary\t1.25\t"));
        m_user->press(QStringLiteral("Tab"));
        m_user->press(QStringLiteral("alt+s"));
        m_user->waitForWindow(QStringLiteral("Please enter how many characters constitute a line."));
        m_user->takePicture(QStringLiteral("message"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForWindow(QStringLiteral("frmAddType"));
        m_user->type(QStringLiteral("65"));
        m_user->takePicture(QStringLiteral("type"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForTitle(QStringLiteral("Penwright - [Job Type List]"));
        m_user->waitForNoWindow();
        m_user->takePicture(QStringLiteral("types"));
    });
    QCOMPARE(m_folder.rows(QStringLiteral("select * from accttype")),
             QStringList(QStringLiteral("1|1|Discharge summary|1.25|Line|65")));
}

void Tour::openNewJob()
{
    play([&] {
        m_user->press(QStringLiteral("F6"));
        m_user->waitForWindow(QStringLiteral("frmAddJob"));
        m_user->press(QStringLiteral("Tab"));
        m_user->type(QStringLiteral("riverside clinic\tdischarge summary\tA-114"));
        m_user->takePicture(QStringLiteral("new-job"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForText(QStringLiteral("lblJob_10"), QStringLiteral("A-114"));
        m_user->waitForNoWindow();
    });
}

void Tour::timeAndTypeTheJob()
{
    play([&] {
        m_user->click(QStringLiteral("cmdStart"));
        m_user->waitForText(QStringLiteral("cmdStart"), QStringLiteral("Pause"));
        m_user->waitForText(QStringLiteral("lblSec"), QStringLiteral("2"));
        m_user->click(QStringLiteral("txtChar"));
        m_user->type(QStringLiteral("1000\t"));
        m_user->waitForText(QStringLiteral("lblJob_5"), QStringLiteral("15"));
        m_user->waitForText(QStringLiteral("lblJobTotal"), QStringLiteral("$18.75"));
        m_user->takePicture(QStringLiteral("job-panel"));
        m_user->click(QStringLiteral("cmdStop"));
        m_user->waitForText(QStringLiteral("cmdStart"), QStringLiteral("Start"));
    });
}

void Tour::saveAndFindIt()
{
    play([&] {
        m_user->click(QStringLiteral("cmdSave"));
        m_user->waitForTitle(QStringLiteral("Penwright - [Job List]"));
        m_user->waitForText(QStringLiteral("txtTotal"), QStringLiteral("$18.75"));
        m_user->waitForText(QStringLiteral("txtCount"), QStringLiteral("1"));
        m_user->takePicture(QStringLiteral("jobs"));
    });
    const QStringList job = m_folder.rows(
        QStringLiteral("select jobreference,jobchar,joblines,jobuploaded,joblength from jobs where id=1"));
    QVERIFY2(job.first().startsWith(QStringLiteral("A-114|1000|15|.|0:")), qPrintable(job.first()));
}

void Tour::filterTheJobs()
{
    for (int i = 0; i < 30; ++i) {
        m_folder.run(
            QStringLiteral("insert into jobs(jobdate,jobacctid,jobtypeid,jobreference,jobchar,joblines,jobstart,"
                           "joblength,jobuploaded)values(#12/%1/2003#,1,1,'B-%2',%3,%4,#12/%1/2003 11:05:07 AM#,"
                           "'1:5:%1','12/%1/2003 12:00')")
                .arg(i + 1)
                .arg(200 + i)
                .arg(65000 + 65 * i)
                .arg(1000 + i));
    }
    play([&] {
        m_user->press(QStringLiteral("alt+o Tab"));
        m_user->type(QStringLiteral("12/1/2003"));
        m_user->click(QStringLiteral("cmdList"));
        m_user->waitForText(QStringLiteral("txtCount"), QStringLiteral("31"));
        m_user->takePicture(QStringLiteral("jobs-filtered"));
        m_user->click(QStringLiteral("cmdList"));
        m_user->waitForText(QStringLiteral("txtCount"), QStringLiteral("1"));
    });
}

void Tour::openItFromTheGrid()
{
    play([&] {
        m_user->clickCell(0, 0);
        m_user->waitForText(QStringLiteral("lblJob_10"), QStringLiteral("A-114"));
        m_user->waitForText(QStringLiteral("lblJobTotal"), QStringLiteral("$18.75"));
        m_user->press(QStringLiteral("F7"));
        m_user->choose({QStringLiteral("Help")});
        m_user->takePicture(QStringLiteral("job-locked-menus"));
        m_user->press(QStringLiteral("Escape Escape"));
        m_user->click(QStringLiteral("cmdClose"));
        m_user->waitForText(QStringLiteral("txtCount"), QStringLiteral("1"));
    });
}

void Tour::openItByKeyboard()
{
    play([&] {
        m_user->press(QStringLiteral("F7"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForText(QStringLiteral("lblJob_10"), QStringLiteral("A-114"));
        m_user->press(QStringLiteral("alt+l"));
        m_user->waitForText(QStringLiteral("txtCount"), QStringLiteral("1"));
    });
}

void Tour::openEditor(int label, const QString& picture)
{
    m_user->click(QStringLiteral("lblJob_%1").arg(label));
    m_user->waitForWindow(QStringLiteral("frmEditJob"));
    m_user->takePicture(picture);
}

void Tour::apply(int index)
{
    m_user->click(QStringLiteral("cmdApply_%1").arg(index));
    m_user->waitForNoWindow();
}

void Tour::correctTheJob()
{
    m_folder.run(QStringLiteral("insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)"
                                "values(2,'Dictated letters and memoranda',12.5,0,'Report')"));
    play([&] {
        m_user->clickCell(0, 0);
        openEditor(10, QStringLiteral("edit-reference"));
        m_user->type(QStringLiteral("A-115"));
        apply(10);
        m_user->waitForText(QStringLiteral("lblJob_10"), QStringLiteral("A-115"));
        openEditor(8, QStringLiteral("edit-length"));
        m_user->type(QStringLiteral("1\t05\t30"));
        apply(8);
        m_user->waitForText(QStringLiteral("lblJob_8"), QStringLiteral("1:05:30"));
        openEditor(7, QStringLiteral("edit-start"));
        m_user->type(QStringLiteral("08/20/2004\t2:05 PM"));
        apply(7);
        m_user->waitForText(QStringLiteral("lblJob_7"), QStringLiteral("8/20/2004 2:05:00 PM"));
        openEditor(9, QStringLiteral("edit-submitted"));
        m_user->press(QStringLiteral("Escape"));
        m_user->waitForNoWindow();
        openEditor(0, QStringLiteral("edit-date"));
        m_user->type(QStringLiteral("soon\t"));
        m_user->waitForWindow(QStringLiteral("Please insert a date in this field."));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForWindow(QStringLiteral("frmEditJob"));
        m_user->press(QStringLiteral("Escape"));
        m_user->waitForNoWindow();
        openEditor(2, QStringLiteral("edit-type"));
        m_user->press(QStringLiteral("Down Return"));
        m_user->waitForText(QStringLiteral("lblJob_3"), QStringLiteral("Report"));
        m_user->waitForNoWindow();
        m_user->takePicture(QStringLiteral("job-panel-report"));
        m_user->click(QStringLiteral("cmdSave"));
        m_user->waitForText(QStringLiteral("txtCount"), QStringLiteral("1"));
    });
    // Changing the type works out no lines and no total.
    QCOMPARE(
        m_folder.rows(QStringLiteral("select jobacctid,jobtypeid,jobreference,jobstart,joblines from jobs where id=1")),
        QStringList(QStringLiteral("2|2|A-115|8/20/2004 2:05:00 PM|15")));
}

void Tour::submitJobs()
{
    for (const QString& reference : {QStringLiteral("C-1"), QStringLiteral("C-2"), QStringLiteral("C-3")}) {
        m_folder.run(
            QStringLiteral("insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(#8/16/2004#,1,1,'") +
            reference + QStringLiteral("')"));
    }
    play([&] {
        m_user->press(QStringLiteral("F8"));
        m_user->waitForWindow(QStringLiteral("frmUpload"));
        m_user->press(QStringLiteral("Home alt+j space Down Down space"));
        m_user->takePicture(QStringLiteral("submit"));
        m_user->press(QStringLiteral("alt+s"));
        m_user->waitForText(QStringLiteral("txtDate"), QStringLiteral("8/16/2004"));
        m_user->takePicture(QStringLiteral("submit-partly"));
        m_user->press(QStringLiteral("alt+j ctrl+a Return"));
        m_user->waitForNoWindow();
        m_user->waitForText(QStringLiteral("txtCount"), QStringLiteral("3"));
        m_user->press(QStringLiteral("F7"));
        m_user->waitForText(QStringLiteral("txtCount"), QStringLiteral("1"));
    });
    QCOMPARE(m_folder.rows(QStringLiteral("select jobuploaded from jobs where jobdate=#8/16/2004#")),
             QStringList(3, QStringLiteral("8/16/2004 12:00")));
}

// The second press of the gesture lands on what the first one opened: the job panel, or a window behind a dialog.
void Tour::warnOfDoubleClicks()
{
    const QString warning = QStringLiteral("Slow down on the mouse clicks there!\nPlease use single clicks only.");
    play([&] {
        m_user->clickCell(0, 0, 2);
        m_user->waitForWindow(warning);
        m_user->takePicture(QStringLiteral("slow-down"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForNoWindow();
        m_user->waitForText(QStringLiteral("lblJob_10"), QStringLiteral("A-115"));
        m_user->click(QStringLiteral("cmdClose"));
        m_user->choose({QStringLiteral("Data"), QStringLiteral("Clients"), QStringLiteral("List")});
        m_user->waitForTitle(QStringLiteral("Penwright - [Clients List]"));
        m_user->clickCell(2, 0, 2);
        m_user->waitForWindow(warning);
        m_user->press(QStringLiteral("Return"));
        m_user->waitForWindow(QStringLiteral("frmAddAcct"));
        m_user->takePicture(QStringLiteral("client-edit"));
        m_user->press(QStringLiteral("Escape"));
        m_user->waitForNoWindow();
    });
}

void Tour::askBeforeDeleting()
{
    play([&] {
        m_user->press(QStringLiteral("Delete"));
        m_user->waitForWindow(QStringLiteral("Are you sure?"));
        m_user->takePicture(QStringLiteral("delete-row"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForNoWindow();
    });
    QCOMPARE(m_folder.rows(QStringLiteral("select count(*) from jobacct")), QStringList(QStringLiteral("3")));
}

void Tour::correctAndDeleteMasterData()
{
    play([&] {
        m_user->clickCell(1, 0);
        m_user->waitForWindow(QStringLiteral("frmAddAcct"));
        m_user->type(QStringLiteral("Law Office Ferry Lane"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForNoWindow();
        m_user->clickCell(2, 0);
        m_user->waitForWindow(QStringLiteral("frmAddAcct"));
        m_user->click(QStringLiteral("cmdDelete"));
        m_user->waitForWindow(QStringLiteral("Are you sure you want to delete this client?"));
        m_user->takePicture(QStringLiteral("delete-client"));
        m_user->press(QStringLiteral("alt+y"));
        m_user->waitForNoWindow();
        m_user->choose({QStringLiteral("Data"), QStringLiteral("Acct/type"), QStringLiteral("List")});
        m_user->clickCell(0, 0);
        m_user->waitForWindow(QStringLiteral("frmAddType"));
        m_user->takePicture(QStringLiteral("type-edit"));
        m_user->press(QStringLiteral("Escape"));
        m_user->waitForNoWindow();
    });
    QCOMPARE(m_folder.rows(QStringLiteral("select acctname from jobacct")),
             QStringList({QStringLiteral("Riverside Clinic"), QStringLiteral("Law Office Ferry Lane")}));
}

void Tour::backUp()
{
    // The documents folder of this user.
    qputenv("HOME", QFile::encodeName(m_folder.path()));
    for (const char* folder : {"reports", "templates"})
        QDir(m_folder.path()).mkpath(QLatin1String(folder));
    const QString copy =
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QStringLiteral("/PWR Backup/data/dB.mdb");
    play([&] {
        m_user->choose({QStringLiteral("File"), QStringLiteral("Backup")});
        m_user->waitForWindow(QStringLiteral("frmBackup"));
        m_user->takePicture(QStringLiteral("backup-not-set"));
        // Leaving it once stores the default folder.
        m_user->click(QStringLiteral("cmdClose"));
        m_user->waitForNoWindow();
        m_user->choose({QStringLiteral("File"), QStringLiteral("Backup")});
        m_user->waitForWindow(QStringLiteral("frmBackup"));
        m_user->takePicture(QStringLiteral("backup"));
        m_user->click(QStringLiteral("cmdBackup"));
        m_user->waitForWindow(QStringLiteral("Backup was successful."));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForNoWindow();
    });
    QVERIFY2(QFile::exists(copy), qPrintable(copy));
}

void Tour::exitWithAnOpenJob()
{
    play([&] {
        m_user->press(QStringLiteral("F7"));
        m_user->clickCell(0, 0);
        m_user->waitForText(QStringLiteral("lblJob_10"), QStringLiteral("A-115"));
        m_user->press(QStringLiteral("ctrl+F4"));
        m_user->waitForText(QStringLiteral("lblJob_10"), QStringLiteral("A-115"));
        m_user->press(QStringLiteral("alt+F4"));
        m_user->waitFor(QStringLiteral("the end"), [&] { return m_ends == QList<int>({EXIT_SUCCESS}); });
    });
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    modMain::setApplicationLook();
    Tour tour;
    return QTest::qExec(&tour, argc, argv);
}

#include "tst_tour.moc"
