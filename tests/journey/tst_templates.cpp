// Templates in the real window with the real office suite: managed, fetched by key code, pasted by another program,
// listed in the guide.
#include "printed.h"
#include "user.h"

#include "app/start.h"
#include "office/suite.h"
#include "support/scratchFolder.h"
#include "ui/eventGuard.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QProcess>
#include <QTest>

namespace {

/// What another program finds in the clipboard.
QByteArray pasted(const QString& format)
{
    QProcess xclip;
    xclip.start(QStringLiteral("xclip"), {QStringLiteral("-selection"), QStringLiteral("clipboard"),
                                          QStringLiteral("-o"), QStringLiteral("-t"), format});
    // The program that owns the clipboard is this one: it must be able to answer.
    while (xclip.state() != QProcess::NotRunning)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return xclip.readAllStandardOutput();
}

const QString pasteMessage = QStringLiteral(
    "Position your cursor in the document where you want to paste the template.  Press 'ctrl + v' to paste.");
const QString unknownMessage =
    QStringLiteral("There is no Template in the system with that Key Code. Please try again");

} // namespace

class TemplateTour : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void manageTemplates();
    void callByKeyCode();
    void pasteElsewhere();
    void unknownKeyCode();
    void callWhileAJobIsTimed();
    void guide();
    void cleanupTestCase();

private:
    void play(const std::function<void()>& story) { QCOMPARE(m_user->play(story), QString()); }

    ScratchFolder m_folder;
    QList<int> m_ends;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<User> m_user;
};

