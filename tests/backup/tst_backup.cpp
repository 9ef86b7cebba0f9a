#include "backup/backUp.h"
#include "backup/frmBackup.h"
#include "support/bench.h"
#include "support/errorOf.h"
#include "support/files.h"
#include "support/table.h"

#include <QFileDialog>

using Work = std::function<void(QWidget&)>;

/// A program folder on August 20, 2004, with a home folder for the documents and a folder for the backup.
struct Desk : Bench {
    explicit Desk(QString settings)
    {
        now = values::dateTime(QDate(2004, 8, 20), QTime(14, 5, 7));
        qputenv("HOME", QFile::encodeName(home.path()));
        qunsetenv("XDG_CONFIG_HOME");
        for (const char* name : {"reports", "templates"})
            QDir(folder.path()).mkdir(name);
        settings.replace("BACKSLASHED", backslashed).replace("PLACE", place.path());
        store::Connection connection(modMain::BUConnString);
        connection.runNative("update bu set lastbu = '2004-08-01 00:00:00', path = 'x'");
        connection.runNative("update bu set " + settings.toUtf8());
    }

    QString row() const
    {
        QString row = readRows(modMain::BUConnString, "select freq,lastbu,path,dobackup from bu").join('\n');
        return row.replace(home.path(), "HOME").replace(place.path(), "PLACE").replace(backslashed, "BACKSLASHED");
    }

    /// Opens the dialog and clicks these controls, the last of which must close it.
    void clickThrough(const QString& controls)
    {
        backup::frmBackup form(nullptr);
        form.show();
        for (const QString& name : controls.split(' '))
            click(form, qPrintable(name));
        QVERIFY(!form.isVisible());
    }

    QTemporaryDir home;
    QTemporaryDir place;
    const QString backslashed = place.path().replace(u'/', u'\\');
};

