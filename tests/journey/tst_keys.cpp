// The keys of the main window and the workspace, pressed through the display: a synthetic event would also reach
// controls that a person cannot reach.
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

    void menuKeysOpenMenus()
    {
        const QList<QStringList> steps{
            {"alt+d", "Jobs"}, {"a", "Acct/type"}, {"Right", "Add"}, {"l", "List"}, {"l x", "List"}};
        QVERIFY(play([&] {
            press("F7");
            waitForFocus("dgList");
            for (const QStringList& step : steps) {
                press(step[0]);
                waitForCommand(step[1]);
            }
            press("Return");
            waitForTitle("Penwright - [Job Type List]");
            QImage plain;
            const auto takeBar = [] { return control("menuBar")->grab().toImage(); };
            waitFor("the bar", [&] { return !(plain = takeBar()).isNull(); });
            press("F10");
            waitForFocus("menuBar");
            waitFor("a mark on the first menu", [&] { return takeBar() != plain; });
            press("Right Right Down");
            waitForCommand("Call");
            press("Escape Escape");
            waitForFocus("dgList");
        }));
    }

    // No frame and no scroll area takes the focus in between. Enter presses the button.
    void tabFollowsReadingOrder()
    {
        QVERIFY(play([&] {
            press("F7 Return");
            for (const char* stop :
                 {"cmdStart", "cmdStop", "cmdReset", "txtChar", "txtTemplate", "cmdGetTemp", "cmdResetTemp", "cmdSave",
                  "cmdClose", "cmdDeleteJob", "lblJob_10", "lblJob_0", "lblJob_1", "lblJob_2", "lblJob_3", "lblJob_7",
                  "lblJob_8", "lblJob_9", "cmdStart"}) {
                waitForFocus(stop);
                press("Tab");
            }
            // A click on a mere label does not move the focus.
            click("lblHr");
            waitForFocus("cmdStop");
            press("shift+Tab Return");
            waitForText("cmdStart", "Pause");
            press("Tab Return");
            waitForText("cmdStart", "Start");
        }));
    }

    // Ctrl+F4 closes a list, but neither it nor Escape an open job.
    void enterCalculates()
    {
        QGuiApplication::clipboard()->setText("12,345\n");
        QVERIFY(play([&] {
            press("alt+c ctrl+v Return");
            waitForText("lblJob_5", "190");
            waitForFocus("txtChar");
            press("ctrl+F4 Escape Escape");
            waitForText("txtChar", "12345");
            press("alt+s");
            waitForFocus("dgList");
            press("ctrl+F4");
            waitForTitle("Penwright");
            press("F7");
            waitForTitle("Penwright - [Job List]");
        }));
        QCOMPARE(m_folder.rows("select jobchar,joblines from jobs"), QStringList("12345|190"));
    }

    // The menus had the keyboard before the job disabled them.
    void menuOpensWithoutItsSubmenus()
    {
        QVERIFY(play([&] {
            choose({"Data"});
            waitFor("the menu", [] { return QApplication::activePopupWidget() != nullptr; });
            const auto isAlone = [] {
                const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                return menu->title() == "Data" && !menu->activeAction();
            };
            // At once: a submenu that the mouse is not at closes again after a while.
            waitFor("the menu alone", isAlone, 50);
            press("Escape Escape");
            waitForFocus("dgList");
        }));
    }

    void escapeCancelsTheTemplatePanel()
    {
        QVERIFY(play([&] {
            press("F3 Tab");
            waitForFocus("txtTemp_0");
            type("half");
            press("Escape");
            waitForTitle("Penwright - [Job List]");
            waitForFocus("dgList");
            press("F3");
            waitForText("txtTemp_0", "");
            press("F7");
        }));
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
    /// The command that Enter would run.
    void waitForCommand(const QString& caption)
    {
        waitFor("the command " + caption, [&] {
            const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            return menu && menu->activeAction() && menu->activeAction()->text() == caption;
        });
    }
};

JOURNEY_MAIN(Keys)
#include "tst_keys.moc"
