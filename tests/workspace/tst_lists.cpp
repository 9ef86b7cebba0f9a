#include "workspaceBench.h"

#include "ui/twips.h"

#include <QDateEdit>
#include <QFile>
#include <QHeaderView>
#include <QWindow>

using namespace Qt::StringLiterals;

static const QDate dayWithoutJobs(2004, 1, 1);
static const QString slowDown = u"Slow down on the mouse clicks there!\nPlease use single clicks only."_s;
static const QString aboutToDelete = u"You're about to delete a record!"_s;

class TestLists : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsLists_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("instruction");
        QTest::addColumn<QString>("columns");
        QTest::addColumn<QStringList>("rows");
        const QString editRecord = u"To edit a record click the item in the grid below."_s;
        QTest::newRow("accts") << u"Clients List"_s << editRecord << u"ID 500|Name 2000"_s
                               << QStringList{u"1|Zed Clinic"_s, u"2|Adams"_s, u"3|Brown"_s};
        QTest::newRow("type") << u"Job Type List"_s << editRecord
                              << u"ID 500|Acct 500|Type 2000|Rate 800|Unit 1000|Char/Line 1000"_s
                              << QStringList{u"1|1|Notes|$0.12|Line|65"_s, u"2|2|Letters|$4.50|Report|0"_s,
                                             u"3|1|Visits|$30.00|Hourly|0"_s, u"4|7|Of a client deleted|$1.00|Misc|"_s};
        QTest::newRow("job") << u"Job List"_s
                             << u"To edit or delete a job FIRST populate the grid below and then click the job you "
                                "want to start."_s
                             << u"ID 700|Date 1000|Client 550|Acct/Type 930|Reference # 1650|Start Time 1950|Time 800|"
                                "Submitted 1500|Lines 525|$$$ 675"_s
                             << QStringList{u"1|8/18/2004|1|1|R|8/18/2004 8:05:30 AM|1:5:7|.|100|$12.00"_s,
                                            u"2|8/18/2004|2|2|R|||.|1|$4.50"_s};
    }

    void showsLists()
    {
        QFETCH(QString, instruction);
        QFETCH(QString, columns);
        WorkspaceBench bench(QTest::currentDataTag());
        QTEST(bench.form.windowTitle(), "title");
        QTEST(bench.gridRows(), "rows");
        QCOMPARE(bench.label("lblGridInstr"), instruction + u"  Please click in the column the arrow points to."_s);
        QCOMPARE(bench.grid.model()->columnCount(), columns.count(u'|') + 1);
        for (int i = 0; i < bench.grid.model()->columnCount(); ++i) {
            const QString column = columns.section(u'|', i, i);
            QCOMPARE(bench.grid.model()->headerData(i, Qt::Horizontal).toString(), column.section(u' ', 0, -2));
            QVERIFY(bench.grid.columnWidth(i) >= ui::designedWidth(bench.grid, column.section(u' ', -1).toInt()));
            QVERIFY(bench.grid.columnWidth(i) >= bench.grid.horizontalHeader()->sectionSizeHint(i));
        }
        const bool isJobList = bench.form.windowTitle() == u"Job List";
        for (const char* frame : {"frList", "frDisplay"})
            QCOMPARE(find<QWidget>(bench.form, frame).isVisible(), isJobList);
        QCOMPARE(bench.label("txtCount") + bench.label("txtTotal"), isJobList ? u"2$16.50"_s : QString());
    }

    void otherModeIsNone()
    {
        WorkspaceBench bench("accts");
        bench.answers.expectBox(u"Error -2147217900 (Invalid SQL statement; expected 'DELETE', 'INSERT', 'SELECT', or "
                                "'UPDATE'.) in procedure ShowList of Form frmJobs"_s);
        bench.list("JOB");
        QCOMPARE(bench.form.windowTitle(), QString());
        QCOMPARE(bench.ids(), u"1 2 3"_s);
        QVERIFY(!find<QWidget>(bench.form, "frList").isVisible());
    }

    void listsPeriods_data()
    {
        QTest::addColumn<QByteArray>("option");
        QTest::addColumn<QString>("client");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("expected");
        QTest::newRow("today") << "optRange_0"_ba << u"All"_s << u"All"_s << u"1 2"_s;
        QTest::newRow("week") << "optRange_1"_ba << u"All"_s << u"All"_s << u"1 2 3 4"_s;
        QTest::newRow("month") << "optRange_2"_ba << u"All"_s << u"All"_s << u"1 2 3 4 5 6"_s;
        QTest::newRow("from, to") << "optRange_3"_ba << u"All"_s << u"All"_s << u"1 2 3 7"_s;
        QTest::newRow("other") << "optRange_4"_ba << u"All"_s << u"All"_s << u"6"_s;
        QTest::newRow("one client") << "optRange_1"_ba << u"Adams"_s << u"All"_s << u"2 4"_s;
        QTest::newRow("one type") << "optRange_2"_ba << u"All"_s << u"Notes"_s << u"1 3 5 6"_s;
    }

    void listsPeriods()
    {
        QFETCH(QByteArray, option);
        QFETCH(QString, client);
        QFETCH(QString, type);
        WorkspaceBench bench;
        QCOMPARE(entries(bench.form, "cmbClient"), (QStringList{u"Zed Clinic"_s, u"Adams"_s, u"Brown"_s, u"All"_s}));
        find<QDateEdit>(bench.form, "dtpFrom").setDate(QDate(2004, 7, 31));
        find<QDateEdit>(bench.form, "dtpOther").setDate(QDate(2004, 8, 31));
        click(bench.form, option.constData());
        choose(bench.form, "cmbClient", client);
        choose(bench.form, "cmbAcct", type);
        click(bench.form, "cmdList");
        QTEST(bench.ids(), "expected");
        QCOMPARE(bench.label("txtCount"), QString::number(bench.gridRows().size()));
        QVERIFY(find<QAbstractButton>(bench.form, "optRange_0").isChecked());
    }

    void pickerChoosesItsPeriod()
    {
        WorkspaceBench bench;
        QVERIFY(find<QAbstractButton>(bench.form, "optRange_0").isChecked());
        for (const auto& [picker, option] :
             {std::pair("dtpFrom", "optRange_3"), {"dtpOther", "optRange_4"}, {"dtpTo", "optRange_3"}}) {
            QCOMPARE(find<QDateEdit>(bench.form, picker).date(), QDate(2004, 8, 18));
            QTest::keyClick(&find<QWidget>(bench.form, picker), Qt::Key_Up);
            QVERIFY(find<QAbstractButton>(bench.form, option).isChecked());
        }
        QCOMPARE(bench.ids(), u"1 2"_s);
    }

    void nothingFoundEmptiesTheGrid()
    {
        WorkspaceBench bench;
        find<QDateEdit>(bench.form, "dtpOther").setDate(dayWithoutJobs);
        click(bench.form, "cmdList");
        QCOMPARE(bench.grid.model()->columnCount(), 0);
        QCOMPARE(bench.label("txtCount") + bench.label("txtTotal"), u"2$16.50"_s);
        QVERIFY(find<QAbstractButton>(bench.form, "optRange_4").isChecked());
        QTest::mouseClick(bench.grid.viewport(), Qt::LeftButton);
    }

    void emptyJobListKeepsTotalsAndExplains()
    {
        WorkspaceBench bench;
        bench.list("accts");
        bench.list("job", dayWithoutJobs);
        QCOMPARE(bench.label("txtCount") + bench.label("txtTotal"), u"2$16.50"_s);
        bench.answers.expectBox(u"You select a row from the data grid that HAS DATA IN IT.\n"
                                "Populate the grid and then make your selection."_s);
        QTest::mouseClick(bench.grid.viewport(), Qt::LeftButton);
        QCOMPARE(bench.shell.calls, QStringList());
    }

    void opensRecords()
    {
        WorkspaceBench bench("accts");
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
        QTest::keyClick(&bench.grid, Qt::Key_Down);
        QTest::keyClick(&bench.grid, Qt::Key_Return);
    }

    void idTooLargeForAForm()
    {
        WorkspaceBench bench;
        bench.folder.run(u"insert into jobacct(id,acctname)values(40000,'Late')"_s);
        bench.list("accts");
        bench.expectEnd(6, "Overflow");
        bench.clickRow(3);
    }

    void gesturesThatAreNoClick()
    {
        struct Gesture {
            QPoint press, release;
            Qt::MouseButton button;
        };
        WorkspaceBench bench;
        for (const auto& [press, release, button] : {Gesture{{20, 10}, {80, 10}, Qt::LeftButton},   // a drag
                                                     Gesture{{20, 150}, {20, 150}, Qt::LeftButton}, // below the rows
                                                     Gesture{{20, 10}, {20, 10}, Qt::RightButton}}) {
            QTest::mousePress(bench.grid.viewport(), button, {}, press);
            QTest::mouseRelease(bench.grid.viewport(), button, {}, release);
            QCOMPARE(bench.shell.calls, QStringList());
        }
    }

    void doubleClickWarnsOnceOverTheJob()
    {
        WorkspaceBench bench;
        bench.answers.expectBox(slowDown);
        QTest::mouseDClick(bench.form.windowHandle(), Qt::LeftButton, {}, bench.placeOf(0));
        QTRY_COMPARE(bench.answers.differences(), QStringList());
        QTest::qWait(20);
        QCOMPARE(bench.label("lblJobID"), u"1"_s);
    }

    // The dialog blocks the window below it, which therefore gets no event of the second press.
    void doubleClickWarnsOnceOverADialog()
    {
        WorkspaceBench bench("type");
        QWindow* const window = bench.form.windowHandle();
        QCursor::setPos(bench.form.mapToGlobal(bench.placeOf(0)));
        bench.answers.expectDialog(u"frmAddType"_s, [&](QWidget& form) {
            QTest::mousePress(window, Qt::LeftButton, {}, bench.placeOf(0));
            QTRY_COMPARE(bench.answers.differences(), QStringList());
            QTest::mouseRelease(window, Qt::LeftButton, {}, bench.placeOf(0));
            click(form, "cmdCancel");
        });
        bench.answers.expectBox(slowDown);
        bench.clickRow(0);
    }

    void deletesRows_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<QString>("left");
        QTest::newRow("accts") << QMessageBox::Yes << "jobacct"_ba << u"1 3"_s;
        QTest::newRow("type") << QMessageBox::No << "accttype"_ba << u"1 2 3 4"_s;
        QTest::newRow("job") << QMessageBox::Yes << "jobs"_ba << u"1"_s;
    }

    void deletesRows()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        QFETCH(QByteArray, table);
        WorkspaceBench bench(QTest::currentDataTag());
        const QStringList before = bench.rows(table.constData());
        QTest::keyClick(&bench.grid, Qt::Key_Down);
        bench.answers.expectBox(u"Are you sure?"_s, answer, aboutToDelete);
        QTest::keyClick(&bench.grid, Qt::Key_Delete);
        QTEST(bench.ids(), "left");
        QCOMPARE(bench.rows(table.constData()), answer == QMessageBox::Yes ? before.mid(0, 1) + before.mid(2) : before);
    }

    void refusedDeleteKeepsTheRow()
    {
        WorkspaceBench bench("accts");
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
