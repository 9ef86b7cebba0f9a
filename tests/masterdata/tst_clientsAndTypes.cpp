#include "masterdata/frmAddAcct.h"
#include "masterdata/frmAddType.h"
#include "support/bench.h"
#include "support/find.h"
#include "support/table.h"

using namespace Qt::StringLiterals;
using masterdata::frmAddAcct, masterdata::frmAddType;

static const QStringList clientsListed{u"ShowList(accts,0,)"_s};
static const QStringList typesListed{u"ShowList(type,0,)"_s};

class TestClientsAndTypes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clientIsSaved_data()
    {
        table({{"id", "title", "before", "name", "stored"},
               {"new", "0", "Add Client", "..|", " A & <b>Co</b> ", "1|Zed Clinic;2|Adams;3|Brown;4| A & <b>Co</b> "},
               {"renamed", "2", "Edit Client", "2|Adams", "", "1|Zed Clinic;2|;3|Brown"},
               {"gone", "9", "Edit Client", "..|", "Cole", "1|Zed Clinic;2|Adams;3|Brown;4|Cole"}});
    }

    void clientIsSaved()
    {
        Bench bench;
        frmAddAcct form(bench.shell, nullptr);
        if (cell("id") != u"0")
            form.PopForm(cell("id").toShort());
        form.show();
        QTEST(form.windowTitle(), "title");
        QTEST(shown(form, "lblID") + u'|' + shown(form, "txtName"), "before");
        QCOMPARE(find<QWidget>(form, "cmdDelete").isEnabled(), shown(form, "lblID") != u"..");
        type(form, "txtName", cell("name"));
        QTest::keyClick(&find<QWidget>(form, "txtName"), Qt::Key_Return);
        QVERIFY(form.isHidden());
        QTEST(bench.rows("jobacct").join(u';'), "stored");
        QCOMPARE(bench.shell.calls, clientsListed);
    }

    void typeIsAdded()
    {
        Bench bench;
        frmAddType form(bench.shell, nullptr);
        QCOMPARE(form.windowTitle(), u"Add Account/Job Type"_s);
        QCOMPARE(entries(form, "cmbAcct"), (QStringList{u"Zed Clinic"_s, u"Adams"_s, u"Brown"_s}));
        QCOMPARE(find<QComboBox>(form, "cmbAcct").currentIndex(), -1);
        QCOMPARE(entries(form, "cmbUnit"), (QStringList{u"Line"_s, u"Report"_s, u"Hourly"_s, u"Misc"_s}));
        QCOMPARE(find<QComboBox>(form, "cmbUnit").currentIndex(), 0);
        QVERIFY(!find<QWidget>(form, "cmdDelete").isEnabled());
        form.show();
        choose(form, "cmbAcct", u"Adams"_s);
        choose(form, "cmbUnit", u"Misc"_s);
        type(form, "txtFields_0", u" Discharge "_s);
        type(form, "txtFields_1", u"1.5"_s);
        type(form, "txtFields_2", u"0"_s);
        QTest::keyClick(&find<QWidget>(form, "txtFields_2"), Qt::Key_Return);
        QVERIFY(form.isHidden());
        QCOMPARE(bench.rows("accttype").mid(4), QStringList(u"5|2| Discharge |1.5|Misc|0"_s));
        QCOMPARE(bench.shell.calls, typesListed);
    }

    void typeIsEdited()
    {
        Bench bench;
        frmAddType form(bench.shell, nullptr);
        form.PopForm(1);
        form.show();
        QCOMPARE(form.windowTitle(), u"Edit Account/Job Type"_s);
        QCOMPARE(find<QComboBox>(form, "cmbAcct").currentText(), u"Zed Clinic"_s);
        choose(form, "cmbAcct", u"Adams"_s);
        type(form, "txtFields_1", u"0.15"_s);
        click(form, "cmdSave");
        QVERIFY(form.isHidden());
        QCOMPARE(bench.rows("accttype").mid(0, 2),
                 (QStringList{u"1|2|Notes|0.15|Line|65"_s, u"2|2|Letters|4.5|Report|0"_s}));
        QCOMPARE(bench.shell.calls, typesListed);
    }

    void typeStaysOpenOnBadEntry_data()
    {
        table({{"client", "charactersPerLine", "message", "focus"},
               {"empty", "Adams", "", "Please enter how many characters constitute a line.", "txtFields_2"},
               {"letters", "Adams", "many", "Please enter a number ONLY.", "txtFields_2"},
               {"a blank is not empty", "Adams", " ", "Please enter a number ONLY.", "txtFields_2"},
               {"no client", "", "65", "You must select from the list.", "cmbAcct"}});
    }

    void typeStaysOpenOnBadEntry()
    {
        Bench bench;
        frmAddType form(bench.shell, nullptr);
        form.show();
        if (!cell("client").isEmpty())
            choose(form, "cmbAcct", cell("client"));
        type(form, "txtFields_2", cell("charactersPerLine"));
        bench.answers.expectBox(cell("message"));
        click(form, "cmdSave");
        QVERIFY(form.isVisible());
        QTEST(form.focusWidget()->objectName(), "focus");
        QCOMPARE(bench.rows("accttype").size(), 4);
        QCOMPARE(bench.shell.calls, QStringList());
    }

    // The rest of the loading is left out: a type like this can be looked at, not deleted.
    void typeWithoutCharactersIsTrapped()
    {
        Bench bench;
        frmAddType form(bench.shell, nullptr);
        bench.answers.expectBox(u"Error 94 (Invalid use of Null) in procedure PopForm of Form frmAddType"_s);
        form.PopForm(4);
        QCOMPARE(shown(form, "lblID") + shown(form, "txtFields_1"), u"41"_s);
        QCOMPARE(find<QComboBox>(form, "cmbAcct").currentIndex(), -1);
        QCOMPARE(form.windowTitle(), u"Add Account/Job Type"_s);
        QVERIFY(!find<QWidget>(form, "cmdDelete").isEnabled());
    }

    void refusedStatementClosesAndLists()
    {
        Bench bench;
        frmAddAcct client(bench.shell, nullptr);
        client.show();
        type(client, "txtName", u"O'Brien"_s);
        bench.answers.expectBox(u"Error -2147217900 (Syntax error in string in query expression '')'.) in procedure "
                                "ActionQry of Module modMain"_s);
        click(client, "cmdSave");
        QVERIFY(client.isHidden());
        frmAddType hourly(bench.shell, nullptr);
        hourly.show();
        choose(hourly, "cmbAcct", u"Adams"_s);
        choose(hourly, "cmbUnit", u"Hourly"_s);
        bench.answers.expectBox(u"Error -2147217900 (Syntax error in the statement near ',,'Hourly')'.) in "
                                "procedure ActionQry of Module modMain"_s);
        click(hourly, "cmdSave");
        QVERIFY(hourly.isHidden());
        QCOMPARE(bench.rows("jobacct").size() + bench.rows("accttype").size(), 3 + 4);
        QCOMPARE(bench.shell.calls, clientsListed + typesListed);
    }

    void deletesAndCancels_data()
    {
        QTest::addColumn<bool>("deleted");
        QTest::newRow("Yes") << true;
        for (const char* way : {"No", "cmdCancel", "Escape"})
            QTest::newRow(way) << false;
    }

    // The jobs of what is deleted stay.
    void deletesAndCancels()
    {
        QFETCH(bool, deleted);
        const QByteArray way = QTest::currentDataTag();
        const bool isAsked = way == "Yes" || way == "No";
        Bench bench;
        frmAddAcct client(bench.shell, nullptr);
        frmAddType hourly(bench.shell, nullptr);
        client.PopForm(2);
        hourly.PopForm(3);
        for (QDialog* form : {static_cast<QDialog*>(&client), static_cast<QDialog*>(&hourly)}) {
            if (isAsked)
                bench.answers.expectBox(
                    u"Are you sure you want to delete this %1?"_s.arg(form == &client ? u"client"_s : u"acct/type"_s),
                    way == "Yes" ? QMessageBox::Yes : QMessageBox::No, u"Just a minute there!"_s);
            form->show();
            way == "Escape" ? QTest::keyClick(form, Qt::Key_Escape) : click(*form, isAsked ? "cmdDelete" : "cmdCancel");
            QVERIFY(form->isHidden());
        }
        QCOMPARE(bench.rows("jobacct").join(u';'),
                 deleted ? u"1|Zed Clinic;3|Brown"_s : u"1|Zed Clinic;2|Adams;3|Brown"_s);
        QCOMPARE(bench.rows("accttype").size(), deleted ? 3 : 4);
        QCOMPARE(bench.rows("jobs").size(), 8);
        QCOMPARE(bench.shell.calls, isAsked ? clientsListed + typesListed : QStringList());
    }
};

QTEST_MAIN(TestClientsAndTypes)
#include "tst_clientsAndTypes.moc"
