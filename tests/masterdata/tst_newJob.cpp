#include "masterdata/frmAddJob.h"
#include "support/bench.h"
#include "support/table.h"

struct NewJob : Bench {
    NewJob() { form.show(); }

    void fill()
    {
        choose(form, "cmbAcct", "Zed Clinic");
        choose(form, "cmbType", "Notes");
        type(form, "txtFields_1", "A-1");
    }

    masterdata::frmAddJob form{shell, nullptr};
};

class TestNewJob : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Only the client's types are offered; another client needs another choice.
    void storesAndOpensTheJob()
    {
        NewJob bench;
        QCOMPARE(textOf(bench.form, "txtFields_0") + textOf(bench.form, "cmbAcct"), "8/18/2004");
        QCOMPARE(entries(bench.form, "cmbAcct"), QStringList({"Adams", "Brown", "Zed Clinic"}));
        choose(bench.form, "cmbAcct", "Adams");
        choose(bench.form, "cmbType", "Letters");
        choose(bench.form, "cmbAcct", "Zed Clinic");
        QCOMPARE(entries(bench.form, "cmbType"), QStringList({"Notes", "Visits"}));
        QCOMPARE(textOf(bench.form, "cmbType"), "");
        bench.fill();
        type(bench.form, "txtFields_0", "13/8/2004");
        QTest::keyClick(&find<QWidget>(bench.form, "txtFields_1"), Qt::Key_Return);
        QVERIFY(bench.form.isHidden());
        QCOMPARE(bench.rows("jobs").mid(8), QStringList("9|8/13/2004|1|1|A-1|(null)|0|0|(null)|."));
        QCOMPARE(bench.shell.calls, QStringList("OpenJob(9,A-1,1,8/13/2004)"));
    }

    void staysOpenOnBadEntry_data()
    {
        const char* const incomplete = "Please make sure you have entered all information.";
        addRows({{"box", "text", "message"},
                 {"no date", "txtFields_0", "", incomplete},
                 {"no client", "cmbAcct", "", incomplete},
                 {"no type", "cmbType", "", incomplete},
                 {"no reference", "txtFields_1", "", incomplete},
                 {"no such client", "cmbAcct", "Nobody", "You must select from the list."},
                 {"no such type", "cmbType", "Nothing", "You must select from the list."},
                 {"no such day", "txtFields_0", "2/30/2004", "Please insert a date in this field."}});
    }

    void staysOpenOnBadEntry()
    {
        NewJob bench;
        bench.fill();
        type(bench.form, qPrintable(cell("box")), cell("text"));
        find<QWidget>(bench.form, "cmdSave").setFocus();
        bench.answers.expectBox(cell("message"));
        click(bench.form, "cmdSave");
        QVERIFY(bench.form.isVisible());
        QTEST(bench.form.focusWidget()->objectName(), "box");
        // Ready to be typed over.
        QTest::keyClicks(bench.form.focusWidget(), "x");
        QCOMPARE(textOf(bench.form, qPrintable(cell("box"))), "x");
        click(bench.form, "cmdClose");
        QVERIFY(bench.form.isHidden());
        QCOMPARE(bench.rows("jobs").size(), 8);
        QCOMPARE(bench.shell.calls, QStringList());
    }

    void emptyTypeListSendsBack()
    {
        for (const bool withClient : {false, true}) {
            NewJob bench;
            QVERIFY(QTest::qWaitForWindowActive(&bench.form));
            if (withClient)
                choose(bench.form, "cmbAcct", "Brown"); // who has no types
            find<QWidget>(bench.form, "cmbAcct").setFocus();
            bench.answers.expectBox("You must select a client first to populate this list.");
            QTest::keyClick(bench.form.focusWidget(), Qt::Key_Tab);
            QCOMPARE(bench.form.focusWidget()->objectName(), "cmbType");
            QTRY_COMPARE(bench.form.focusWidget()->objectName(), "cmbAcct");
        }
    }

    void refusedJobOpensTheNewestIfAny()
    {
        for (const bool withJobs : {true, false}) {
            NewJob bench;
            if (!withJobs)
                bench.folder.run("delete from jobs");
            bench.fill();
            type(bench.form, "txtFields_1", "O'Brien");
            bench.expectSyntaxError("in string in query expression '')'.");
            click(bench.form, "cmdSave");
            QCOMPARE(bench.form.isVisible(), !withJobs);
            QCOMPARE(bench.rows("jobs").size(), withJobs ? 8 : 0);
            QCOMPARE(bench.shell.calls, withJobs ? QStringList("OpenJob(8,R,1,8/18/2004)") : QStringList());
        }
    }
};

QTEST_MAIN(TestNewJob)
#include "tst_newJob.moc"
