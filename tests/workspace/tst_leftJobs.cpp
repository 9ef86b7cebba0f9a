// A job that is open when the program ends, in one way or another, is taken up at the next start.
#include "leftBench.h"

#include "store/faults.h"
#include "support/files.h"
#include "support/table.h"

using namespace Qt::StringLiterals;

namespace {

const QString openLine = "%1 was open when Penwright ended: %2. ";
const QString leftLine = openLine + "Open it to go on.";

} // namespace

class TestLeftJobs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void goesOnAsIfNothingHadHappened_data()
    {
        addRows(
            {{"change", "clock", "line", "stored"},
             {"killed", "", "0:01:40", "Zed Clinic|, 5210 characters", "|1|1|A-114|8/18/2004 9:30:00 AM|5210|80|1:41"},
             {"ended", "end", "0:01:47", "Zed Clinic|, 5210 characters",
              "|1|1|A-114|8/18/2004 9:30:00 AM|5210|80|1:48"},
             {"stopped", "cmdStop", "0:01:47", "Zed Clinic|, 5210 characters",
              "|1|1|A-114|8/18/2004 9:30:00 AM|5210|80|1:48"},
             {"reset", "cmdReset", "0:00:00", "Zed Clinic|, 5210 characters",
              "|1|1|A-114|8/18/2004 9:30:00 AM|5210|80|0:1"},
             {"other type", "type", "0:01:47", "Adams|", "|2|2|A-114|8/18/2004 9:30:00 AM|5210|80|1:48"},
             {"characters left", "leave", "0:01:47", "Zed Clinic|, 5210 characters",
              "|1|1|A-114|8/18/2004 9:30:00 AM|5210|80|1:48"}});
    }
    void goesOnAsIfNothingHadHappened()
    {
        LeftBench bench;
        bench.work();
        const QString change = cell("change");
        if (change.startsWith("cmd"))
            bench.press(qPrintable(change));
        if (change == "type") {
            bench.correct("lblJob_2", [](QWidget& editor) {
                QTest::keyClick(&find<QWidget>(editor, "List1"), Qt::Key_End);
                QTest::keyClick(&find<QWidget>(editor, "List1"), Qt::Key_Return);
            });
        }
        if (change == "leave")
            QTest::keyClick(&find<QWidget>(*bench.form, "txtChar"), Qt::Key_Tab);
        const QString before = bench.panel();
        if (change == "end")
            bench.end();
        // Nothing of this depends on the wall clock, which may be set back.
        bench.now = bench.now.addDays(-400);
        bench.start();
        const QStringList parts = cell("line").split(u'|');
        QCOMPARE(
            bench.lines(),
            QStringList({leftLine.arg("A-114 of " + parts[0], cell("clock") + " on the clock" + parts[1]), "Open it"}));
        bench.list("accts");
        bench.press("cmdOpenLeft_0");
        QCOMPARE(bench.offers(), QStringList("Take up " + cell("clock")));
        QVERIFY(bench.panel().contains("lblJob_10=R|"));
        bench.press("cmdTakeUp_0");
        const QStringList clock = cell("clock").split(u':');
        QString expected = before;
        expected.replace(QRegularExpression("lblSec=\\d+"), u"lblSec=%1"_s.arg(clock[2].toInt()))
            .replace("cmdStart=Pause", "cmdStart=Start");
        QCOMPARE(bench.panel(), expected);
        bench.press("cmdStart");
        tick(*bench.form, 1);
        bench.press("cmdSave");
        QCOMPARE(bench.rows("jobs")[0], "1|8/18/2004" + cell("stored") + "|.");
        QCOMPARE(bench.lines(), QStringList());
    }

    void isForgottenWithoutBeingTakenUp_data()
    {
        addRows({{"button"}, {"cmdSave", "cmdSave"}, {"cmdClose", "cmdClose"}, {"cmdDeleteJob", "cmdDeleteJob"}});
    }
    void isForgottenWithoutBeingTakenUp()
    {
        LeftBench bench;
        bench.work();
        bench.start();
        bench.press("cmdOpenLeft_0");
        if (cell("button") == "cmdDeleteJob")
            bench.answers.expectBox("Are you sure you want to delete this job?", QMessageBox::Yes);
        bench.press(qPrintable(cell("button")));
        QCOMPARE(bench.lines(), QStringList());
        bench.start();
        QCOMPARE(bench.lines(), QStringList());
        bench.open(0);
        QCOMPARE(bench.offers(), QStringList());
    }

    // What was left is no worse for being looked at, and both times of one job can be taken up.
    void keepsSeveralJobs()
    {
        LeftBench bench;
        bench.work();
        bench.start();
        bench.open(1);
        bench.press("cmdStart");
        bench.start();
        bench.open(0);
        bench.start();
        bench.open(0);
        bench.press("cmdStart");
        tick(*bench.form, 20);
        QCOMPARE(bench.offers(), QStringList("Take up 0:01:40"));
        bench.start();
        const QStringList lines = bench.lines().filter("Open it to go on.");
        QCOMPARE(lines, QStringList({leftLine.arg("A-114 of Zed Clinic", "0:01:40 on the clock, 5210 characters"),
                                     leftLine.arg("R of Adams", "0:00:00 on the clock"),
                                     leftLine.arg("R of Zed Clinic", "0:00:20 on the clock, 6500 characters")}));
        QCOMPARE(find<QWidget>(*bench.form, "cmdOpenLeft_2").accessibleName(), "Open it: " + lines[2]);
        bench.press("cmdOpenLeft_2");
        QCOMPARE(bench.offers(), QStringList({"Take up 0:01:40", "Take up 0:00:20"}));
        bench.press("cmdTakeUp_0");
        bench.press("cmdStart");
        bench.press("cmdTakeUp_0");
        QCOMPARE(bench.offers(), QStringList("Take up 0:01:40"));
        QVERIFY(bench.panel().contains("lblHr=0|lblColon_0=:|lblMin=0|lblColon_1=:|lblSec=20|cmdStart=Start"));
        bench.press("cmdClose");
        QCOMPARE(bench.lines().filter("Open it to go on.").size(), 1);
    }

    void tellsWhatBecameOfTheJob_data()
    {
        addRows({{"statement", "end"},
                 {"deleted", "delete from jobs where id=1",
                  "It has been deleted since, so it can't be taken up.|Forget it"},
                 {"saved", "update jobs set jobchar=1 where id=1",
                  "It has been saved since, so it can't be taken up.|Forget it"},
                 {"submitted", "update jobs set jobuploaded='8/19/2004' where id=1", "Open it to go on.|Open it"}});
    }
    void tellsWhatBecameOfTheJob()
    {
        LeftBench bench;
        bench.work();
        bench.start();
        bench.folder.run(cell("statement"));
        bench.list("job");
        QCOMPARE(bench.lines().join(u'|'),
                 openLine.arg("A-114 of Zed Clinic", "0:01:40 on the clock, 5210 characters") + cell("end"));
        if (cell("end").endsWith("Forget it")) {
            bench.open(0);
            QCOMPARE(bench.offers(), QStringList());
            bench.start();
            bench.press("cmdForgetLeft_0");
            bench.start();
        } else {
            bench.press("cmdOpenLeft_0");
            bench.press("cmdTakeUp_0");
            bench.press("cmdSave");
            QVERIFY(bench.rows("jobs")[0].endsWith("|A-114|8/18/2004 9:30:00 AM|5210|80|1:40|8/19/2004"));
        }
        QCOMPARE(bench.lines().filter("A-114"), QStringList());
    }

    void isLeftWhenItCannotBeSaved()
    {
        LeftBench bench;
        bench.work();
        bench.correctReference("O'Brien");
        bench.expectSyntaxError("in the statement near ':47',jobuploaded='.' where id=1'.");
        bench.press("cmdSave");
        for (const bool isNextRun : {false, true}) {
            if (isNextRun)
                bench.start();
            QCOMPARE(bench.lines(), QStringList({"O'Brien of Zed Clinic could not be saved: 0:01:47 on the clock, 5210 "
                                                 "characters. Open it to go on.",
                                                 "Open it"}));
        }
        bench.press("cmdOpenLeft_0");
        bench.press("cmdTakeUp_0");
        bench.correctReference("O Brien");
        bench.press("cmdSave");
        QVERIFY(bench.rows("jobs")[0].contains("|O Brien|8/18/2004 9:30:00 AM|5210|80|1:47|"));
    }

    // A job whose loading failed has not been worked on: closing it must not forget what was left of it.
    void staysLeftWhenTheJobCannotBeLoaded()
    {
        LeftBench bench;
        bench.work();
        bench.start();
        store::Connection(modMain::DBConnString).runNative("update accttype set acctcharline=null where id=1");
        bench.answers.expectBox("Error 94 (Invalid use of Null) in procedure DoJob of Form frmJobs");
        bench.press("cmdOpenLeft_0");
        QCOMPARE(bench.offers(), QStringList());
        bench.press("cmdClose");
        QCOMPARE(bench.lines().size(), 2);
    }

    // The file is looked at by the first list of jobs, no sooner; what is wrong with it never stops a job.
    void survivesADamagedFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        for (const int size : {0, 1, 1500, 8192})
            QTest::addRow("%d bytes", size) << QByteArray(size, 'x');
    }
    void survivesADamagedFile()
    {
        QFETCH(QByteArray, content);
        LeftBench bench;
        bench.work();
        const QString damaged =
            u"'%1' is damaged and is now called 'open.mdb.damaged'. The jobs in it are lost."_s.arg(bench.file);
        writeFile(bench.file, content);
        tick(*bench.form, 3);
        QCOMPARE(bench.trouble(), "Save this job before you end Penwright. " + damaged);
        bench.start();
        QCOMPARE(bench.lines().size(), 2);
        writeFile(bench.file, content);
        bench.form = std::make_unique<workspace::frmJobs>(bench.shell);
        bench.form->show();
        bench.list("accts");
        QCOMPARE(bench.lines(), QStringList());
        QCOMPARE(readFile(bench.file), content);
        writeFile(bench.file + "-journal", "of the damaged file");
        bench.list("job");
        QCOMPARE(bench.lines(), QStringList(damaged));
        QCOMPARE(readFile(bench.file + ".damaged"), content);
        QVERIFY(!QFile::exists(bench.file + "-journal"));
        bench.list("job");
        QCOMPARE(bench.lines(), QStringList());
    }

    void tellsOnceThatItCannotBeKept_data()
    {
        QTest::addColumn<int>("writes");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("trouble");
        for (int writes = 0; writes < 8; ++writes)
            QTest::addRow("full after %d writes", writes) << writes << 0x0700 << "The disk that holds '%1' is full.";
        QTest::newRow("read-only") << -1 << 0x0755 << "Cannot update. The data file '%1' is read-only.";
        QTest::newRow("out of reach") << -1 << 0x0700 << "Could not find file '%1'.";
    }
    void tellsOnceThatItCannotBeKept()
    {
        QFETCH(int, writes);
        QFETCH(int, mode);
        QFETCH(QString, trouble);
        LeftBench bench;
        bench.work();
        for (const QString& path : {bench.folder.path(), bench.folder.path() + "/data", bench.file})
            QFile::setPermissions(path, QFile::Permissions(mode) | QFile::WriteOwner);
        {
            std::optional<FailingDisk> full;
            std::optional<NoPrivileges> stranger;
            if (writes < 0)
                stranger.emplace();
            else
                full.emplace(writes, ENOSPC);
            tick(*bench.form, 23);
        }
        const QString expected = "Save this job before you end Penwright. " + trouble.arg(bench.file);
        QVERIFY2(bench.trouble().startsWith(expected), qPrintable(bench.trouble()));
        tick(*bench.form, 13);
        bench.start();
        QVERIFY2(bench.lines().join(u' ').contains("0:02:20 on the clock"), qPrintable(bench.lines().join(u' ')));
    }

    void isReadableByTheOwnerOnly()
    {
        LeftBench bench;
        bench.open(0);
        QCOMPARE(QFile::permissions(bench.file) & QFile::Permissions(0x0077), QFile::Permissions());
    }
};

QTEST_MAIN(TestLeftJobs)
#include "tst_leftJobs.moc"
