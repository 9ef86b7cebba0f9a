#include "masterdata/frmAddJob.h"
#include "support/bench.h"
#include "support/find.h"
#include "support/table.h"

using namespace Qt::StringLiterals;

struct NewJob : Bench {
    NewJob() { form.show(); }

    void fill()
    {
        choose(form, "cmbAcct", u"Zed Clinic"_s);
        choose(form, "cmbType", u"Notes"_s);
        type(form, "txtFields_1", u"A-1"_s);
    }

    masterdata::frmAddJob form{shell, nullptr};
};

class TestNewJob : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void storesAndOpensTheJob()
    {
        NewJob bench;
        QCOMPARE(shown(bench.form, "txtFields_0"), u"8/18/2004"_s);
        QCOMPARE(entries(bench.form, "cmbAcct"), (QStringList{u"Adams"_s, u"Brown"_s, u"Zed Clinic"_s}));
        QCOMPARE(find<QComboBox>(bench.form, "cmbAcct").currentText(), QString());
        bench.fill();
        type(bench.form, "txtFields_0", u"13/8/2004"_s);
        QTest::keyClick(&find<QWidget>(bench.form, "txtFields_1"), Qt::Key_Return);
        QVERIFY(bench.form.isHidden());
        QCOMPARE(bench.rows("jobs").mid(8), QStringList(u"9|8/13/2004|1|1|A-1|(null)|0|0|(null)|."_s));
        QCOMPARE(bench.shell.calls, QStringList(u"OpenJob(9,A-1,1,8/13/2004)"_s));
    }

    void otherClientEmptiesTheTypeAndCloseStoresNothing()
    {
        NewJob bench;
        bench.fill();
        QCOMPARE(entries(bench.form, "cmbType"), (QStringList{u"Notes"_s, u"Visits"_s}));
        choose(bench.form, "cmbAcct", u"Adams"_s);
        QCOMPARE(entries(bench.form, "cmbType"), QStringList(u"Letters"_s));
        QCOMPARE(find<QComboBox>(bench.form, "cmbType").currentText(), QString());
        click(bench.form, "cmdClose");
        QVERIFY(bench.form.isHidden());
        QCOMPARE(bench.rows("jobs").size(), 8);
        QCOMPARE(bench.shell.calls, QStringList());
    }

    void staysOpenOnBadEntry_data()
    {
        const char* const incomplete = "Please make sure you have entered all information.";
        table({{"box", "text", "message", "focus"},
               {"no date", "txtFields_0", "", incomplete, "txtFields_0"},
               {"no client", "cmbAcct", "", incomplete, "cmbAcct"},
               {"no type", "cmbType", "", incomplete, "cmbType"},
               {"no reference", "txtFields_1", "", incomplete, "txtFields_1"},
               {"no such client", "cmbAcct", "Nobody", "You must select from the list.", "cmbAcct"},
               {"no such type", "cmbType", "Nothing", "You must select from the list.", "cmbType"},
               {"no such day", "txtFields_0", "2/30/2004", "Please insert a date in this field.", "txtFields_0"}});
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
        QTEST(bench.form.focusWidget()->objectName(), "focus");
        // Ready to be typed over.
        auto* combo = qobject_cast<QComboBox*>(bench.form.focusWidget());
        const auto* line = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(bench.form.focusWidget());
        QTEST(line->selectedText(), "text");
        QCOMPARE(bench.rows("jobs").size(), 8);
        QCOMPARE(bench.shell.calls, QStringList());
    }

    void emptyTypeListSendsBack()
    {
        for (const bool withClient : {false, true}) {
            NewJob bench;
            QVERIFY(QTest::qWaitForWindowActive(&bench.form));
            if (withClient)
                choose(bench.form, "cmbAcct", u"Brown"_s); // who has no types
            find<QWidget>(bench.form, "cmbAcct").setFocus();
            bench.answers.expectBox(u"You must select a client first to populate this list."_s);
            QTest::keyClick(bench.form.focusWidget(), Qt::Key_Tab);
            QCOMPARE(bench.form.focusWidget()->objectName(), u"cmbType"_s);
            QTRY_COMPARE(bench.form.focusWidget()->objectName(), u"cmbAcct"_s);
        }
    }

    void refusedJobOpensTheNewestIfAny()
    {
        for (const bool withJobs : {true, false}) {
            NewJob bench;
            if (!withJobs)
                bench.folder.run(u"delete from jobs"_s);
            bench.fill();
            type(bench.form, "txtFields_1", u"O'Brien"_s);
            bench.answers.expectBox(
                u"Error -2147217900 (Syntax error in string in query expression '')'.) in procedure "
                "ActionQry of Module modMain"_s);
            click(bench.form, "cmdSave");
            QCOMPARE(bench.form.isVisible(), !withJobs);
            QCOMPARE(bench.rows("jobs").size(), withJobs ? 8 : 0);
            QCOMPARE(bench.shell.calls, withJobs ? QStringList(u"OpenJob(8,R,1,8/18/2004)"_s) : QStringList());
        }
    }
};

QTEST_MAIN(TestNewJob)
#include "tst_newJob.moc"
