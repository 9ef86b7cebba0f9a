// A whole day at the keyboard, from the first client to the end of the program: no step needs the mouse.
#include "journey.h"

#include "support/files.h"

#include <QDir>

using namespace Qt::StringLiterals;

class KeyboardDay : public Journey {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        for (const char* folder : {"reports", "templates/T"})
            QDir(m_folder.path()).mkpath(folder);
        writeFile(m_folder.path() + "/templates/T/a.txt", "No acute disease.");
        QFile::copy(STAGED_TEMPLATES "/Report.xls", m_folder.path() + "/templates/Report.xls");
        QVERIFY(start(m_folder.path()));
    }

    void needsNoMouse()
    {
        QVERIFY(play([this] {
            enterMasterData();
            doAJob();
            correctAndSubmit();
            reportAndBackUp();
            use("alt+F4");
            waitFor("the end", [this] { return !m_exitCodes.isEmpty(); });
        }));
        QCOMPARE(m_exitCodes.front(), EXIT_SUCCESS);
        QCOMPARE(m_folder.rows("select jobreference,jobchar,joblines from jobs"), QStringList("A-115|1000|15"));
        QVERIFY(m_folder.rows("select jobuploaded from jobs")[0].endsWith("12:00"));
        QCOMPARE(QDir(m_folder.path() + "/reports").entryList({"Riverside*.xls"}).size(), 1);
        qInfo("%d keys, %d of them texts", m_keys + m_letters, m_letters);
    }

private:
    void use(const QString& keys)
    {
        m_keys += static_cast<int>(keys.split(u' ').size());
        press(keys);
    }
    void write(const QString& text)
    {
        m_letters += static_cast<int>(text.size());
        type(text);
    }

    void enterMasterData()
    {
        use("alt+d c Right Return");
        waitForWindow("frmAddAcct");
        write("Riverside Clinic");
        use("Return");
        waitForTitle("Penwright - [Clients List]");
        use("alt+d a Right Return");
        waitForWindow("frmAddType");
        use("alt+l Down Tab");
        write("Notes");
        use("Tab");
        write("1.25");
        use("Tab Tab");
        write("65");
        use("Return");
        waitForTitle("Penwright - [Job Type List]");
        use("F3 alt+n");
        waitFor("the panel", [] { return control("frTemp") != nullptr; });
        write("Chest");
        use("Tab");
        write("CXR");
        use("Tab Tab");
        write("\\T\\a.txt");
        use("alt+s");
        waitForText("txtTemp_0", QString());
        use("Escape");
        waitForTitle("Penwright - [Job List]");
    }
    void doAJob()
    {
        use("F6 Tab");
        waitForWindow("frmAddJob");
        write("Riverside Clinic");
        use("Tab");
        write("Notes");
        use("Tab");
        write("A-114");
        use("Return");
        waitForText("lblJob_10", "A-114");
        use("alt+a alt+k");
        waitForText("cmdStart", "Pause");
        write("c");
        use("Down Return");
        waitForText(
            "Label10",
            "Position your cursor in the document where you want to paste the template.  Press 'ctrl + v' to paste.",
            30'000);
        use("alt+c");
        write("1000");
        use("alt+s");
        waitForText("txtCount", "1");
    }
    void correctAndSubmit()
    {
        use("F7 Return");
        waitForText("lblJob_10", "A-114");
        use("shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab");
        waitFor("the reference",
                [] { return QApplication::focusWidget() && QApplication::focusWidget()->objectName() == "lblJob_10"; });
        use("space");
        waitForWindow("frmEditJob");
        write("A-115");
        use("Return");
        waitForText("lblJob_10", "A-115");
        use("alt+c");
        write("1000");
        use("alt+s");
        waitForText("txtCount", "1");
        use("F8 Home alt+j ctrl+a alt+s");
        waitForNoWindow();
    }
    void reportAndBackUp()
    {
        use("F4 alt+s Tab Tab Down alt+v alt+r");
        waitForWindow("Save");
        use("Return");
        waitFor(
            "the report", [this] { return !QDir(m_folder.path() + "/reports").entryList({"*.xls"}).isEmpty(); },
            30'000);
        use("Escape");
        waitForNoWindow();
        use("alt+f Return");
        waitForWindow("frmBackup");
        use("Escape");
        waitForNoWindow();
    }

    int m_keys = 0;
    int m_letters = 0;
};

JOURNEY_MAIN(KeyboardDay)
#include "tst_keyboardDay.moc"
