#include "masterdata/frmAddAcct.h"
#include "masterdata/frmAddType.h"
#include "support/bench.h"
#include "support/find.h"

using namespace Qt::StringLiterals;
using masterdata::frmAddAcct, masterdata::frmAddType;

static const QStringList clientsListed{u"ShowList(accts,0,)"_s};
static const QStringList typesListed{u"ShowList(type,0,)"_s};

class TestClientsAndTypes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clientIsSaved_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("stored");
        QTest::newRow("new") << 0 << u"Add Client"_s << u"..|"_s << u" A & <b>Co</b> "_s << u"4| A & <b>Co</b> "_s;
        QTest::newRow("renamed") << 2 << u"Edit Client"_s << u"2|Adams"_s << QString() << u"2|"_s;
        QTest::newRow("gone") << 9 << u"Edit Client"_s << u"..|"_s << u"Cole"_s << u"4|Cole"_s;
    }

    void clientIsSaved()
    {
        QFETCH(int, id);
        QFETCH(QString, before);
        QFETCH(QString, name);
        QFETCH(QString, stored);
        Bench bench;
        frmAddAcct form(bench.shell, nullptr);
        if (id > 0)
            form.PopForm(static_cast<qint16>(id));
        form.show();
        QTEST(form.windowTitle(), "title");
        QCOMPARE(shown(form, "lblID") + u'|' + shown(form, "txtName"), before);
        QCOMPARE(find<QWidget>(form, "cmdDelete").isEnabled(), id == 2);
        type(form, "txtName", name);
        QTest::keyClick(&find<QWidget>(form, "txtName"), Qt::Key_Return);
        QVERIFY(form.isHidden());
        QVERIFY(bench.rows("jobacct").contains(stored));
        QCOMPARE(bench.rows("jobacct").size(), id == 2 ? 3 : 4);
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
        QCOMPARE(find<QComboBox>(form, "cmbUnit").currentText(), u"Line"_s);
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
        QCOMPARE(bench.rows("accttype").value(0), u"1|2|Notes|0.15|Line|65"_s);
        QCOMPARE(bench.rows("accttype").value(1), u"2|2|Letters|4.5|Report|0"_s);
        QCOMPARE(bench.shell.calls, typesListed);
    }

    void typeStaysOpenOnBadEntry_data()
    {
        QTest::addColumn<bool>("withClient");
        QTest::addColumn<QString>("charactersPerLine");
        QTest::addColumn<QString>("message");
        const QString numberOnly = u"Please enter a number ONLY."_s;
        QTest::newRow("empty") << true << QString() << u"Please enter how many characters constitute a line."_s;
        QTest::newRow("letters") << true << u"many"_s << numberOnly;
        QTest::newRow("a blank is not empty") << true << u" "_s << numberOnly;
        QTest::newRow("no client") << false << u"65"_s << u"You must select from the list."_s;
    }

    void typeStaysOpenOnBadEntry()
    {
        QFETCH(bool, withClient);
        QFETCH(QString, charactersPerLine);
        QFETCH(QString, message);
        Bench bench;
        frmAddType form(bench.shell, nullptr);
        form.show();
        if (withClient)
            choose(form, "cmbAcct", u"Adams"_s);
        type(form, "txtFields_2", charactersPerLine);
        bench.answers.expectBox(message);
        click(form, "cmdSave");
        QVERIFY(form.isVisible());
        QCOMPARE(form.focusWidget()->objectName(), withClient ? u"txtFields_2"_s : u"cmbAcct"_s);
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
        bench.answers.expectBox(u"Error -2147217900 (Syntax error in the statement near ', , 'Hourly' )'.) in "
                                "procedure ActionQry of Module modMain"_s);
        click(hourly, "cmdSave");
        QVERIFY(hourly.isHidden());
        QCOMPARE(bench.rows("jobacct").size() + bench.rows("accttype").size(), 3 + 4);
        QCOMPARE(bench.shell.calls, clientsListed + typesListed);
    }

    void deletes_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::newRow("Yes") << QMessageBox::Yes;
        QTest::newRow("No") << QMessageBox::No;
    }

    void deletes()
    {
        QFETCH(QMessageBox::StandardButton, answer);
        const int deleted = answer == QMessageBox::Yes ? 1 : 0;
        Bench bench;
        frmAddAcct client(bench.shell, nullptr);
        frmAddType hourly(bench.shell, nullptr);
        client.PopForm(2);
        hourly.PopForm(3);
        for (QDialog* form : {static_cast<QDialog*>(&client), static_cast<QDialog*>(&hourly)}) {
            bench.answers.expectBox(
                u"Are you sure you want to delete this %1?"_s.arg(form == &client ? u"client"_s : u"acct/type"_s),
                answer, u"Just a minute there!"_s);
            form->show();
            click(*form, "cmdDelete");
            QVERIFY(form->isHidden());
        }
        QCOMPARE(bench.rows("jobacct").contains(u"2|Adams"_s), deleted == 0);
        QCOMPARE(bench.rows("jobacct").size(), 3 - deleted);
        QCOMPARE(bench.rows("accttype").size(), 4 - deleted);
        QCOMPARE(bench.rows("jobs").size(), 8);
        QCOMPARE(bench.shell.calls, clientsListed + typesListed);
    }

    void cancels()
    {
        Bench bench;
        frmAddAcct client(bench.shell, nullptr);
        frmAddType hourly(bench.shell, nullptr);
        for (QDialog* form : {static_cast<QDialog*>(&client), static_cast<QDialog*>(&hourly)}) {
            for (const bool byKey : {false, true}) {
                form->show();
                byKey ? QTest::keyClick(form, Qt::Key_Escape) : click(*form, "cmdCancel");
                QVERIFY(form->isHidden());
            }
        }
        QCOMPARE(bench.shell.calls, QStringList());
    }
};

QTEST_MAIN(TestClientsAndTypes)
#include "tst_clientsAndTypes.moc"
