#include "masterdata/frmAddAcct.h"
#include "masterdata/frmAddType.h"
#include "support/bench.h"

using masterdata::frmAddAcct, masterdata::frmAddType;

static const QStringList clientsListed{"ShowList(accts,0,)"};
static const QStringList typesListed{"ShowList(type,0,)"};

class TestClientsAndTypes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A client that was deleted meanwhile is stored as a new one.
    void clientIsSaved()
    {
        Bench bench;
        for (const qint16 id : std::initializer_list<qint16>{2, 9}) {
            frmAddAcct form(bench.shell, nullptr);
            QCOMPARE(form.windowTitle(), "Add Client");
            form.PopForm(id);
            form.show();
            QCOMPARE(form.windowTitle(), "Edit Client");
            QCOMPARE(textOf(form, "lblID") + textOf(form, "txtName"), id == 2 ? "2Adams" : "..");
            QCOMPARE(find<QWidget>(form, "cmdDelete").isEnabled(), id == 2);
            type(form, "txtName", id == 2 ? "" : " A & <b>Co</b> ");
            QTest::keyClick(&find<QWidget>(form, "txtName"), Qt::Key_Return);
            QVERIFY(form.isHidden());
        }
        QCOMPARE(bench.rows("jobacct").join(u';'), "1|Zed Clinic;2|;3|Brown;4| A & <b>Co</b> ");
        QCOMPARE(bench.shell.calls, clientsListed + clientsListed);
    }

    void typeIsSaved()
    {
        Bench bench;
        frmAddType form(bench.shell, nullptr);
        QCOMPARE(entries(form, "cmbAcct"), QStringList({"Zed Clinic", "Adams", "Brown"}));
        QCOMPARE(entries(form, "cmbUnit"), QStringList({"Line", "Report", "Hourly", "Misc"}));
        form.PopForm(3);
        form.show();
        QCOMPARE(form.windowTitle(), "Edit Account/Job Type");
        QCOMPARE(textOf(form, "txtFields_0") + textOf(form, "txtFields_1") + textOf(form, "txtFields_2"), "Visits300");
        QCOMPARE(textOf(form, "cmbAcct") + textOf(form, "cmbUnit"), "Zed ClinicHourly");
        choose(form, "cmbAcct", "Adams");
        choose(form, "cmbUnit", "Misc");
        type(form, "txtFields_0", " Discharge ");
        type(form, "txtFields_1", "0.15");
        QTest::keyClick(&find<QWidget>(form, "txtFields_1"), Qt::Key_Return);
        QVERIFY(form.isHidden());
        QCOMPARE(bench.rows("accttype").mid(1, 2),
                 QStringList({"2|2|Letters|4.5|Report|0", "3|2| Discharge |0.15|Misc|0"}));
        QCOMPARE(bench.shell.calls, typesListed);
    }

    void typeStaysOpenOnBadEntry()
    {
        Bench bench;
        frmAddType form(bench.shell, nullptr);
        form.show();
        for (const auto& [perLine, message, focus] :
             {std::tuple("", "Please enter how many characters constitute a line.", "txtFields_2"),
              {" ", "Please enter a number ONLY.", "txtFields_2"},
              {"65", "You must select from the list.", "cmbAcct"}}) {
            type(form, "txtFields_2", perLine);
            bench.answers.expectBox(message);
            click(form, "cmdSave");
            QVERIFY(form.isVisible());
            QCOMPARE(form.focusWidget()->objectName(), focus);
        }
        QCOMPARE(bench.rows("accttype").size(), 4);
        QCOMPARE(bench.shell.calls, QStringList());
    }

    // The error ends the loading: such a type can be seen but not deleted.
    void typeWithoutCharactersIsTrapped()
    {
        Bench bench;
        frmAddType form(bench.shell, nullptr);
        bench.answers.expectBox("Error 94 (Invalid use of Null) in procedure PopForm of Form frmAddType");
        form.PopForm(4);
        QCOMPARE(textOf(form, "lblID") + textOf(form, "txtFields_1") + textOf(form, "cmbAcct"), "41");
        QCOMPARE(form.windowTitle(), "Add Account/Job Type");
        QVERIFY(!find<QWidget>(form, "cmdDelete").isEnabled());
    }

    void refusedStatementClosesAndLists()
    {
        Bench bench;
        frmAddAcct client(bench.shell, nullptr);
        client.show();
        type(client, "txtName", "O'Brien");
        bench.expectSyntaxError("in string in query expression '')'.");
        click(client, "cmdSave");
        QVERIFY(client.isHidden());
        frmAddType hourly(bench.shell, nullptr);
        hourly.show();
        choose(hourly, "cmbAcct", "Adams");
        choose(hourly, "cmbUnit", "Hourly");
        bench.expectSyntaxError("in the statement near ',,'Hourly')'.");
        click(hourly, "cmdSave");
        QVERIFY(hourly.isHidden());
        QCOMPARE(bench.rows("jobacct").size() + bench.rows("accttype").size(), 3 + 4);
        QCOMPARE(bench.shell.calls, clientsListed + typesListed);
    }

    // Deleting a client or a type leaves its jobs.
    void deletesAndCancels()
    {
        for (const QByteArray way : {"Yes", "No", "Cancel"}) {
            const bool isDeleted = way == "Yes";
            const bool isAsked = isDeleted || way == "No";
            Bench bench;
            frmAddAcct client(bench.shell, nullptr);
            frmAddType hourly(bench.shell, nullptr);
            client.PopForm(2);
            hourly.PopForm(3);
            for (const auto& [form, kind] : {std::pair<QDialog*, QString>(&client, "client"), {&hourly, "acct/type"}}) {
                if (isAsked)
                    bench.answers.expectBox("Are you sure you want to delete this " + kind + '?',
                                            isDeleted ? QMessageBox::Yes : QMessageBox::No, "Just a minute there!");
                form->show();
                click(*form, isAsked ? "cmdDelete" : "cmdCancel");
                QVERIFY2(form->isHidden(), way.constData());
            }
            QCOMPARE(bench.rows("jobacct").join(u';'),
                     isDeleted ? "1|Zed Clinic;3|Brown" : "1|Zed Clinic;2|Adams;3|Brown");
            QCOMPARE(bench.rows("accttype").size(), isDeleted ? 3 : 4);
            QCOMPARE(bench.rows("jobs").size(), 8);
            QCOMPARE(bench.shell.calls, isAsked ? clientsListed + typesListed : QStringList());
        }
    }
};

QTEST_MAIN(TestClientsAndTypes)
#include "tst_clientsAndTypes.moc"
