// The keys of the main window and the workspace, pressed for real: a synthetic event reaches what a person cannot.
#include "journey.h"

#include <QClipboard>
#include <QMenu>

class Keys : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void menus();
    void tabStops();
    void enterPressesTheButton();
    void enterCalculates();
    void refusedTextIsTypedOver();
    void closeTheWorkspace();

private:
    void focusIsOn(const QString& name);
    void commandIs(const QString& caption);
};

void Keys::initTestCase()
{
    storeOneJob("A-114");
    QVERIFY(start(m_folder.path()));
}

void Keys::focusIsOn(const QString& name)
{
    m_user->waitFor("the focus on " + name, [&] {
        const QWidget* focus = QApplication::focusWidget();
        return focus && focus->objectName() == name;
    });
}

/// The command that Enter would run.
void Keys::commandIs(const QString& caption)
{
    m_user->waitFor("the command " + caption, [&] {
        const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        return menu && menu->activeAction() && menu->activeAction()->text() == caption;
    });
}

void Keys::menus()
{
    QVERIFY(play([&] {
        m_user->press("F7");
        focusIsOn("dgList");
        m_user->press("alt+d");
        commandIs("Jobs");
        m_user->press("a");
        commandIs("Acct/type");
        m_user->press("Right");
        commandIs("Add");
        m_user->press("l");
        commandIs("List");
        m_user->press("l x");
        commandIs("List");
        m_user->press("Return");
        m_user->waitForTitle("Penwright - [Job Type List]");
        m_user->press("F10");
        focusIsOn("menuBar");
        m_user->press("Right Right Down");
        commandIs("Call");
        m_user->press("Escape Escape");
        focusIsOn("dgList");
    }));
}

// In reading order, with nothing between that scrolls or frames them.
void Keys::tabStops()
{
    QVERIFY(play([&] {
        m_user->press("F7 Return");
        for (const char* stop : {"cmdStart", "cmdStop", "cmdReset", "txtChar", "txtTemplate", "cmdGetTemp",
                                 "cmdResetTemp", "cmdSave", "cmdClose", "cmdDeleteJob", "lblJob_10", "lblJob_0",
                                 "lblJob_1", "lblJob_2", "lblJob_3", "lblJob_7", "lblJob_8", "lblJob_9", "cmdStart"}) {
            focusIsOn(QLatin1String(stop));
            m_user->press("Tab");
        }
        // What is no control takes no focus by a click either.
        m_user->click("lblHr");
        focusIsOn("cmdStop");
    }));
}

void Keys::enterPressesTheButton()
{
    QVERIFY(play([&] {
        m_user->press("shift+Tab Return");
        m_user->waitForText("cmdStart", "Pause");
        m_user->press("Tab Return");
        m_user->waitForText("cmdStart", "Start");
    }));
}

void Keys::enterCalculates()
{
    QGuiApplication::clipboard()->setText("12,345\n");
    QVERIFY(play([&] {
        m_user->press("alt+c ctrl+v Return");
        m_user->waitForText("lblJob_5", "190");
        focusIsOn("txtChar");
        m_user->press("ctrl+F4");
        m_user->waitForText("txtChar", "12345");
        m_user->press("alt+s");
        focusIsOn("dgList");
    }));
    QCOMPARE(m_folder.rows("select jobchar,joblines from jobs"), QStringList("12345|190"));
}

void Keys::refusedTextIsTypedOver()
{
    QVERIFY(play([&] {
        m_user->choose({"Data", "Acct/type", "Add"});
        m_user->waitForWindow("frmAddType");
        m_user->press("alt+h");
        m_user->type("many");
        m_user->press("Return");
        m_user->waitForWindow("Please enter a number ONLY.");
        m_user->press("Return");
        m_user->waitForWindow("frmAddType");
        m_user->type("65");
        m_user->waitForText("txtFields_2", "65");
        m_user->press("Escape");
        m_user->waitForNoWindow();
    }));
}

void Keys::closeTheWorkspace()
{
    QVERIFY(play([&] {
        m_user->waitForTitle("Penwright - [Job List]");
        m_user->press("ctrl+F4");
        m_user->waitForTitle("Penwright");
        m_user->press("F7");
        m_user->waitForTitle("Penwright - [Job List]");
    }));
}

int main(int argc, char* argv[])
{
    return runJourney<Keys>(argc, argv);
}

#include "tst_keys.moc"
