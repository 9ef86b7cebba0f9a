#include "workspaceBench.h"

#include "ui/twips.h"

#include <QDateEdit>
#include <QFile>
#include <QHeaderView>

using namespace Qt::StringLiterals;

static const QString aboutToDelete = u"You're about to delete a record!"_s;

struct ListBench : WorkspaceBench {
    using WorkspaceBench::WorkspaceBench;

    void pick(const char* picker, QDate date) { find<QDateEdit>(form, picker).setDate(date); }
    bool isChosen(const char* option) const { return find<QAbstractButton>(form, option).isChecked(); }
    QString totals() const { return label("txtCount") + label("txtTotal"); }
};

class TestLists : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsLists_data()
    {
        const char* const editRecord = "To edit a record click the item in the grid below.";
        table({{"title", "instruction", "columns", "rows", "totals"},
               {"accts", "Clients List", editRecord, "ID 500|Name 2000", "1|Zed Clinic;2|Adams;3|Brown", ""},
               {"type", "Job Type List", editRecord, "ID 500|Acct 500|Type 2000|Rate 800|Unit 1000|Char/Line 1000",
                "1|1|Notes|$0.12|Line|65;2|2|Letters|$4.50|Report|0;3|1|Visits|$30.00|Hourly|0;"
                "4|7|Of a client deleted|$1.00|Misc|",
                ""},
               {"job", "Job List",
                "To edit or delete a job FIRST populate the grid below and then click the job you want to start.",
                "ID 700|Date 1000|Client 550|Acct/Type 930|Reference # 1650|Start Time 1950|Time 800|Submitted 1500|"
                "Lines 525|$$$ 675",
                "1|8/18/2004|1|1|R|8/18/2004 8:05:30 AM|1:5:7|.|100|$12.00;2|8/18/2004|2|2|R|||.|1|$4.50", "2$16.50"}});
    }

    void showsLists()
    {
        ListBench bench(QTest::currentDataTag());
        QTEST(bench.form.windowTitle(), "title");
        QTEST(bench.gridRows().join(u';'), "rows");
        QTEST(bench.totals(), "totals");
        QCOMPARE(bench.label("lblGridInstr"),
                 cell("instruction") + u"  Please click in the column the arrow points to."_s);
        const QStringList columns = cell("columns").split(u'|');
        QCOMPARE(bench.grid.model()->columnCount(), columns.size());
        for (int i = 0; i < columns.size(); ++i) {
            QCOMPARE(bench.grid.model()->headerData(i, Qt::Horizontal).toString(), columns[i].section(u' ', 0, -2));
            QVERIFY(bench.grid.columnWidth(i) >= ui::designedWidth(bench.grid, columns[i].section(u' ', -1).toInt()));
            QVERIFY(bench.grid.columnWidth(i) >= bench.grid.horizontalHeader()->sectionSizeHint(i));
        }
        for (const char* frame : {"frList", "frDisplay"})
            QCOMPARE(find<QWidget>(bench.form, frame).isVisible(), !cell("totals").isEmpty());
    }

    void listsPeriods_data()
    {
        table({{"option", "client", "type", "ids"},
               {"today", "optRange_0", "All", "All", "1 2"},
               {"week", "optRange_1", "All", "All", "1 2 3 4"},
               {"month", "optRange_2", "All", "All", "1 2 3 4 5 6"},
               {"from, to", "optRange_3", "All", "All", "1 2 3 7"},
               {"other", "optRange_4", "All", "All", "6"},
               {"one client", "optRange_1", "Adams", "All", "2 4"},
               {"one type", "optRange_2", "All", "Notes", "1 3 5 6"},
               {"all at once", "optRange_1", "Adams", "Notes", ""}});
    }

    void listsPeriods()
    {
        ListBench bench;
        QCOMPARE(entries(bench.form, "cmbClient"), (QStringList{u"Zed Clinic"_s, u"Adams"_s, u"Brown"_s, u"All"_s}));
        bench.pick("dtpFrom", {2004, 7, 31});
        bench.pick("dtpOther", {2004, 8, 31});
        click(bench.form, qPrintable(cell("option")));
        choose(bench.form, "cmbClient", cell("client"));
        choose(bench.form, "cmbAcct", cell("type"));
        click(bench.form, "cmdList");
        QTEST(bench.ids(), "ids");
        // What finds nothing leaves count and choice alone.
        const bool isFound = !cell("ids").isEmpty();
        QCOMPARE(bench.label("txtCount"), QString::number(isFound ? bench.gridRows().size() : 2));
        QVERIFY(bench.isChosen(isFound ? "optRange_0" : qPrintable(cell("option"))));
    }

    void pickerChoosesItsPeriod()
    {
        ListBench bench;
        QVERIFY(bench.isChosen("optRange_0"));
        for (const auto& [picker, option] :
             {std::pair("dtpFrom", "optRange_3"), {"dtpOther", "optRange_4"}, {"dtpTo", "optRange_3"}}) {
            QCOMPARE(find<QDateEdit>(bench.form, picker).date(), QDate(2004, 8, 18));
            QTest::keyClick(&find<QWidget>(bench.form, picker), Qt::Key_Up);
            QVERIFY(bench.isChosen(option));
        }
        QCOMPARE(bench.ids(), u"1 2"_s);
    }

    void dayWithoutJobsKeepsTotals()
    {
        ListBench bench;
        bench.list("accts");
        bench.list("job", {2004, 1, 1});
        QCOMPARE(bench.totals(), u"2$16.50"_s);
        bench.answers.expectBox(u"You select a row from the data grid that HAS DATA IN IT.\n"
                                "Populate the grid and then make your selection."_s);
        QTest::mouseClick(bench.grid.viewport(), Qt::LeftButton);
        bench.pick("dtpOther", {2004, 1, 1});
        click(bench.form, "cmdList");
        QCOMPARE(bench.grid.model()->columnCount(), 0);
        QCOMPARE(bench.totals(), u"2$16.50"_s);
        QVERIFY(bench.isChosen("optRange_4"));
        QTest::mouseClick(bench.grid.viewport(), Qt::LeftButton);
        QCOMPARE(bench.shell.calls, QStringList());
    }

    void opensRecords()
    {
        ListBench bench("accts");
        bench.answers.expectDialog(u"frmAddAcct"_s, [](QWidget& form) {
            type(form, "txtName", u"New name"_s);
            click(form, "cmdSave");
        });
        bench.clickRow(1);
        QCOMPARE(bench.gridRows().value(1), u"2|New name"_s);
        QCOMPARE(bench.grid.currentIndex().row(), 1);
        bench.list("type");
        bench.answers.expectDialog(u"frmAddType"_s, [](QWidget& form) {
            QCOMPARE(shown(form, "txtFields_0"), u"Letters"_s);
            click(form, "cmdCancel");
        });
        bench.clickRow(1);
    }

    // The rows that stay are still what they were.
    void refusedListLeavesTheRowsTheirMeaning()
    {
        ListBench bench;
        const QString file = bench.folder.mainFile();
        QVERIFY(QFile::rename(file, file + u'~'));
        bench.answers.expectBox(
            u"Error -2147467259 (Could not find file '%1'. Put it back, for example from a backup.) "
            "in procedure ShowList of Form frmJobs"_s.arg(file));
        bench.list("accts");
        QVERIFY(QFile::rename(file + u'~', file));
        bench.clickRow(1);
        QCOMPARE(bench.label("lblJobID"), u"2"_s);
    }

    // Neither the first list of a workspace nor a later one ends the program; the next one finds all that was missing.
    void firstListWithoutADataFile()
    {
        Bench bench;
        workspace::frmJobs form(bench.shell);
        const QString file = bench.folder.mainFile();
        QVERIFY(QFile::rename(file, file + u'~'));
        bench.answers.expectBox(
            u"Error -2147467259 (Could not find file '%1'. Put it back, for example from a backup.) "
            "in procedure ShowList of Form frmJobs"_s.arg(file));
        form.ShowList(u"job"_s, QDateTime(), QString());
        QVERIFY(QFile::rename(file + u'~', file));
        form.ShowList(u"job"_s, QDateTime(), QString());
        QCOMPARE(entries(form, "cmbAcct").last() + shown(form, "txtCount"), u"All2"_s);
    }

    void amountsThatNoMoneyHolds()
    {
        ListBench bench;
        store::Connection(modMain::DBConnString).runNative("UPDATE accttype SET acctrate = 1e15 WHERE id = 1");
        bench.list("type");
        QCOMPARE(bench.gridRows().value(0), u"1|1|Notes|1000000000000000|Line|65"_s);
        for (int again = 0; again < 2; ++again)
            bench.answers.expectBox(u"Error 6 (Overflow) in procedure ShowList of Form frmJobs"_s);
        bench.list("job");
        bench.grid.grab();
        QCOMPARE(bench.gridRows().value(0).section(u'|', -1), u"1E+17"_s);
        click(bench.form, "cmdList");
        QCOMPARE(bench.ids(), u"1 2"_s);
    }

    void idTooLargeForAForm()
    {
        ListBench bench;
        bench.folder.run(u"insert into jobacct(id,acctname)values(40000,'Late')"_s);
        bench.list("accts");
        bench.expectEnd(6, "Overflow");
        bench.clickRow(3);
    }

    void gesturesThatAreNoClick()
    {
        ListBench bench;
        const auto gesture = [&](Qt::MouseButton button, QPoint press, QPoint release) {
            QTest::mousePress(bench.grid.viewport(), button, {}, press);
            QTest::mouseRelease(bench.grid.viewport(), button, {}, release);
            QCOMPARE(bench.shell.calls, QStringList());
        };
        gesture(Qt::LeftButton, {20, 10}, {80, 10});   // a drag
        gesture(Qt::LeftButton, {20, 150}, {20, 150}); // below the rows
        gesture(Qt::RightButton, {20, 10}, {20, 10});
    }

    void deletesRows_data()
    {
        table({{"answer", "table", "left"},
               {"accts", "Yes", "jobacct", "1 3"},
               {"type", "No", "accttype", "1 2 3 4"},
               {"job", "Yes", "jobs", "1"}});
    }

    void deletesRows()
    {
        ListBench bench(QTest::currentDataTag());
        const bool yes = cell("answer") == u"Yes";
        const auto stored = [&] { return bench.rows(qPrintable(cell("table"))); };
        const QStringList before = stored();
        QTest::keyClick(&bench.grid, Qt::Key_Down);
        bench.answers.expectBox(u"Are you sure?"_s, yes ? QMessageBox::Yes : QMessageBox::No, aboutToDelete);
        QTest::keyClick(&bench.grid, Qt::Key_Delete);
        QTEST(bench.ids(), "left");
        QCOMPARE(stored(), yes ? before.mid(0, 1) + before.mid(2) : before);
    }

    void refusedDeleteKeepsTheRow()
    {
        ListBench bench("accts");
        const QString file = bench.folder.mainFile();
        QVERIFY(QFile::remove(file));
        bench.answers.expectBox(u"Are you sure?"_s, QMessageBox::Yes, aboutToDelete);
        bench.answers.expectBox(
            u"Error -2147467259 (Could not find file '%1'. Put it back, for example from a backup.) "
            "in procedure dgList_BeforeDelete of Form frmJobs"_s.arg(file));
        QTest::keyClick(&bench.grid, Qt::Key_Delete);
        QCOMPARE(bench.ids(), u"1 2 3"_s);
    }
};

QTEST_MAIN(TestLists)
#include "tst_lists.moc"
