#include "workspaceBench.h"

#include "workspace/fitColumns.h"

#include <QClipboard>
#include <QDateEdit>
#include <QHeaderView>

using namespace Qt::StringLiterals;

static const QString aboutToDelete = "You're about to delete a record!";

struct ListBench : WorkspaceBench {
    using WorkspaceBench::WorkspaceBench;

    bool isChosen(const char* option) const { return find<QAbstractButton>(form, option).isChecked(); }
    QString totals() const { return label("txtCount") + label("txtTotal"); }
};

class TestLists : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsLists_data()
    {
        const char* const editRecord = "To edit a record click the item in the grid below.";
        addRows(
            {{"title", "instruction", "columns", "rows", "totals"},
             {"accts", "Clients List", editRecord, "ID|Name", "1|Zed Clinic;2|Adams;3|Brown", ""},
             {"type", "Job Type List", editRecord, "ID|Acct|Type|Rate|Unit|Char/Line",
              "1|1|Notes|$0.12|Line|65;2|2|Letters|$4.50|Report|0;3|1|Visits|$30.00|Hourly|0;"
              "4|7|Of a client deleted|$1.00|Misc|",
              ""},
             {"job", "Job List",
              "To edit or delete a job FIRST populate the grid below and then click the job you want to start.",
              "ID|Date|Client|Acct/Type|Reference #|Start Time|Time|Submitted|Lines|$$$",
              "1|8/18/2004|1|1|R|8/18/2004 8:05:30 AM|1:5:7|.|100|$12.00;2|8/18/2004|2|2|R|||.|1|$4.50", "2$16.50"}});
    }

    void showsLists()
    {
        ListBench bench(QTest::currentDataTag());
        QTEST(bench.form.windowTitle(), "title");
        QTEST(bench.gridRows().join(u';'), "rows");
        QTEST(bench.totals(), "totals");
        QCOMPARE(bench.label("lblGridInstr"),
                 cell("instruction") + "  Please click in the column the arrow points to.");
        QTEST(bench.headings(), "columns");
        for (int i = 0; i < bench.grid.model()->columnCount(); ++i)
            QVERIFY(bench.grid.columnWidth(i) >= bench.grid.horizontalHeader()->sectionSizeHint(i));
        for (const char* frame : {"frList", "frDisplay"})
            QCOMPARE(find<QWidget>(bench.form, frame).isVisible(), !cell("totals").isEmpty());
    }

    void listsPeriods_data()
    {
        addRows({{"option", "client", "type", "ids"},
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
        QCOMPARE(entries(bench.form, "cmbClient"), QStringList({"Zed Clinic", "Adams", "Brown", "All"}));
        QVERIFY(bench.isChosen("optRange_0"));
        for (const auto& [picker, date, option] : {std::tuple("dtpFrom", QDate(2004, 7, 31), "optRange_3"),
                                                   {"dtpOther", QDate(2004, 8, 31), "optRange_4"},
                                                   {"dtpTo", QDate(2004, 8, 19), "optRange_3"}}) {
            auto& chosen = find<QDateEdit>(bench.form, picker);
            QCOMPARE(chosen.date(), QDate(2004, 8, 18));
            chosen.setDate(date);
            QVERIFY(bench.isChosen(option));
        }
        click(bench.form, qPrintable(cell("option")));
        choose(bench.form, "cmbClient", cell("client"));
        choose(bench.form, "cmbAcct", cell("type"));
        click(bench.form, "cmdList");
        QTEST(bench.ids(), "ids");
        // Finding nothing changes neither the count nor the chosen period.
        const bool isFound = !cell("ids").isEmpty();
        QCOMPARE(bench.label("txtCount"), QString::number(isFound ? bench.gridRows().size() : 2));
        QVERIFY(bench.isChosen(isFound ? "optRange_0" : qPrintable(cell("option"))));
    }

    void dayWithoutJobsKeepsTotals()
    {
        ListBench bench;
        bench.list("accts");
        bench.list("job", {2004, 1, 1});
        QCOMPARE(bench.totals(), "2$16.50");
        bench.answers.expectBox(u"You select a row from the data grid that HAS DATA IN IT.\n"
                                "Populate the grid and then make your selection."_s);
        QTest::mouseClick(bench.grid.viewport(), Qt::LeftButton);
        find<QDateEdit>(bench.form, "dtpOther").setDate({2004, 1, 1});
        click(bench.form, "cmdList");
        QCOMPARE(bench.grid.model()->columnCount(), 0);
        QCOMPARE(bench.totals(), "2$16.50");
        QVERIFY(bench.isChosen("optRange_4"));
        QTest::mouseClick(bench.grid.viewport(), Qt::LeftButton);
        QCOMPARE(bench.shell.calls, QStringList());
    }

    void opensRecords()
    {
        ListBench bench;
        bench.folder.run("insert into jobacct(id,acctname)values(40000,'Late')");
        bench.list("accts");
        bench.answers.expectDialog("frmAddAcct", [](QWidget& form) {
            type(form, "txtName", "New name");
            click(form, "cmdSave");
        });
        bench.clickRow(1);
        QCOMPARE(bench.gridRows().value(1), "2|New name");
        QCOMPARE(bench.grid.currentIndex().row(), 1);
        // It is gone.
        bench.folder.run("delete from jobacct where id=2");
        bench.list("accts");
        QCOMPARE(bench.grid.currentIndex().row(), 0);
        // An id too large for the form.
        bench.expectEnd(6, "Overflow");
        bench.clickRow(2);
    }

    // The rows that stay still belong to the same list.
    void rowsStayWithoutDataFile()
    {
        ListBench bench;
        bench.answers.expectBox("Are you sure?", QMessageBox::Yes, aboutToDelete);
        bench.withoutFile("data/dB.mdb", "dgList_BeforeDelete of Form frmJobs",
                          [&] { QTest::keyClick(&bench.grid, Qt::Key_Delete); });
        bench.withoutFile("data/dB.mdb", "ShowList of Form frmJobs", [&] { bench.list("accts"); });
        QCOMPARE(bench.ids(), "1 2");
        bench.clickRow(1);
        QCOMPARE(bench.label("lblJobID"), "2");
    }

    void showsAmountsBeyondMoney()
    {
        ListBench bench;
        store::Connection(modMain::DBConnString).runNative("UPDATE accttype SET acctrate = 1e15 WHERE id = 1");
        bench.list("type");
        QCOMPARE(bench.gridRows().value(0), "1|1|Notes|1000000000000000|Line|65");
        for (int again = 0; again < 2; ++again)
            bench.answers.expectBox("Error 6 (Overflow) in procedure ShowList of Form frmJobs");
        bench.list("job");
        bench.grid.grab();
        QCOMPARE(bench.gridRows().value(0).section(u'|', -1), "1E+17");
        click(bench.form, "cmdList");
        QCOMPARE(bench.ids(), "1 2");
    }

    void ignoresDragsAndOtherButtons()
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

    void deletesRows()
    {
        ListBench bench;
        for (const auto& [mode, table, answer, left] : {std::tuple("accts", "jobacct", QMessageBox::Yes, "1 3"),
                                                        {"type", "accttype", QMessageBox::No, "1 2 3 4"},
                                                        {"job", "jobs", QMessageBox::Yes, "1"}}) {
            bench.list(mode);
            QStringList stored = bench.rows(table);
            QTest::keyClick(&bench.grid, Qt::Key_Down);
            QTest::keyClick(&bench.grid, Qt::Key_A, Qt::ControlModifier);
            bench.answers.expectBox("Are you sure?", answer, aboutToDelete);
            QTest::keyClick(&bench.grid, Qt::Key_Delete);
            QCOMPARE(bench.grid.selectionModel()->selectedRows(), QModelIndexList{bench.grid.currentIndex()});
            QCOMPARE(bench.ids(), left);
            if (answer == QMessageBox::Yes)
                stored.removeAt(1);
            QCOMPARE(bench.rows(table), stored);
        }
    }

    // The amounts stay in sight, however narrow the window is; a wide one shows more of the references.
    void columnsShareTheRoom()
    {
        using Widths = std::vector<int>;
        const std::vector<workspace::ColumnSpan> columns{{50, 50}, {100, 40}, {200, 50}, {80, 80}};
        QCOMPARE(workspace::fitColumns(columns, 2, 500), Widths({50, 100, 270, 80}));
        QCOMPARE(workspace::fitColumns(columns, 2, 330), Widths({50, 100, 100, 80}));
        QCOMPARE(workspace::fitColumns(columns, 2, 250), Widths({50, 70, 50, 80}));
        QCOMPARE(workspace::fitColumns(columns, 2, 1), Widths({50, 40, 50, 80}));
        ListBench bench;
        for (const int width : {1600, 683}) {
            bench.form.resize(width, 640);
            const int end = bench.grid.columnViewportPosition(9) + bench.grid.columnWidth(9);
            QVERIFY2(end <= bench.grid.viewport()->width(), qPrintable(QString::number(end)));
            QVERIFY(end > bench.grid.viewport()->width() - 30);
        }
    }

    void tellsWhatTheNumbersMean()
    {
        ListBench bench;
        QCOMPARE(bench.label("lblRow"), u"Zed Clinic  ·  Notes  ·  Line at $0.12  ·  1:5:7  ·  $11.06 an hour"_s);
        QTest::keyClick(&bench.grid, Qt::Key_Down);
        QCOMPARE(bench.label("lblRow"), u"Adams  ·  Letters  ·  Report at $4.50"_s);
        const auto tip = [&](int column) {
            return bench.grid.model()->index(0, column).data(Qt::ToolTipRole).toString();
        };
        QCOMPARE(tip(2) + tip(3) + tip(4), "<p>Zed Clinic</p><p>Notes</p><p>R</p>");
        bench.list("type");
        QCOMPARE(tip(1), "<p>Zed Clinic</p>");
        QVERIFY(find<QWidget>(bench.form, "lblRow").isHidden());
        // More seconds than 32 bits hold.
        bench.folder.run("update jobs set joblength='1193046:28:20' where id=1");
        bench.list("job");
        QVERIFY2(bench.label("lblRow").endsWith("$0.00 an hour"), qPrintable(bench.label("lblRow")));
    }

    void copiesRowsForASpreadsheet()
    {
        ListBench bench;
        bench.folder.run("update jobs set jobreference='=1+1' where id=2");
        bench.list("job");
        QTest::keyClick(&bench.grid, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&bench.grid, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 bench.headings().replace(u'|', u'\t') +
                     "\n1\t8/18/2004\t1\t1\tR\t8/18/2004 8:05:30 AM\t1:5:7\t.\t100\t$12.00"
                     "\n2\t8/18/2004\t2\t2\t =1+1\t\t\t.\t1\t$4.50\n");
    }
};

QTEST_MAIN(TestLists)
#include "tst_lists.moc"
