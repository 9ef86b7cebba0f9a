// A person's first day, from the first client to the backup. It needs no mouse, until the hasty presses at its end.
// Saves a picture of every window.
#include "journey.h"

#include "support/files.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

class Tour : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The documents folder of this user.
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        for (const char* folder : {"reports", "templates/T"})
            QDir(m_folder.path()).mkpath(folder);
        writeFile(m_folder.path() + "/templates/T/a.txt", "No acute disease.");
        QFile::copy(STAGED_TEMPLATES "/Report.xls", m_folder.path() + "/templates/Report.xls");
        QVERIFY(start(m_folder.path()));
    }

    void addClientsAndTypes()
    {
        QVERIFY(play([&] {
            waitForTitle("Penwright");
            takePicture("main");
            choose({"Data", "Jobs"});
            takePicture("menu");
            press("Escape Escape Escape");
            addClient("Riverside Clinic");
            waitForTitle("Penwright - [Clients List]");
            addClient("Law Office Harbour Street");
            addClient("Dr. Obi & Partners");
            takePicture("clients");
            open("frmAddType", "alt+d a Right Return");
            press("alt+l Down Tab");
            type("Discharge summary\t1.25\t");
            open("Please enter how many characters constitute a line.", "Tab alt+s");
            takePicture("message");
            open("frmAddType", "Return");
            type("65");
            takePicture("type");
            leave("Return");
            waitForTitle("Penwright - [Job Type List]");
            takePicture("types");
        }));
        QCOMPARE(m_folder.rows("select id,acctname from jobacct"),
                 QStringList({"1|Riverside Clinic", "2|Law Office Harbour Street", "3|Dr. Obi & Partners"}));
        QCOMPARE(m_folder.rows("select * from accttype"), QStringList{"1|1|Discharge summary|1.25|Line|65"});
    }

    void addATemplate()
    {
        QVERIFY(play([&] {
            press("F3 alt+n");
            waitForFocus("txtTemp_0");
            type("Chest\tCXR\t\t\\T\\a.txt");
            press("alt+s");
            waitForText("txtTemp_0", QString());
            press("Escape");
            waitForTitle("Penwright - [Job List]");
        }));
    }

    void timeAndSaveAJob()
    {
        QVERIFY(play([&] {
            open("frmAddJob", "F6");
            press("Tab");
            type("riverside clinic\tdischarge summary\tA-114");
            takePicture("new-job");
            leave("Return");
            waitForText("lblJob_10", "A-114");
            press("alt+a");
            waitForText("cmdStart", "Pause");
            waitForText("lblSec", "2");
            press("alt+c");
            type("1000\t");
            waitForText("lblJob_5", "15");
            waitForText("lblJobTotal", "$18.75");
            takePicture("job-panel");
            press("alt+k");
            type("c");
            press("Down Return");
            waitForText("Label10",
                        "Position your cursor in the document where you want to paste the template.  Press 'ctrl + v' "
                        "to paste.",
                        30'000);
            press("alt+p");
            waitForText("cmdStart", "Start");
            press("alt+s");
            waitForTitle("Penwright - [Job List]");
            waitForText("txtTotal", "$18.75");
            waitForText("txtCount", "1");
            takePicture("jobs");
        }));
        const QStringList job =
            m_folder.rows("select jobreference,jobchar,joblines,jobuploaded,joblength from jobs where id=1");
        QVERIFY2(job.first().startsWith("A-114|1000|15|.|0:"), qPrintable(job.first()));
    }

    void filterTheJobsAndOpenOne()
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
            press("alt+o Tab");
            type("12/1/2003");
            press("alt+l");
            waitForText("txtCount", "31");
            takePicture("jobs-filtered");
            press("alt+l");
            waitForText("txtCount", "1");
            press("F7 Return");
            waitForText("lblJob_10", "A-114");
            waitForText("lblJobTotal", "$18.75");
            press("F7");
            choose({"Help"});
            takePicture("job-locked-menus");
            press("Escape Escape alt+l");
            waitForText("txtCount", "1");
        }));
    }

    void correctTheJob()
    {
        m_folder.run("insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)"
                     "values(2,'Dictated letters and memoranda',12.5,0,'Report')");
        QVERIFY(play([&] {
            press("Return");
            waitForText("lblJob_10", "A-114");
            correct(10, "edit-reference", "A-115", "A-115");
            correct(8, "edit-length", "1\t05\t30", "1:05:30");
            correct(7, "edit-start", "08/20/2004\t2:05 PM", "8/20/2004 2:05:00 PM");
            openEditor(9, "edit-submitted");
            leave();
            openEditor(0, "edit-date");
            type("soon\t");
            answer("Please insert a date in this field.");
            waitForWindow("frmEditJob");
            leave();
            openEditor(2, "edit-type");
            leave("Down Return");
            waitForText("lblJob_3", "Report");
            takePicture("job-panel-report");
            press("alt+s");
            waitForText("txtCount", "1");
        }));
        // Changing the type calculates neither lines nor total.
        QCOMPARE(m_folder.rows("select jobacctid,jobtypeid,jobreference,jobstart,joblines from jobs where id=1"),
                 QStringList{"2|2|A-115|8/20/2004 2:05:00 PM|15"});
    }

    void submitJobs()
    {
        for (const char* reference : {"C-1", "C-2", "C-3"})
            storeJob(reference, "8/16/2004");
        QVERIFY(play([&] {
            open("frmUpload", "F8");
            press("Home alt+j space Down Down space");
            takePicture("submit");
            press("alt+s");
            waitForText("txtDate", "8/16/2004");
            takePicture("submit-partly");
            leave("alt+j ctrl+a Return");
            waitForText("txtCount", "3");
            press("F7");
            waitForText("txtCount", "1");
        }));
        QCOMPARE(m_folder.rows("select jobuploaded from jobs where jobdate=#8/16/2004#"),
                 QStringList(3, "8/16/2004 12:00"));
    }

    void saveAReport()
    {
        QVERIFY(play([&] {
            open("frmReport", "F4");
            press("alt+s Tab Tab Down Down alt+v");
            open("Save", "alt+r");
            press("Return");
            waitFor(
                "the report", [&] { return QDir(m_folder.path() + "/reports").count() > 2; }, 30'000);
            leave();
        }));
    }

    // The second press lands on what the first one opened: the job panel, or the window behind a dialog.
    void warnOfHastyPresses()
    {
        const QString warning = "Slow down on the mouse clicks there!\nPlease use single clicks only.";
        QVERIFY(play([&] {
            clickRow(0, 2);
            waitForWindow(warning);
            takePicture("slow-down");
            leave("Return");
            waitForText("lblJob_10", "A-115");
            click("cmdClose");
            choose({"Data", "Clients", "List"});
            waitForTitle("Penwright - [Clients List]");
            clickRow(2, 2);
            answer(warning);
            waitForWindow("frmAddAcct");
            takePicture("client-edit");
            leave();
            // Return means No, so the row is still there.
            open("Are you sure?", "Delete");
            takePicture("delete-row");
            leave("Return");
        }));
        QCOMPARE(m_folder.rows("select id from jobacct").size(), 3);
    }

    void backUpAndExitWithAnOpenJob()
    {
        const QString copy =
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/PWR Backup/data/dB.mdb";
        QVERIFY(play([&] {
            open("frmBackup", "alt+f Return");
            takePicture("backup-not-set");
            // Leaving the dialog stores the default folder.
            leave("alt+c");
            open("frmBackup", "alt+f Return");
            takePicture("backup");
            press("alt+b");
            answer("Backup was successful.");
            waitForNoWindow();
            openFirstJob("A-115");
            press("alt+F4");
            waitFor("the end", [&] { return m_exitCodes == QList<int>({EXIT_SUCCESS}); });
        }));
        QVERIFY2(QFile::exists(copy), qPrintable(copy));
    }

private:
    void addClient(const QString& name)
    {
        open("frmAddAcct", "alt+d c Right Return");
        type(name);
        takePicture("client");
        leave("Return");
    }

    void openEditor(int field, const QString& picture)
    {
        const QString label = u"lblJob_%1"_s.arg(field);
        for (QString stop = focusedControl(); stop != label; stop = focusedControl()) {
            press("shift+Tab");
            waitFor("a stop before " + stop, [&] {
                const QWidget* focus = QApplication::focusWidget();
                return focus && focus->objectName() != stop;
            });
        }
        open("frmEditJob", "space");
        takePicture(picture);
    }

    void correct(int field, const QString& picture, const QString& typed, const QString& shown)
    {
        openEditor(field, picture);
        type(typed);
        leave("Return");
        waitForText(u"lblJob_%1"_s.arg(field), shown);
    }
};

JOURNEY_MAIN(Tour)
#include "tst_tour.moc"
