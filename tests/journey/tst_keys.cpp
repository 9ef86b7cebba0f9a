// The keys of the main window and the workspace, pressed for real: a synthetic event reaches what a person cannot.
#include "journey.h"

#include <QClipboard>
#include <QMenu>

class Keys : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        storeClient();
        storeJob("A-114");
        QVERIFY(start(m_folder.path()));
    }

    void menus()
    {
        const QList<QStringList> steps{
            {"alt+d", "Jobs"}, {"a", "Acct/type"}, {"Right", "Add"}, {"l", "List"}, {"l x", "List"}};
        QVERIFY(play([&] {
            press("F7");
            focusIsOn("dgList");
            for (const QStringList& step : steps) {
                press(step[0]);
                commandIs(step[1]);
            }
            press("Return");
            waitForTitle("Penwright - [Job Type List]");
            press("F10");
            focusIsOn("menuBar");
            press("Right Right Down");
            commandIs("Call");
            press("Escape Escape");
            focusIsOn("dgList");
        }));
    }

    // In reading order, with nothing between that scrolls or frames them. Enter presses the button.
    void tabStops()
    {
        QVERIFY(play([&] {
            press("F7 Return");
            for (const char* stop :
                 {"cmdStart", "cmdStop", "cmdReset", "txtChar", "txtTemplate", "cmdGetTemp", "cmdResetTemp", "cmdSave",
                  "cmdClose", "cmdDeleteJob", "lblJob_10", "lblJob_0", "lblJob_1", "lblJob_2", "lblJob_3", "lblJob_7",
                  "lblJob_8", "lblJob_9", "cmdStart"}) {
                focusIsOn(stop);
                press("Tab");
            }
            // What is no control takes no focus by a click either.
            click("lblHr");
            focusIsOn("cmdStop");
            press("shift+Tab Return");
            waitForText("cmdStart", "Pause");
            press("Tab Return");
            waitForText("cmdStart", "Start");
        }));
    }

    // Ctrl+F4 closes a list, but not an open job.
    void enterCalculates()
    {
        QGuiApplication::clipboard()->setText("12,345\n");
        QVERIFY(play([&] {
            press("alt+c ctrl+v Return");
            waitForText("lblJob_5", "190");
            focusIsOn("txtChar");
            press("ctrl+F4");
            waitForText("txtChar", "12345");
            press("alt+s");
            focusIsOn("dgList");
            press("ctrl+F4");
            waitForTitle("Penwright");
            press("F7");
            waitForTitle("Penwright - [Job List]");
        }));
        QCOMPARE(m_folder.rows("select jobchar,joblines from jobs"), QStringList("12345|190"));
    }

    void refusedTextIsTypedOver()
    {
        QVERIFY(play([&] {
            open("frmAddType", {"Data", "Acct/type", "Add"});
            press("alt+h");
            type("many");
            press("Return");
            answer("Please enter a number ONLY.");
            waitForWindow("frmAddType");
            type("65");
            waitForText("txtFields_2", "65");
            leave();
        }));
    }

private:
    void focusIsOn(const QString& name)
    {
        waitFor("the focus on " + name, [&] {
            const QWidget* focus = QApplication::focusWidget();
            return focus && focus->objectName() == name;
        });
    }

    /// The command that Enter would run.
    void commandIs(const QString& caption)
    {
        waitFor("the command " + caption, [&] {
            const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            return menu && menu->activeAction() && menu->activeAction()->text() == caption;
        });
    }
};

JOURNEY_MAIN(Keys)
#include "tst_keys.moc"