class TestBackup : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensOnTheStoredSettings()
    {
        for (const auto& [settings, shows] :
             {std::pair("freq = 1", "Daily"), std::pair("dobackup = 1", "Active Weekly"), std::pair("freq = 5", ""),
              std::pair("freq = 30, dobackup = NULL", "Monthly"), std::pair("freq = NULL", "")}) {
            const Desk desk(QString("path = 'D:\\<b>&', ") + settings);
            const backup::frmBackup form(nullptr);
            QStringList checked;
            for (const auto* button : form.findChildren<QAbstractButton*>())
                checked << (button->isChecked() ? button->text() : QString());
            checked.removeAll("");
            QCOMPARE(checked.join(' '), shows);
            QCOMPARE(textOf(form, "lblBU") + ' ' + textOf(form, "lblPath"), "8/1/2004 D:\\<b>&");
            QVERIFY(QDir(desk.home.filePath("Documents/PWR Backup")).exists());
        }
    }

    void refusesToOpenWithoutSettingsOrFolder()
    {
        for (const auto& [settings, fault] :
             {std::pair("lastbu = NULL", 94), {"path = NULL", 94}, {"path = 'x'", 75}}) {
            const Desk desk(settings);
            writeFile(desk.home.filePath(fault == 94 ? "other" : "Documents"), "");
            QCOMPARE(catchFault([] { backup::frmBackup form(nullptr); }), fault);
        }
    }

    void hasNoDefaultWithoutDocuments()
    {
        Desk desk("path = 'Not set'");
        QDir(desk.home.path()).mkdir(".config");
        writeFile(desk.home.filePath(".config/user-dirs.dirs"), "XDG_DOCUMENTS_DIR=\"\"\n");
        for (const QString& home : {desk.home.path(), QString()}) {
            qputenv("HOME", QFile::encodeName(home));
            desk.answers.expectBox("There is no documents folder, and so no default folder for the backup. Press "
                                   "Change path and choose another one.");
            desk.clickThrough("cmdClose");
            QCOMPARE(desk.row(), "7|8/1/2004|Not set|False");
        }
        QVERIFY(!QFile::exists("/PWR Backup") && !QFile::exists("/Documents/PWR Backup"));
    }

    void changesPath()
    {
        Desk desk("path = 'Not set'");
        backup::frmBackup form(nullptr);
        const auto change = [&](QMessageBox::StandardButton answer, const Work& pick = {}) {
            desk.answers.expectBox("It is recommended that you use the default path which copies this program's data,"
                                   "\r\ntemplates and reports folders to your 'My Documents/PWR Backup' folder and \r\n"
                                   "backup ALL of your important files at one time. Click 'Yes' to use the \r\n"
                                   "default path or 'No' to select another location.  NOTE: This program will\r\n"
                                   "not copy directly to a CD Drive.",
                                   answer, "Wait a minute!");
            if (pick)
                desk.answers.expectDialog("objBD", pick);
            click(form, "cmdPath");
            return textOf(form, "lblPath");
        };
        QCOMPARE(change(QMessageBox::Yes), "Not set");
        const QString picked = change(QMessageBox::No, [&](QWidget& window) {
            auto& picker = dynamic_cast<QFileDialog&>(window);
            QCOMPARE(picker.windowTitle(), "Browse to drive or folder");
            QCOMPARE(picker.labelText(QFileDialog::LookIn), "Select drive or folder you wish to backup to.");
            QCOMPARE(picker.directory().path(), desk.home.filePath("Documents/PWR Backup"));
            find<QLineEdit>(picker, "fileNameEdit").setText(desk.place.path());
            QTest::keyClick(&picker, Qt::Key_Return);
        });
        QCOMPARE(picked, desk.place.path());
        QCOMPARE(change(QMessageBox::No, [](QWidget& picker) { QTest::keyClick(&picker, Qt::Key_Escape); }), picked);
        QCOMPARE(desk.row(), "7|8/1/2004|Not set|False");
    }

    // Clicks in the dialog; or, without any, the closing of the program, which is expected to end it if "end" is given.
    void storesAndBacksUp_data()
    {
#define FAILED(error) "Error 76 (Path not found" error ") in procedure BackUpFolders of Module modMain|Backup failed."
#define NULL_PATH "Error 94 (Invalid use of Null) in procedure GetBackUpInfo of Module modMain"
        addRows({
            {"settings", "clicks", "boxes", "row"},
            {"save", "path = 'D:\\B'", "optFreq_2 chkActive cmdSave", "", "30|8/1/2004|D:\\B|True"},
            {"save, no interval", "freq = 5, dobackup = 1", "chkActive cmdSave", "", "0|8/1/2004|x|False"},
            {"save refused, cancel", "path = 'Not set'", "optFreq_0 cmdSave cmdClose",
             "You select a location to backup to.", "7|8/1/2004|HOME/Documents/PWR Backup|False"},
            {"cancel", "path = 'not set'", "optFreq_0 chkActive cmdClose", "", "7|8/1/2004|not set|False"},
            {"now", "path = 'BACKSLASHED'", "cmdBackup", "Backup was successful.", "7|8/20/2004|BACKSLASHED|False"},
            {"now, not set", "path = 'Not set'", "cmdBackup",
             FAILED(": 'Not set/'. See that it is there and that its disk is connected."), "7|8/1/2004|Not set|False"},
            {"now, drive", "path = 'E:'", "cmdBackup", "Drive is not ready|Backup failed.", "7|8/1/2004|E:|False"},
            {"now, nothing", "path = ''", "cmdBackup", FAILED(""), "7|8/1/2004||False"},
            {"off, whatever else is there", "path = NULL, lastbu = NULL", "end", "", "7|(null)|(null)|False"},
            {"neither on nor off", "dobackup = NULL", "end", "", "7|8/1/2004|x|(null)"},
            {"not due yet", "dobackup = 1, freq = 19", "end", "", "19|8/1/2004|x|True"},
            {"before the last", "dobackup = 1, lastbu = '2014-08-20 00:00:00'", "end", "", "7|8/20/2014|x|True"},
            {"due by the calendar", "dobackup = 1, path = 'PLACE', freq = 1, lastbu = '2004-08-18 23:59:59'", "end",
             "Backup was successful.", "1|8/20/2004|PLACE|True"},
            {"due, no drive", "dobackup = 1, path = 'E:\\'", "end",
             "Drive is not ready|Backup failed - please check your backup settings.", "7|8/1/2004|E:\\|True"},
            {"no path", "dobackup = 1, path = NULL", "", NULL_PATH, "7|8/1/2004|(null)|True"},
            {"no date", "dobackup = 1, lastbu = NULL", "", NULL_PATH, "7|(null)|x|True"},
        });
    }

    void storesAndBacksUp()
    {
        const QString clicks = cell("clicks"), boxes = cell("boxes");
        Desk desk(cell("settings"));
        for (const QString& box : boxes.split('|', Qt::SkipEmptyParts))
            desk.answers.expectBox(box);
        if (clicks == "end")
            desk.expectedExitCodes << EXIT_SUCCESS;
        if (clicks.contains("cmd"))
            desk.clickThrough(clicks);
        else
            modMain::GetBackUpInfo();
        QTEST(desk.row(), "row");
        for (const char* name : {"data/dB.mdb", "data/BU.mdb", "reports", "templates"})
            QCOMPARE(QFileInfo::exists(desk.place.filePath(name)), boxes.contains("successful"));
    }

    void showsAndStopsCopying_data()
    {
        QTest::addColumn<Work>("stop");
        QTest::newRow("button") << Work([](QWidget& box) { box.findChild<QAbstractButton*>()->click(); });
        QTest::newRow("Escape") << Work([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QTest::newRow("close box") << Work(&QWidget::close);
        QTest::newRow("end of the program") << Work([](QWidget&) { modMain::GetBackUpInfo(); });
    }

    // Another program is changing the data file, so the copying waits for it.
    void showsAndStopsCopying()
    {
        QFETCH(const Work, stop);
        const bool isEnd = QByteArray(QTest::currentDataTag()).startsWith("end");
        Desk desk("path = 'PLACE'");
        writeFile(desk.folder.path() + "/reports/r.xls", "");
        auto other = std::make_unique<store::Connection>(modMain::DBConnString);
        other->runNative("begin exclusive");
        desk.answers.expectDialog("workBox", [&](QWidget& box) {
            QTRY_VERIFY(box.property("labelText").toString().contains(" of 3 files, "));
            if (isEnd)
                other.reset();
            stop(box);
            QTest::qWait(10);
            QVERIFY(isEnd || box.isVisible()); // until the copying has stopped
            other.reset();
            box.hide();
        });
        desk.answers.expectBox("Backup failed.");
        desk.expectedExitCodes = isEnd ? QList{EXIT_SUCCESS} : QList<int>();
        desk.clickThrough("cmdBackup");
        QCOMPARE(desk.row(), "7|8/1/2004|PLACE|False");
        QVERIFY(QFile::exists(desk.place.filePath("reports/r.xls")));
        QVERIFY(QDir(desk.place.filePath("data")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
        QVERIFY(!QFile::exists(desk.place.filePath("templates")));
    }
};

QTEST_MAIN(TestBackup)
#include "tst_backup.moc"
