// The help and the About box in the real window, the help in a real viewer.
#include "journey.h"
#include "printed.h"

#include <QDir>

#include <csignal>

class HelpTour : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The viewer keeps its settings there.
        qputenv("HOME", m_folder.path().toUtf8());
        // A viewer under the wrong locale would not find this name.
        const QString programFolder = m_folder.path() + "/Büro 1";
        QVERIFY(QDir().mkpath(programFolder));
        QVERIFY(QFile::copy(STAGED_HELP, programFolder + "/PWR.chm"));
        QVERIFY(QFile::link(m_folder.path() + "/data", programFolder + "/data"));
        storeClient();
        storeJob("A-114");
        QVERIFY(start(programFolder));
    }

    // The program goes on while the viewer is open.
    void openHelpWhileAJobIsOpen()
    {
        const QString viewer = "xCHM.*: Penwright Help";
        bool isOpen = false;
        QVERIFY(play([&] {
            openFirstJob("A-114");
            click("cmdStart");
            press("F1");
            isOpen = waitForOtherWindow(viewer);
            const int second = text("lblSec").toInt();
            waitForText("lblSec", QString::number(second + 2));
        }));
        QVERIFY(isOpen);
        const QPoint corner = m_window->frameGeometry().topLeft() * m_window->devicePixelRatioF();
        commandOtherWindow(viewer,
                           {"windowmove", QString::number(corner.x()), QString::number(corner.y()), "windowraise"});
        QVERIFY(play([&] { takePicture("help"); }));
        const int process = commandOtherWindow(viewer, {"getwindowpid"}).toInt();
        QVERIFY(process > 0);
        QCOMPARE(::kill(process, SIGTERM), 0);
        QTRY_VERIFY(commandOtherWindow(viewer, {}).isEmpty());
    }

    void openAboutBox()
    {
        QVERIFY(play([&] {
            click("cmdClose");
            open("frmAbout", {"Help", "About"});
            takePicture("about");
            leave("Return");
        }));
    }
};

JOURNEY_MAIN(HelpTour)
#include "tst_help.moc"
