// Templates in the real window with the real office suite: managed, fetched by key code, pasted by another program,
// listed in the guide.
#include "journey.h"
#include "printed.h"

#include "office/suite.h"
#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QProcess>

namespace {

/// What another program finds in the clipboard.
QByteArray pasted(const QString& format)
{
    QProcess xclip;
    xclip.start("xclip", {"-selection", "clipboard", "-o", "-t", format});
    // The program that owns the clipboard is this one: it must be able to answer.
    while (xclip.state() != QProcess::NotRunning)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return xclip.readAllStandardOutput();
}

const QString pasteMessage =
    "Position your cursor in the document where you want to paste the template.  Press 'ctrl + v' to paste.";
const QString unknownMessage = "There is no Template in the system with that Key Code. Please try again";

} // namespace

class TemplateTour : public Journey {
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
};

void TemplateTour::initTestCase()
{
    QCOMPARE(QProcess::execute("cp", {"-r", STAGED_TEMPLATES, m_folder.path()}), 0);
    storeOneJob("A");
    QVERIFY(start(m_folder.path()));
}

void TemplateTour::manageTemplates()
{
    QVERIFY(play([&] {
        m_user->press("F3");
        m_user->waitForTitle("Penwright - [Manage Templates]");
        m_user->click("txtTemp_0");
        m_user->type("Chest X-ray\tCXR\ttwo views\t");
        m_user->click("cmdTempSave");
        m_user->waitForWindow("Name, Key Code and Path must contain valid entrys.");
        m_user->press("Return");
        m_user->waitForNoWindow();
        m_user->click("txtTemp_3");
        m_user->type("\\Radiology\\chest-x-ray.doc");
        m_user->takePicture("template-new");
        m_user->click("cmdTempSave");
        m_user->waitForText("txtTemp_0", QString());
        m_user->clickCell(0, 0);
        m_user->waitForText("txtTemp_1", "CXR");
        m_user->takePicture("template-edit");
        m_user->click("txtTemp_2");
        m_user->type("=1+1");
        m_user->click("cmdTempSave");
        m_user->waitForText("txtTemp_0", QString());
    }));
    QCOMPARE(m_folder.rows("select * from template"),
             QStringList{"1|Chest X-ray|CXR|=1+1|\\Radiology\\chest-x-ray.doc"});
}

void TemplateTour::callByKeyCode()
{
    QVERIFY(play([&] {
        m_user->click("cmdCancel");
        m_user->waitForTitle("Penwright - [Job List]");
        m_user->press("F2");
        m_user->waitForWindow("frmCallTemp");
        m_user->type("cxr");
        m_user->press("Return");
        m_user->waitForText("Label1", pasteMessage, 30'000);
        m_user->takePicture("call-template");
        m_user->press("Escape");
        m_user->waitForNoWindow();
    }));
}

void TemplateTour::pasteElsewhere()
{
    QVERIFY(pasted("text/rtf").startsWith("{\\rtf1"));
    QVERIFY(pasted("text/rtf").contains("No acute disease."));
    QVERIFY(pasted("text/html").contains("No acute disease."));
    QVERIFY(pasted("UTF8_STRING").contains("Chest X-ray, two views"));
}

void TemplateTour::unknownKeyCode()
{
    QVERIFY(play([&] {
        m_user->press("F2");
        m_user->waitForWindow("frmCallTemp");
        m_user->press("Return");
        m_user->type("none");
        m_user->press("Return");
        m_user->waitForText("Label1", unknownMessage);
        m_user->waitForText("txtTemplate", QString());
        m_user->takePicture("call-unknown");
        m_user->click("cmdReset");
        m_user->waitForText("Label1", "..");
        m_user->press("Escape");
        m_user->waitForNoWindow();
    }));
}

void TemplateTour::callWhileAJobIsTimed()
{
    QVERIFY(play([&] {
        m_user->press("F7");
        m_user->clickCell(0, 0);
        m_user->waitForText("lblJob_10", "A");
        m_user->click("cmdStart");
        m_user->click("txtTemplate");
        m_user->type("CXR");
        m_user->press("Return");
        m_user->waitForText("Label10", pasteMessage);
        m_user->waitForText("lblSec", "2");
        m_user->takePicture("job-get-template");
        m_user->click("cmdClose");
        m_user->waitForText("txtCount", "1");
    }));
}

void TemplateTour::guide()
{
    QVERIFY(play([&] { m_user->choose({"Reports", "Template Guide"}); }));
    QVERIFY(waitForOtherWindow("template.xls"));
    const QString printed = takePrinted(TOUR_FOLDER "/guide-printed");
    QVERIFY2(printed.contains("Template Guide") && printed.contains("Chest X-ray"), qPrintable(printed));
    QVERIFY(play([&] { m_user->takePictureOfDisplay("guide-window"); }));
    // Read by another program than ours: the text that begins like a formula is a text.
    QProcess reader;
    reader.start("xls2csv", {m_folder.path() + "/templates/template.xls"});
    QVERIFY(reader.waitForFinished());
    const QString sheet = QString::fromUtf8(reader.readAllStandardOutput());
    QVERIFY2(sheet.contains("\"Name\",\"Key Code\",\"Description\"\n\"Chest X-ray\",\"CXR\",\"=1+1\""),
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
    QVERIFY(closeOtherWindow("template.xls"));
    QTRY_COMPARE_WITH_TIMEOUT(suiteFolders(), QStringList(), 20'000);
}

int main(int argc, char* argv[])
{
    // What the suites leave lying about lies here.
    const QTemporaryDir temporary;
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    return runJourney<TemplateTour>(argc, argv);
}

#include "tst_templates.moc"
