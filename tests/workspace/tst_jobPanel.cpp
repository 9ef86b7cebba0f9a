#include "workspaceBench.h"

using namespace Qt::StringLiterals;

struct JobBench : WorkspaceBench {
    using WorkspaceBench::WorkspaceBench;

    void open(int row) { openRow(form, row); }

    bool isOpen() const { return !find<QWidget>(form, "frJob").visibleRegion().isEmpty() && !grid.isVisible(); }

    void enterCharacters(const QString& text)
    {
        find<QWidget>(form, "txtChar").setFocus();
        type(form, "txtChar", text);
        QTest::keyClick(&find<QWidget>(form, "txtChar"), Qt::Key_Tab);
    }

    /// Opens the first job of the list, enters its characters and lets the clock run.
    void work(int seconds)
    {
        open(0);
        enterCharacters("1300");
        click(form, "cmdStart");
        tick(form, seconds);
    }

    /// The clock and the button beside it.
    QString timer() const
    {
        return QStringList{label("lblHr"), label("lblMin"), label("lblSec"), label("cmdStart")}.join(u':');
    }

    QStringList values() const
    {
        QStringList texts;
        for (int i = 0; i <= 10; ++i)
            texts << label(qPrintable(u"lblJob_%1"_s.arg(i)));
        return texts;
    }

    QString stored(int row) const { return rows("jobs").value(row); }
};

class TestJobPanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A job that was never started starts when it is saved; what was started keeps its start and length.
    void loadsAndSaves_data()
    {
        addRows({{"values", "total", "stored"},
                 {"0", "8/18/2004|Zed Clinic|Notes|Line|6500|100|$0.12|8/18/2004 08:05|1:5:7|.|R", "$12.00",
                  "1|8/18/2004|1|1|R|8/18/2004 8:05:00 AM|6500|100|1:5:7|."},
                 {"1", "8/18/2004|Adams|Letters|Report|0|1|$4.50|..|..|.|R", "$4.50",
                  "2|8/18/2004|2|2|R|8/18/2004 9:30:00 AM|0|1|..|."}});
    }

    void loadsAndSaves()
    {
        JobBench bench;
        const int row = QByteArray(QTest::currentDataTag()).toInt();
        bench.open(row);
        QTEST(bench.values().join(u'|'), "values");
        QTEST(bench.label("lblJobTotal"), "total");
        QCOMPARE(bench.label("txtChar"), bench.label("lblJob_4"));
        for (const char* name : {"lblJob_4", "lblJob_5"})
            QCOMPARE(find<QWidget>(bench.form, name).isVisible(), row == 0);
        QCOMPARE(find<QWidget>(bench.form, "txtChar").isEnabled(), row == 0);
        click(bench.form, "cmdSave");
        QTEST(bench.stored(row), "stored");
    }

    void loadErrorLeavesTheJobOpen()
    {
        for (const auto& [fault, error] :
             {std::pair("update accttype set acctcharline=null where id=1", "94 (Invalid use of Null)"),
              {"insert into accttype(id,acctid,acctrate)values(40000,1,0); update jobs set jobtypeid=40000 where id=1",
               "6 (Overflow)"}}) {
            JobBench bench;
            store::Connection(modMain::DBConnString).runNative(fault);
            bench.list("job");
            bench.answers.expectBox(u"Error %1 in procedure DoJob of Form frmJobs"_s.arg(error));
            bench.open(0);
            QVERIFY(bench.isOpen());
            QVERIFY(!find<QWidget>(bench.form, "txtChar").isEnabled());
            QCOMPARE(bench.shell.calls, QStringList("menus off"));
        }
    }

    // The second time there is no total to show; everything else is loaded and can be saved.
    void hourlyJobKeepsItsReference()
    {
        JobBench bench;
        bench.folder.run("update accttype set acctrate=0.085 where id=3");
        bench.folder.run("update jobs set jobtypeid=3 where id=1");
        bench.list("job");
        bench.open(0);
        QCOMPARE(bench.label("lblJobTotal"), "$0.00");
        click(bench.form, "cmdClose");
        bench.answers.expectBox("Error 13 (Type mismatch) in procedure DoJob of Form frmJobs");
        bench.open(0);
        QVERIFY(bench.isOpen());
        QCOMPARE(bench.label("lblJob_6") + bench.label("lblJob_10") + bench.label("txtChar"), "$0.085R6500");
        click(bench.form, "cmdSave");
        QCOMPARE(bench.stored(0), "1|8/18/2004|1|3|R|8/18/2004 8:05:00 AM|6500|100|0:0|.");
    }

    // Nothing of the previous job is shown or saved.
    void unreadableJobShowsNoOtherJob()
    {
        JobBench bench;
        bench.open(0);
        click(bench.form, "cmdClose");
        const QStringList before = bench.rows("jobs");
        bench.folder.run("delete from jobacct where id=2");
        bench.answers.expectBox("Error 3021 (Either BOF or EOF is True, or the current record has been deleted. "
                                "Requested operation requires a current record.) in procedure DoJob of Form frmJobs");
        bench.open(1);
        QVERIFY(bench.isOpen());
        QCOMPARE(bench.values().join(u'|') + bench.label("txtChar"), "||||||||||R");
        bench.expectSyntaxError("in date in query expression '##'.");
        click(bench.form, "cmdSave");
        QVERIFY(!bench.isOpen());
        QCOMPARE(bench.rows("jobs"), before);
    }

    // However many decimals were typed: the panel reads the rate back from what it shows.
    void ratesAreBilledAsShown()
    {
        JobBench bench;
        bench.folder.run("update accttype set acctrate=0.12345 where id=1");
        bench.list("job");
        QCOMPARE(bench.gridRows().value(0).section(u'|', -1), "$12.34");
        bench.open(0);
        bench.enterCharacters("6500");
        QCOMPARE(bench.label("lblJob_6") + bench.label("lblJobTotal"), "$0.1234$12.34");
    }

    void refusedCharactersEndTheProgram()
    {
        JobBench bench;
        bench.open(0);
        bench.expectEnd(13, "Type mismatch");
        bench.enterCharacters("many");
        QCOMPARE(bench.values().mid(4, 2).join(u'|') + bench.label("lblJobTotal"), "many|100$12.00");
    }

    void timesTheJob()
    {
        JobBench bench;
        bench.open(0);
        const std::pair<const char*, const char*> presses[] = {
            {"cmdStart", "0:0:0:Pause"}, {"cmdStart", "0:1:5:Start"}, {"cmdStop", "0:1:5:Start"},
            {"cmdStart", "0:1:5:Pause"}, {"cmdStop", "0:2:10:Start"}, {"cmdStart", "0:2:10:Pause"},
            {"cmdReset", "0:0:0:Start"}, {"cmdStop", "0:0:0:Start"},  {"cmdStart", "0:0:0:Pause"}};
        for (const auto& [button, timer] : presses) {
            tick(bench.form, 65);
            click(bench.form, button);
            QCOMPARE(bench.timer(), timer);
            QCOMPARE(bench.label("lblJob_7"), "8/18/2004 9:30:00 AM");
            bench.now = bench.now.addSecs(65);
        }
    }

    // Closing keeps only the start time, until a job is saved. Then the jobs of its day are listed, not those of today.
    void closesUnsavedThenSaves()
    {
        JobBench bench("job", {2004, 8, 31});
        const QStringList before = bench.rows("jobs");
        bench.work(3);
        QCOMPARE(bench.label("lblJobTotal"), "$2.40");
        click(bench.form, "cmdClose");
        QCOMPARE(bench.rows("jobs"), before);
        QVERIFY(bench.grid.isVisible());
        QCOMPARE(bench.ids(), "6");
        QCOMPARE(bench.timer() + bench.label("lblJob_4"), "0:0:0:Start");
        bench.now = bench.now.addSecs(3600);
        bench.work(65);
        QCOMPARE(bench.label("lblJob_7"), "8/18/2004 9:30:00 AM");
        click(bench.form, "cmdSave");
        QCOMPARE(bench.rows("jobs"), before.mid(0, 5) +
                                         QStringList("6|8/31/2004|1|1|R|8/18/2004 9:30:00 AM|1300|20|1:5|.") +
                                         before.mid(6));
        QVERIFY(!bench.isOpen());
        QCOMPARE(bench.ids() + bench.label("txtTotal"), "6$2.40");
        QCOMPARE(bench.timer() + bench.label("lblJob_8") + bench.label("lblJobTotal"), "0:0:0:Start");
        bench.work(0);
        QCOMPARE(bench.label("lblJob_7"), "8/18/2004 10:30:00 AM");
        click(bench.form, "cmdSave");
        // Saving another job sets no start time for it.
        bench.list("job");
        bench.open(1);
        click(bench.form, "cmdSave");
        QCOMPARE(bench.stored(1), "2|8/18/2004|2|2|R|(null)|0|1|0:0|.");
    }

    // Then the jobs of today are listed, of which there are none, and not those of the job's day.
    void deletesTheJob()
    {
        JobBench bench;
        const QStringList before = bench.rows("jobs");
        bench.work(5);
        // No other record can be opened meanwhile.
        bench.answers.expectBox("Only one job may run at a time.");
        bench.list("accts");
        bench.form.GridClick();
        bench.now = values::dateTime(QDate(2004, 1, 1));
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            QVERIFY(bench.isOpen());
            QCOMPARE(bench.rows("jobs"), before);
            bench.answers.expectBox("Are you sure you want to delete this job?", answer);
            click(bench.form, "cmdDeleteJob");
        }
        QVERIFY(!bench.isOpen());
        QCOMPARE(bench.rows("jobs"), before.mid(1));
        QCOMPARE(bench.ids() + bench.label("txtCount") + bench.label("txtTotal"), "");
        tick(bench.form, 5);
        QCOMPARE(bench.timer() + bench.label("lblJob_7") + bench.label("lblJob_8"), "0:0:0:Start");
    }
};

QTEST_MAIN(TestJobPanel)
#include "tst_jobPanel.moc"
