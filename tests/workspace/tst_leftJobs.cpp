// A job that is open when the program ends, in one way or another, is taken up at the next start.
#include "store/faults.h"
#include "store/openJobs.h"
#include "support/bench.h"
#include "support/files.h"
#include "support/find.h"
#include "support/table.h"
#include "workspace/frmJobs.h"
#include "workspace/panelContent.h"

#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QRandomGenerator>
#include <QTableView>

#include <cstdio>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// The program, which can end and start again.
struct LeftBench : Bench {
    LeftBench() { start(); }

    /// Without an end before, the program was killed.
    void start()
    {
        form = std::make_unique<workspace::frmJobs>(shell);
        form->resize(1100, 640);
        form->show();
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
        find<QTimer>(*form, "Timer1").stop();
        list("job");
    }
    void end()
    {
        expectedExitCodes << 0;
        ui::endProgram(0);
    }
    void list(const char* mode)
    {
        form->ShowList(QLatin1String(mode), values::dateTime(QDate(2004, 8, 18)), QString());
    }

    void open(int row)
    {
        auto& grid = find<QTableView>(*form, "dgList");
        grid.selectRow(row);
        QTest::keyClick(&grid, Qt::Key_Return);
    }
    void press(const char* button)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        click(*form, button);
    }
    void tick(int seconds)
    {
        for (int i = 0; i < seconds; ++i)
            QMetaObject::invokeMethod(&find<QTimer>(*form, "Timer1"), "timeout");
    }
    void correct(const char* label, std::function<void(QWidget&)> work)
    {
        answers.expectDialog("frmEditJob", std::move(work));
        QTest::mouseClick(&find<QWidget>(*form, label), Qt::LeftButton);
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
    }
    void correctReference(const QString& reference)
    {
        correct("lblJob_10", [reference](QWidget& editor) {
            type(editor, "txtRefId", reference);
            click(editor, "cmdApply_10");
        });
    }
    /// Opens the first job, corrects it, types characters without leaving their box and lets the clock run
    /// for 0:01:47.
    void work()
    {
        open(0);
        correctReference("A-114");
        press("cmdStart");
        find<QWidget>(*form, "txtChar").setFocus();
        type(*form, "txtChar", "5210");
        tick(107);
    }

    /// What the person sees of the job: all texts, and which boxes and buttons there are.
    QString panel() const
    {
        QStringList texts;
        for (const auto* control : find<QWidget>(*form, "frJob").findChildren<QWidget*>()) {
            const QVariant text = control->property("text");
            if (control->isVisible() && text.isValid())
                texts << control->objectName() + u'=' + text.toString() + (control->isEnabled() ? "" : " (grey)");
        }
        return texts.join(u'|');
    }
    /// The lines about jobs that were left, each with its button.
    QStringList lines() const { return visibleTexts("frLeft"); }
    QStringList offers() const { return visibleTexts("frTimer").filter("Take up"); }
    QString trouble() const
    {
        const auto& label = find<QLabel>(*form, "lblNotKept");
        return label.isVisible() ? label.text() : QString();
    }

    std::unique_ptr<workspace::frmJobs> form;
    const QString file = folder.path() + "/data/open.mdb";

private:
    QStringList visibleTexts(const char* frame) const
    {
        QStringList texts;
        for (const auto* control : find<QWidget>(*form, frame).findChildren<QWidget*>()) {
            if (control->isVisible() && control->property("text").isValid())
                texts << control->property("text").toString();
        }
        return texts;
    }
};

/// The characters, the reference and the seconds on the clock.
struct Progress {
    int characters = 0;
    QString reference;
    int seconds = 0;
};

Progress readProgress(const QByteArray& line)
{
    const QList<QByteArray> parts = line.split('|');
    return {parts[0].toInt(), QString::fromUtf8(parts[1]), parts[2].toInt()};
}

Progress keptProgress()
{
    const auto content = workspace::readPanelContent(store::readOpenJobs().at(0).content);
    const workspace::JobTimer& timer = content->timer;
    return {content->characters.toInt(), content->captions[workspace::jobValue::Reference],
            timer.hours() * 3600 + timer.minutes() * 60 + timer.seconds()};
}

