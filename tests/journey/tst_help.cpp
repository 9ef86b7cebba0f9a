// The help and the About box in the real window, the help in a real viewer.
#include "journey.h"

#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QProcess>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// What xdotool prints, without the line's end.
QString asked(const QStringList& arguments)
{
    QProcess xdotool;
    xdotool.start("xdotool", arguments);
    xdotool.waitForFinished();
    return QString::fromUtf8(xdotool.readAllStandardOutput()).trimmed();
}

QString viewerWindow()
{
    return asked({"search", "--onlyvisible", "--name", "xCHM.*: Penwright Help"});
}

} // namespace

class HelpTour : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void helpWhileAJobIsOpen();
    void aboutBox();

private:
};

void HelpTour::initTestCase()
{
    // The viewer keeps its settings there.
    qputenv("HOME", m_folder.path().toUtf8());
    // A name that a viewer under the wrong locale does not find.
    const QString programFolder = m_folder.path() + u"/B\u00fcro 1"_s;
    QVERIFY(QDir().mkpath(programFolder));
    QVERIFY(QFile::copy(STAGED_HELP, programFolder + "/PWR.chm"));
    QVERIFY(QFile::link(m_folder.path() + "/data", programFolder + "/data"));
    storeOneJob("A-114");
    QVERIFY(start(programFolder));
}

// The program goes on beside its viewer, which outlives it.
void HelpTour::helpWhileAJobIsOpen()
{
    QString viewer;
    QVERIFY(play([&] {
        m_user->press("F7");
        m_user->clickCell(0, 0);
        m_user->waitForText("lblJob_10", "A-114");
        m_user->click("cmdStart");
        m_user->press("F1");
        m_user->waitFor(
            "the viewer", [&] { return !(viewer = viewerWindow()).isEmpty(); }, 30'000);
        const int second = m_user->text("lblSec").toInt();
        m_user->waitForText("lblSec", QString::number(second + 2));
    }));
    const QPoint corner = m_window->frameGeometry().topLeft() * m_window->devicePixelRatioF();
    asked({"windowmove", viewer, QString::number(corner.x()), QString::number(corner.y())});
    asked({"windowraise", viewer});
    QVERIFY(play([&] { m_user->takePicture("help"); }));
    const int process = asked({"getwindowpid", viewer}).toInt();
    QVERIFY(process > 0);
    QCOMPARE(::kill(process, SIGTERM), 0);
    QTRY_VERIFY(viewerWindow().isEmpty());
}

void HelpTour::aboutBox()
{
    QVERIFY(play([&] {
        m_user->click("cmdClose");
        m_user->choose({"Help", "About"});
        m_user->waitForWindow("frmAbout");
        m_user->takePicture("about");
        m_user->press("Return");
        m_user->waitForNoWindow();
    }));
}

int main(int argc, char* argv[])
{
    return runJourney<HelpTour>(argc, argv);
}

#include "tst_help.moc"
