// The keys of the main window and the workspace, pressed for real: a synthetic event reaches what a person cannot.
#include "user.h"

#include "app/start.h"
#include "support/scratchFolder.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

using namespace Qt::StringLiterals;

class Keys : public QObject {
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
    void play(const std::function<void()>& story) { QCOMPARE(m_user->play(story), QString()); }
    void focusIsOn(const QString& name);
    void commandIs(const QString& caption);

    ScratchFolder m_folder;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<User> m_user;
};

void Keys::initTestCase()
{
    m_folder.run(u"insert into jobacct(acctname)values('Riverside Clinic')"_s);
    m_folder.run(
        u"insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)values(1,'Notes',1.25,65,'Line')"_s);
    m_folder.run(u"insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(#%1#,1,1,'A-114')"_s.arg(
        values::dateText(values::dateTime(values::today()))));
    m_user = std::make_unique<User>(QStringLiteral(TOUR_FOLDER));
    m_window = modMain::Main(m_folder.path());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void Keys::focusIsOn(const QString& name)
{
    m_user->waitFor(u"the focus on "_s + name, [&] {
        const QWidget* focus = QApplication::focusWidget();
        return focus && focus->objectName() == name;
    });
}

/// The command that Enter would run.
void Keys::commandIs(const QString& caption)
{
    m_user->waitFor(u"the command "_s + caption, [&] {
        const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        return menu && menu->activeAction() && menu->activeAction()->text() == caption;
    });
}

void Keys::menus()
{
    play([&] {
        m_user->press(u"F7"_s);
        focusIsOn(u"dgList"_s);
        m_user->press(u"alt+d"_s);
        commandIs(u"Jobs"_s);
        m_user->press(u"a"_s);
        commandIs(u"Acct/type"_s);
        m_user->press(u"Right"_s);
        commandIs(u"Add"_s);
        m_user->press(u"l"_s);
        commandIs(u"List"_s);
        m_user->press(u"l x"_s);
        commandIs(u"List"_s);
        m_user->press(u"Return"_s);
        m_user->waitForTitle(u"Penwright - [Job Type List]"_s);
        m_user->press(u"F10"_s);
        focusIsOn(u"menuBar"_s);
        m_user->press(u"Right Right Down"_s);
        commandIs(u"Call"_s);
        m_user->press(u"Escape Escape"_s);
        focusIsOn(u"dgList"_s);
    });
}

// In reading order, with nothing between that scrolls or frames them.
void Keys::tabStops()
{
    play([&] {
        m_user->press(u"F7 Return"_s);
        for (const char* stop : {"cmdStart", "cmdStop", "cmdReset", "txtChar", "txtTemplate", "cmdGetTemp",
                                 "cmdResetTemp", "cmdSave", "cmdClose", "cmdDeleteJob", "lblJob_10", "lblJob_0",
                                 "lblJob_1", "lblJob_2", "lblJob_3", "lblJob_7", "lblJob_8", "lblJob_9", "cmdStart"}) {
            focusIsOn(QLatin1String(stop));
            m_user->press(u"Tab"_s);
        }
        // What is no control takes no focus by a click either.
        m_user->click(u"lblHr"_s);
        focusIsOn(u"cmdStop"_s);
    });
}

void Keys::enterPressesTheButton()
{
    play([&] {
        m_user->press(u"shift+Tab Return"_s);
        m_user->waitForText(u"cmdStart"_s, u"Pause"_s);
        m_user->press(u"Tab Return"_s);
        m_user->waitForText(u"cmdStart"_s, u"Start"_s);
    });
}

void Keys::enterCalculates()
{
    QGuiApplication::clipboard()->setText(u"12,345\n"_s);
    play([&] {
        m_user->press(u"alt+c ctrl+v Return"_s);
        m_user->waitForText(u"lblJob_5"_s, u"190"_s);
        focusIsOn(u"txtChar"_s);
        m_user->press(u"ctrl+F4"_s);
        m_user->waitForText(u"txtChar"_s, u"12345"_s);
        m_user->press(u"alt+s"_s);
        focusIsOn(u"dgList"_s);
    });
    QCOMPARE(m_folder.rows(u"select jobchar,joblines from jobs"_s), QStringList(u"12345|190"_s));
}

void Keys::refusedTextIsTypedOver()
{
    play([&] {
        m_user->choose({u"Data"_s, u"Acct/type"_s, u"Add"_s});
        m_user->waitForWindow(u"frmAddType"_s);
        m_user->press(u"alt+h"_s);
        m_user->type(u"many"_s);
        m_user->press(u"Return"_s);
        m_user->waitForWindow(u"Please enter a number ONLY."_s);
        m_user->press(u"Return"_s);
        m_user->waitForWindow(u"frmAddType"_s);
        m_user->type(u"65"_s);
        m_user->waitForText(u"txtFields_2"_s, u"65"_s);
        m_user->press(u"Escape"_s);
        m_user->waitForNoWindow();
    });
}

void Keys::closeTheWorkspace()
{
    play([&] {
        m_user->waitForTitle(u"Penwright - [Job List]"_s);
        m_user->press(u"ctrl+F4"_s);
        m_user->waitForTitle(u"Penwright"_s);
        m_user->press(u"F7"_s);
        m_user->waitForTitle(u"Penwright - [Job List]"_s);
    });
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    modMain::setApplicationLook();
    Keys keys;
    return QTest::qExec(&keys, argc, argv);
}

#include "tst_keys.moc"
