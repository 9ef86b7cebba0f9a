// The help and the About box in the real window, the help in a real viewer.
#include "user.h"

#include "app/start.h"
#include "support/scratchFolder.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QProcess>
#include <QTest>

#include <csignal>

namespace {

/// What xdotool prints, without the line's end.
QString asked(const QStringList& arguments)
{
    QProcess xdotool;
    xdotool.start(QStringLiteral("xdotool"), arguments);
    xdotool.waitForFinished();
    return QString::fromUtf8(xdotool.readAllStandardOutput()).trimmed();
}

QString viewerWindow()
{
    return asked({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                  QStringLiteral("xCHM.*: Penwright Help")});
}

} // namespace

class HelpTour : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void helpWhileAJobIsOpen();
    void aboutBox();

private:
    ScratchFolder m_folder;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<User> m_user;
};

void HelpTour::initTestCase()
{
    // The viewer keeps its settings there.
    qputenv("HOME", m_folder.path().toUtf8());
    // A name that a viewer under the wrong locale does not find.
    const QString programFolder = m_folder.path() + QStringLiteral("/B\u00fcro 1");
    QVERIFY(QDir().mkpath(programFolder));
    QVERIFY(QFile::copy(QStringLiteral(STAGED_HELP), programFolder + QStringLiteral("/PWR.chm")));
    QVERIFY(QFile::link(m_folder.path() + QStringLiteral("/data"), programFolder + QStringLiteral("/data")));
    m_folder.run(QStringLiteral("insert into jobacct(acctname)values('Riverside Clinic')"));
    m_folder.run(QStringLiteral("insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)"
                                "values(1,'Notes',1.25,65,'Line')"));
    m_folder.run(QStringLiteral("insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(#%1#,1,1,'A-114')")
                     .arg(values::dateText(values::dateTime(values::today()))));
    QString pictures = QStringLiteral(TOUR_FOLDER);
    if (qApp->devicePixelRatio() > 1)
        pictures += QStringLiteral("/150");
    m_user = std::make_unique<User>(pictures);
    m_window = modMain::Main(programFolder);
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

// The program goes on beside its viewer, which outlives it.
void HelpTour::helpWhileAJobIsOpen()
{
    QString viewer;
    const QString failure = m_user->play([&] {
        m_user->press(QStringLiteral("F7"));
        m_user->clickCell(0, 0);
        m_user->waitForText(QStringLiteral("lblJob_10"), QStringLiteral("A-114"));
        m_user->click(QStringLiteral("cmdStart"));
        m_user->press(QStringLiteral("F1"));
        m_user->waitFor(
            QStringLiteral("the viewer"), [&] { return !(viewer = viewerWindow()).isEmpty(); }, 30'000);
        const int second = m_user->text(QStringLiteral("lblSec")).toInt();
        m_user->waitForText(QStringLiteral("lblSec"), QString::number(second + 2));
    });
    QCOMPARE(failure, QString());
    const QPoint corner = m_window->frameGeometry().topLeft() * m_window->devicePixelRatioF();
    asked({QStringLiteral("windowmove"), viewer, QString::number(corner.x()), QString::number(corner.y())});
    asked({QStringLiteral("windowraise"), viewer});
    QCOMPARE(m_user->play([&] { m_user->takePicture(QStringLiteral("help")); }), QString());
    const int process = asked({QStringLiteral("getwindowpid"), viewer}).toInt();
    QVERIFY(process > 0);
    QCOMPARE(::kill(process, SIGTERM), 0);
    QTRY_VERIFY(viewerWindow().isEmpty());
}

void HelpTour::aboutBox()
{
    const QString failure = m_user->play([&] {
        m_user->click(QStringLiteral("cmdClose"));
        m_user->choose({QStringLiteral("Help"), QStringLiteral("About")});
        m_user->waitForWindow(QStringLiteral("frmAbout"));
        m_user->takePicture(QStringLiteral("about"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForNoWindow();
    });
    QCOMPARE(failure, QString());
}

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    modMain::setApplicationLook();
    HelpTour tour;
    return QTest::qExec(&tour, argc, argv);
}

#include "tst_help.moc"