void TemplateTour::initTestCase()
{
    QCOMPARE(QProcess::execute(QStringLiteral("cp"),
                               {QStringLiteral("-r"), QStringLiteral(STAGED_TEMPLATES), m_folder.path()}),
             0);
    m_folder.run(QStringLiteral("insert into jobacct(acctname)values('Riverside Clinic')"));
    m_folder.run(QStringLiteral("insert into accttype(acctid,accttype,acctrate,acctcharline,acctunit)"
                                "values(1,'Notes',1.25,65,'Line')"));
    m_folder.run(QStringLiteral("insert into jobs(jobdate,jobacctid,jobtypeid,jobreference)values(#%1#,1,1,'A')")
                     .arg(values::dateText(values::dateTime(values::today()))));
    m_user = std::make_unique<User>(QStringLiteral(TOUR_FOLDER));
    // The end of the program shall not be that of the test.
    ui::setProgramEnd([this](int code) { m_ends << code; });
    m_window = modMain::Main(m_folder.path());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TemplateTour::manageTemplates()
{
    play([&] {
        m_user->press(QStringLiteral("F3"));
        m_user->waitForTitle(QStringLiteral("Penwright - [Manage Templates]"));
        m_user->click(QStringLiteral("txtTemp_0"));
        m_user->type(QStringLiteral("Chest X-ray\tCXR\ttwo views\t"));
        m_user->click(QStringLiteral("cmdTempSave"));
        m_user->waitForWindow(QStringLiteral("Name, Key Code and Path must contain valid entrys."));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForNoWindow();
        m_user->click(QStringLiteral("txtTemp_3"));
        m_user->type(QStringLiteral("\\Radiology\\chest-x-ray.doc"));
        m_user->takePicture(QStringLiteral("template-new"));
        m_user->click(QStringLiteral("cmdTempSave"));
        m_user->waitForText(QStringLiteral("txtTemp_0"), QString());
        m_user->clickCell(0, 0);
        m_user->waitForText(QStringLiteral("txtTemp_1"), QStringLiteral("CXR"));
        m_user->takePicture(QStringLiteral("template-edit"));
        m_user->click(QStringLiteral("txtTemp_2"));
        m_user->type(QStringLiteral("=1+1"));
        m_user->click(QStringLiteral("cmdTempSave"));
        m_user->waitForText(QStringLiteral("txtTemp_0"), QString());
    });
    QCOMPARE(m_folder.rows(QStringLiteral("select * from template")),
             QStringList(QStringLiteral("1|Chest X-ray|CXR|=1+1|\\Radiology\\chest-x-ray.doc")));
}

void TemplateTour::callByKeyCode()
{
    play([&] {
        m_user->click(QStringLiteral("cmdCancel"));
        m_user->waitForTitle(QStringLiteral("Penwright - [Job List]"));
        m_user->press(QStringLiteral("F2"));
        m_user->waitForWindow(QStringLiteral("frmCallTemp"));
        m_user->type(QStringLiteral("cxr"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForText(QStringLiteral("Label1"), pasteMessage, 30'000);
        m_user->takePicture(QStringLiteral("call-template"));
        m_user->press(QStringLiteral("Escape"));
        m_user->waitForNoWindow();
    });
}

void TemplateTour::pasteElsewhere()
{
    QVERIFY(pasted(QStringLiteral("text/rtf")).startsWith("{\\rtf1"));
    QVERIFY(pasted(QStringLiteral("text/rtf")).contains("No acute disease."));
    QVERIFY(pasted(QStringLiteral("text/html")).contains("No acute disease."));
    QVERIFY(pasted(QStringLiteral("UTF8_STRING")).contains("Chest X-ray, two views"));
}

void TemplateTour::unknownKeyCode()
{
    play([&] {
        m_user->press(QStringLiteral("F2"));
        m_user->waitForWindow(QStringLiteral("frmCallTemp"));
        m_user->press(QStringLiteral("Return"));
        m_user->type(QStringLiteral("none"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForText(QStringLiteral("Label1"), unknownMessage);
        m_user->waitForText(QStringLiteral("txtTemplate"), QString());
        m_user->takePicture(QStringLiteral("call-unknown"));
        m_user->click(QStringLiteral("cmdReset"));
        m_user->waitForText(QStringLiteral("Label1"), QStringLiteral(".."));
        m_user->press(QStringLiteral("Escape"));
        m_user->waitForNoWindow();
    });
}

void TemplateTour::callWhileAJobIsTimed()
{
    play([&] {
        m_user->press(QStringLiteral("F7"));
        m_user->clickCell(0, 0);
        m_user->waitForText(QStringLiteral("lblJob_10"), QStringLiteral("A"));
        m_user->click(QStringLiteral("cmdStart"));
        m_user->click(QStringLiteral("txtTemplate"));
        m_user->type(QStringLiteral("CXR"));
        m_user->press(QStringLiteral("Return"));
        m_user->waitForText(QStringLiteral("Label10"), pasteMessage);
        m_user->waitForText(QStringLiteral("lblSec"), QStringLiteral("2"));
        m_user->takePicture(QStringLiteral("job-get-template"));
        m_user->click(QStringLiteral("cmdClose"));
        m_user->waitForText(QStringLiteral("txtCount"), QStringLiteral("1"));
    });
}

void TemplateTour::guide()
{
    play([&] { m_user->choose({QStringLiteral("Reports"), QStringLiteral("Template Guide")}); });
    QVERIFY(waitForOtherWindow(QStringLiteral("template.xls")));
    const QString printed = takePrinted(QStringLiteral(TOUR_FOLDER "/guide-printed"));
    QVERIFY2(printed.contains(QStringLiteral("Template Guide")) && printed.contains(QStringLiteral("Chest X-ray")),
             qPrintable(printed));
    play([&] { m_user->takePictureOfDisplay(QStringLiteral("guide-window")); });
    // Read by another program than ours: the text that begins like a formula is a text.
    QProcess reader;
    reader.start(QStringLiteral("xls2csv"), {m_folder.path() + QStringLiteral("/templates/template.xls")});
    QVERIFY(reader.waitForFinished());
    const QString sheet = QString::fromUtf8(reader.readAllStandardOutput());
    QVERIFY2(sheet.contains(QStringLiteral("\"Name\",\"Key Code\",\"Description\"\n\"Chest X-ray\",\"CXR\",\"=1+1\"")),
             qPrintable(sheet));
}

// The guide's window outlives the program and its suite; when it closes, nothing is left behind.
void TemplateTour::cleanupTestCase()
{
    m_window->close();
    office::endSuite();
    const auto suiteFolders = [] {
        return QDir(QDir::tempPath()).entryList({QStringLiteral("penwright-office-*")}, QDir::Dirs);
    };
    QCOMPARE(suiteFolders().size(), 1);
    QVERIFY(closeOtherWindow(QStringLiteral("template.xls")));
    QTRY_COMPARE_WITH_TIMEOUT(suiteFolders(), QStringList(), 20'000);
}

int main(int argc, char* argv[])
{
    // What the suites leave lying about lies here.
    const QTemporaryDir temporary;
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    QApplication application(argc, argv);
    modMain::setApplicationLook();
    TemplateTour tour;
    return QTest::qExec(&tour, argc, argv);
}

#include "tst_templates.moc"
