// Templates in the real window with the real office suite: managed, fetched by key code, pasted by another program,
// listed in the guide.
#include "journey.h"
#include "printed.h"

#include "office/suite.h"

#include <QDir>
#include <QProcess>

namespace {

/// Reads the clipboard from another program.
QString readClipboard(const QString& format)
{
    return readOutput("xclip", {"-selection", "clipboard", "-o", "-t", format});
}

const QString pasteMessage =
    "Position your cursor in the document where you want to paste the template.  Press 'ctrl + v' to paste.";

} // namespace

class TemplateTour : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(QProcess::execute("cp", {"-r", STAGED_TEMPLATES, m_folder.path()}), 0);
        storeClient();
        storeJob("A");
        QVERIFY(start(m_folder.path()));
    }

    void manageTemplates()
    {
        QVERIFY(play([&] {
            press("F3");
            waitForTitle("Penwright - [Manage Templates]");
            fill("txtTemp_0", "Chest X-ray\tCXR\ttwo views\t");
            fill("txtTemp_3", "\\Radiology\\chest-x-ray.doc");
            takePicture("template-new");
            click("cmdTempSave");
            waitForText("txtTemp_0", QString());
            clickRow(0);
            waitForText("txtTemp_1", "CXR");
            takePicture("template-edit");
            fill("txtTemp_2", "=1+1");
            click("cmdTempSave");
            waitForText("txtTemp_0", QString());
        }));
        QCOMPARE(m_folder.rows("select * from template"),
                 QStringList{"1|Chest X-ray|CXR|=1+1|\\Radiology\\chest-x-ray.doc"});
    }

    void callByKeyCode()
    {
        QString rtf, html, plain;
        QVERIFY(play([&] {
            click("cmdCancel");
            waitForTitle("Penwright - [Job List]");
            open("frmCallTemp", "F2");
            type("none");
            press("Return");
            waitForText("Label1", "There is no Template in the system with that Key Code. Please try again");
            takePicture("call-unknown");
            type("cxr");
            press("Return");
            waitForText("Label1", pasteMessage, 30'000);
            takePicture("call-template");
            // A code that is chosen from those that begin with what is typed; Enter without a choice calls what is
            // typed.
            type("c");
            press("Down");
            waitForText("txtTemplate", "CXR");
            takePicture("call-codes", Area::Display);
            press("Return");
            waitForText("txtTemplate", QString());
            type("cx");
            press("Return");
            waitForText("Label1", "There is no Template in the system with that Key Code. Please try again");
            waitForText("txtTemplate", QString());
            type("cxr");
            press("Return");
            waitForText("Label1", pasteMessage);
            leave();
            rtf = readClipboard("text/rtf");
            html = readClipboard("text/html");
            plain = readClipboard("UTF8_STRING");
        }));
        QVERIFY(rtf.startsWith("{\\rtf1"));
        for (const QString& text : {rtf, html})
            QVERIFY2(text.contains("No acute disease."), qPrintable(text));
        QVERIFY2(plain.contains("Chest X-ray, two views"), qPrintable(plain));
    }

    void callWhileAJobIsTimed()
    {
        QVERIFY(play([&] {
            openFirstJob("A");
            click("cmdStart");
            fill("txtTemplate", "CXR");
            press("Return");
            waitForText("Label10", pasteMessage);
            waitForText("lblSec", "2");
            takePicture("job-get-template");
            click("cmdClose");
            waitForText("txtCount", "1");
        }));
    }

    void printAndShowGuide()
    {
        QVERIFY(play([&] { choose({"Reports", "Template Guide"}); }));
        QVERIFY(waitForOtherWindow("template.xls"));
        const QString printed = takePrinted(TOUR_FOLDER "/guide-printed");
        QVERIFY2(printed.contains("Template Guide") && printed.contains("Chest X-ray"), qPrintable(printed));
        QVERIFY(play([&] { takePicture("guide-window", Area::Display); }));
        // Another program reads it: a text that begins like a formula is a text.
        const QString sheet = readOutput("xls2csv", {m_folder.path() + "/templates/template.xls"});
        QVERIFY2(sheet.contains("\"Name\",\"Key Code\",\"Description\"\n\"Chest X-ray\",\"CXR\",\"=1+1\""),
                 qPrintable(sheet));
    }

    // The guide's window stays open when the program ends; when it closes, nothing is left behind.
    void cleanupTestCase()
    {
        m_window->close();
        office::endSuite();
        const auto suiteFolders = [] { return QDir(QDir::tempPath()).entryList({"penwright-office-*"}, QDir::Dirs); };
        QCOMPARE(suiteFolders().size(), 1);
        QVERIFY(closeOtherWindow("template.xls"));
        QTRY_COMPARE_WITH_TIMEOUT(suiteFolders(), QStringList(), 20'000);
    }
};

int main(int argc, char* argv[])
{
    // The temporary files of the suites lie here.
    const QTemporaryDir temporary;
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    return runJourney<TemplateTour>(argc, argv);
}

#include "tst_templates.moc"
