#include "workspaceBench.h"

#include "ui/twips.h"

#include <QTimer>

using namespace Qt::StringLiterals;

struct JobBench : WorkspaceBench {
    using WorkspaceBench::WorkspaceBench;

    /// Opens a job of the list by its row.
    void open(int row)
    {
        grid.selectRow(row);
        QTest::keyClick(&grid, Qt::Key_Return);
    }

    bool isOpen() const
    {
        const auto& panel = find<QWidget>(form, "frJob");
        return panel.isVisible() && panel.x() == ui::panelInView && !grid.isVisible();
    }

    void enterCharacters(const QString& text)
    {
        find<QWidget>(form, "txtChar").setFocus();
        type(form, "txtChar", text);
        QTest::keyClick(&find<QWidget>(form, "txtChar"), Qt::Key_Tab);
    }

    void tick(int seconds)
    {
        for (int i = 0; i < seconds; ++i)
            QMetaObject::invokeMethod(&find<QTimer>(form, "Timer1"), "timeout");
    }

    /// The clock and the button beside it.
    QString timer() const
    {
        return QStringList{label("lblHr"), label("lblMin"), label("lblSec"), label("cmdStart")}.join(u':');
    }

    QString stored(int row) const { return rows("jobs").value(row); }

    const QStringList locked{u"menus off"_s};
    const QStringList lockedAndFreed{u"menus off"_s, u"menus on"_s};
};

class TestJobPanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void jobLocksTheProgram()
    {
        JobBench bench;
        bench.clickRow(0);
        QVERIFY(bench.isOpen());
        QCOMPARE(bench.shell.calls, bench.locked);
        bench.answers.expectBox(u"Only one job may run at a time."_s);
        bench.list("accts");
        bench.form.GridClick();
        QVERIFY(!bench.form.close());
        QVERIFY(bench.isOpen());
        click(bench.form, "cmdClose");
        QCOMPARE(bench.shell.calls, bench.lockedAndFreed);
        QVERIFY(find<QWidget>(bench.form, "frJob").x() < -1000);
        QVERIFY(bench.grid.isVisible());
        QVERIFY(bench.form.close());
    }

    void loadsValues_data()
    {
        table({{"values", "total"},
               {"0", "8/18/2004|Zed Clinic|Notes|Line|6500|100|$0.12|8/18/2004 08:05|1:5:7|.|R", "$12.00"},
               {"1", "8/18/2004|Adams|Letters|Report|0|1|$4.50|..|..|.|R", "$4.50"}});
    }

    void loadsValues()
    {
        JobBench bench;
        const int row = QByteArray(QTest::currentDataTag()).toInt();
        bench.open(row);
        QStringList values;
        for (int i = 0; i <= 10; ++i)
            values << bench.label(qPrintable(u"lblJob_%1"_s.arg(i)));
        QTEST(values.join(u'|'), "values");
        QTEST(bench.label("lblJobTotal"), "total");
        QCOMPARE(bench.label("txtChar"), values[4]);
        for (const char* name : {"lblJob_4", "lblJob_5"})
            QCOMPARE(find<QWidget>(bench.form, name).isVisible(), row == 0);
        QCOMPARE(find<QWidget>(bench.form, "txtChar").isEnabled(), row == 0);
    }

    void loadErrorLeavesTheJobOpen_data()
    {
        table(
            {{"fault", "error"},
             {"no characters per line", "update accttype set acctcharline=null where id=1", "94 (Invalid use of Null)"},
             {"client deleted", "delete from jobacct",
              "3021 (Either BOF or EOF is True, or the current record has been deleted. Requested operation requires "
              "a current record.)"},
             {"type id beyond 16 bits", "update jobs set jobtypeid=40000 where id=1", "6 (Overflow)"}});
    }

    void loadErrorLeavesTheJobOpen()
    {
        JobBench bench;
        bench.folder.run(u"insert into accttype(id,acctid,acctrate)values(40000,1,0)"_s);
        store::Connection(modMain::DBConnString).runNative(cell("fault").toUtf8());
        bench.list("job");
        bench.answers.expectBox(u"Error %1 in procedure DoJob of Form frmJobs"_s.arg(cell("error")));
        bench.open(0);
        QVERIFY(bench.isOpen());
        QCOMPARE(bench.shell.calls, bench.locked);
    }

    // It has no total the second time; all else is there and can be saved.
    void hourlyJobKeepsItsReference()
    {
        JobBench bench;
        bench.folder.run(u"update accttype set acctrate=0.085 where id=3"_s);
        bench.folder.run(u"update jobs set jobtypeid=3 where id=1"_s);
        bench.list("job");
        bench.open(0);
        QCOMPARE(bench.label("lblJobTotal"), u"$0.00"_s);
        click(bench.form, "cmdClose");
        bench.answers.expectBox(u"Error 13 (Type mismatch) in procedure DoJob of Form frmJobs"_s);
        bench.open(0);
        QVERIFY(bench.isOpen());
        QCOMPARE(bench.label("lblJob_6") + bench.label("lblJob_10") + bench.label("txtChar"), u"$0.085R6500"_s);
        click(bench.form, "cmdSave");
        QCOMPARE(bench.stored(0), u"1|8/18/2004|1|3|R|8/18/2004 8:05:00 AM|6500|100|0:0|."_s);
    }

    // Nothing of the job that was open before, neither to see nor to save.
    void jobThatCannotBeReadShowsNoOther()
    {
        JobBench bench;
        bench.open(0);
        click(bench.form, "cmdClose");
        const QStringList before = bench.rows("jobs");
        bench.folder.run(u"delete from jobacct where id=2"_s);
        bench.answers.expectBox(u"Error 3021 (Either BOF or EOF is True, or the current record has been deleted. "
                                "Requested operation requires a current record.) in procedure DoJob of Form frmJobs"_s);
        bench.open(1);
        for (int i = 0; i <= 9; ++i)
            QCOMPARE(bench.label(qPrintable(u"lblJob_%1"_s.arg(i))), QString());
        QCOMPARE(bench.label("txtChar") + bench.label("lblJob_10"), u"R"_s);
        bench.answers.expectBox(u"Error -2147217900 (Syntax error in date in query expression '##'.) "
                                "in procedure ActionQry of Module modMain"_s);
        click(bench.form, "cmdSave");
        QCOMPARE(bench.rows("jobs"), before);
    }

    void leavingCharactersCalculates_data()
    {
        table({{"perLine", "characters", "lines", "total", "error", "description"},
               {"number", "65", "1040", "16", "$1.92", "", ""},
               {"letters", "65", "many", "100", "$12.00", "13", "Type mismatch"},
               {"no characters per line", "0", "1040", "100", "$12.00", "11", "Division by zero"}});
    }

    void leavingCharactersCalculates()
    {
        JobBench bench;
        bench.folder.run(u"update accttype set acctcharline=%1 where id=1"_s.arg(cell("perLine")));
        bench.open(0);
        if (!cell("error").isEmpty())
            bench.expectEnd(cell("error").toInt(), qPrintable(cell("description")));
        bench.enterCharacters(cell("characters"));
        QTEST(bench.label("lblJob_4"), "characters");
        QTEST(bench.label("lblJob_5"), "lines");
        QTEST(bench.label("lblJobTotal"), "total");
    }

    void timerButtons()
    {
        JobBench bench;
        bench.open(0);
        const std::pair<const char*, QString> presses[] = {
            {"cmdStart", u"0:0:0:Pause"_s}, {"cmdStart", u"0:1:5:Start"_s}, {"cmdStop", u"0:1:5:Start"_s},
            {"cmdStart", u"0:1:5:Pause"_s}, {"cmdStop", u"0:2:10:Start"_s}, {"cmdStart", u"0:2:10:Pause"_s},
            {"cmdReset", u"0:0:0:Start"_s}, {"cmdStop", u"0:0:0:Start"_s},  {"cmdStart", u"0:0:0:Pause"_s}};
        for (const auto& [button, timer] : presses) {
            bench.tick(65);
            click(bench.form, button);
            QCOMPARE(bench.timer(), timer);
            QCOMPARE(bench.label("lblJob_7"), u"8/18/2004 9:30:00 AM"_s);
            bench.now = bench.now.addSecs(65);
        }
    }

    void savesTheRow()
    {
        JobBench bench;
        const QStringList before = bench.rows("jobs");
        bench.open(0);
        bench.enterCharacters(u"1300"_s);
        click(bench.form, "cmdStart");
        bench.tick(65);
        click(bench.form, "cmdSave");
        QCOMPARE(bench.rows("jobs"),
                 QStringList(u"1|8/18/2004|1|1|R|8/18/2004 9:30:00 AM|1300|20|1:5|."_s) + before.mid(1));
        QVERIFY(!bench.isOpen());
        QCOMPARE(bench.shell.calls, bench.lockedAndFreed);
        QCOMPARE(bench.label("txtTotal"), u"$6.90"_s);
        QCOMPARE(bench.timer() + bench.label("lblJob_8") + bench.label("lblJobTotal"), u"0:0:0:Start"_s);
    }

    void untouchedTimerKeepsStartAndLength()
    {
        JobBench bench;
        bench.open(0);
        click(bench.form, "cmdSave");
        QCOMPARE(bench.stored(0), u"1|8/18/2004|1|1|R|8/18/2004 8:05:00 AM|6500|100|1:5:7|."_s);
        bench.open(1);
        click(bench.form, "cmdSave");
        QCOMPARE(bench.stored(1), u"2|8/18/2004|2|2|R|(null)|0|1|0:0|."_s);
    }

    void firstJobStartsWhenSaved()
    {
        JobBench bench;
        bench.open(1);
        click(bench.form, "cmdSave");
        QCOMPARE(bench.stored(1), u"2|8/18/2004|2|2|R|8/18/2004 9:30:00 AM|0|1|..|."_s);
    }

    // The list is then that of the job's day, not of today.
    void closesUnsavedAndKeepsTheStartUntilSaved()
    {
        JobBench bench("job", {2004, 8, 31});
        const QStringList before = bench.rows("jobs");
        bench.open(0);
        bench.enterCharacters(u"1300"_s);
        click(bench.form, "cmdStart");
        bench.tick(3);
        click(bench.form, "cmdClose");
        QCOMPARE(bench.rows("jobs"), before);
        QCOMPARE(bench.ids(), u"6"_s);
        QCOMPARE(bench.timer() + bench.label("lblJob_4"), u"0:0:0:Start"_s);
        bench.now = bench.now.addSecs(3600);
        for (const QString& start : {u"8/18/2004 9:30:00 AM"_s, u"8/18/2004 10:30:00 AM"_s}) {
            bench.open(0);
            click(bench.form, "cmdStart");
            QCOMPARE(bench.label("lblJob_7"), start);
            click(bench.form, "cmdSave");
        }
    }

    // The list is that of today, which has no jobs, and not of the job's day.
    void deletes()
    {
        JobBench bench;
        const QStringList before = bench.rows("jobs");
        bench.open(0);
        click(bench.form, "cmdStart");
        bench.tick(5);
        bench.now = values::dateTime(QDate(2004, 1, 1));
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            QVERIFY(bench.isOpen());
            QCOMPARE(bench.rows("jobs"), before);
            bench.answers.expectBox(u"Are you sure you want to delete this job?"_s, answer);
            click(bench.form, "cmdDeleteJob");
        }
        QVERIFY(!bench.isOpen());
        QCOMPARE(bench.rows("jobs"), before.mid(1));
        QCOMPARE(bench.gridRows().join(u' ') + bench.label("txtCount") + bench.label("txtTotal"), QString());
        QCOMPARE(bench.shell.calls, bench.lockedAndFreed);
        bench.tick(5);
        QCOMPARE(bench.timer() + bench.label("lblJob_7") + bench.label("lblJob_8"), u"0:0:0:Start"_s);
    }

    void refusedSaveStillCloses()
    {
        JobBench bench;
        bench.folder.run(u"update jobs set jobreference=\"O'Brien\" where id=1"_s);
        bench.list("job");
        const QStringList before = bench.rows("jobs");
        bench.open(0);
        bench.answers.expectBox(
            u"Error -2147217900 (Syntax error in the statement near ':5:7',jobuploaded='.' where id=1'.) in procedure ActionQry of Module modMain"_s);
        click(bench.form, "cmdSave");
        QVERIFY(!bench.isOpen());
        QCOMPARE(bench.rows("jobs"), before);
    }
};

QTEST_MAIN(TestJobPanel)
#include "tst_jobPanel.moc"