/// Works on the first job until it is killed, and goes on where it was killed before. Tells of each step that it did.
[[noreturn]] void workUntilKilled(const QString& programFolder)
{
    LeftBench bench;
    modMain::setConnectionStrings(programFolder);
    bench.start();
    const auto tell = [&bench] {
        int seconds = 0;
        for (const char* counter : {"lblHr", "lblMin", "lblSec"})
            seconds = seconds * 60 + textOf(*bench.form, counter).toInt();
        std::printf("%s|%s|%d\n", qPrintable(textOf(*bench.form, "txtChar")),
                    qPrintable(textOf(*bench.form, "lblJob_10")), seconds);
        std::fflush(stdout);
    };
    bench.open(0);
    if (!bench.offers().isEmpty())
        bench.press("cmdTakeUp_0");
    tell();
    auto& characters = find<QWidget>(*bench.form, "txtChar");
    characters.setFocus();
    bench.press("cmdStart");
    for (int step = textOf(*bench.form, "txtChar").toInt() + 1;; ++step) {
        QTest::keyClick(&characters, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&characters, static_cast<Qt::Key>(Qt::Key_0 + step % 10));
        tell();
        if (step % 4 == 0)
            bench.correctReference(u"A-%1"_s.arg(step));
        for (int second = 0; second < 13; ++second) {
            bench.tick(1);
            tell();
        }
    }
}

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
        bench.tick(1);
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
        bench.tick(20);
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
        bench.tick(3);
        QCOMPARE(bench.trouble(), "Save this job before you end Penwright. " + damaged);
        bench.start();
        QCOMPARE(bench.lines().size(), 2);
        writeFile(bench.file, content);
        bench.form = std::make_unique<workspace::frmJobs>(bench.shell);
        bench.form->show();
        bench.list("accts");
        QCOMPARE(bench.lines(), QStringList());
        QCOMPARE(readFile(bench.file), content);
        bench.list("job");
        QCOMPARE(bench.lines(), QStringList(damaged));
        QCOMPARE(readFile(bench.file + ".damaged"), content);
        bench.list("job");
        QCOMPARE(bench.lines(), QStringList());
    }

    // MOMENTS=300 looks at more moments.
    void losesTenSecondsAtMostWhenKilled()
    {
        const int moments = std::max(qEnvironmentVariableIntValue("MOMENTS"), 10);
        Bench bench;
        Progress kept{6500, u"R"_s, 0};
        for (int moment = 0; moment < moments; ++moment) {
            QProcess worker;
            worker.setStandardErrorFile(QProcess::nullDevice());
            worker.start("env", {"TMPDIR=" + bench.folder.path(), "QT_QPA_PLATFORM=offscreen",
                                 QCoreApplication::applicationFilePath(), "--work", bench.folder.path()});
            QVERIFY(worker.waitForReadyRead());
            QTest::qSleep(QRandomGenerator::global()->bounded(400));
            worker.kill();
            QVERIFY(worker.waitForFinished());
            QCOMPARE(worker.exitStatus(), QProcess::CrashExit);
            QList<QByteArray> steps = worker.readAllStandardOutput().split('\n');
            steps.removeLast();
            const Progress first = readProgress(steps.first());
            const Progress last = readProgress(steps.last());
            QCOMPARE(std::tie(first.characters, first.reference, first.seconds),
                     std::tie(kept.characters, kept.reference, kept.seconds));
            kept = keptProgress();
            const QString told = QString::fromUtf8(steps.last()) +
                                 u" but kept %1|%2|%3"_s.arg(kept.characters).arg(kept.reference).arg(kept.seconds);
            QVERIFY2(kept.characters == last.characters || kept.characters == (last.characters + 1) % 10,
                     qPrintable(told));
            QVERIFY2(kept.reference == last.reference || last.characters % 2 == 0, qPrintable(told));
            QVERIFY2(kept.seconds > last.seconds - 10 && kept.seconds <= last.seconds + 1, qPrintable(told));
            QCOMPARE(store::readOpenJobs().size(), 1u);
        }
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
            bench.tick(23);
        }
        const QString expected = "Save this job before you end Penwright. " + trouble.arg(bench.file);
        QVERIFY2(bench.trouble().startsWith(expected), qPrintable(bench.trouble()));
        bench.tick(13);
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

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--work")
        workUntilKilled(QString::fromLocal8Bit(argv[2]));
    TestLeftJobs test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_leftJobs.moc"
