#include "backup/backUp.h"
#include "backup/frmBackup.h"
#include "store/recordset.h"
#include "support/bench.h"
#include "support/errorOf.h"
#include "support/files.h"
#include "support/find.h"
#include "support/table.h"
#include "ui/eventGuard.h"

#include <QFileDialog>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;
using Work = std::function<void(QWidget&)>;

/// A program folder on August 20, 2004, with a home of its own for the documents and a place to back up to.
struct Desk : Bench {
    explicit Desk(QString settings)
    {
        now = values::dateTime(QDate(2004, 8, 20), QTime(14, 5, 7));
        qputenv("HOME", QFile::encodeName(home.path()));
        qunsetenv("XDG_CONFIG_HOME");
        for (const char* name : {"reports", "templates"})
            QDir(folder.path()).mkdir(QLatin1String(name));
        settings.replace(u"BACKSLASHED"_s, backslashed).replace(u"PLACE"_s, place.path());
        store::Connection connection(modMain::BUConnString);
        connection.runNative("update bu set lastbu = '2004-08-01 00:00:00', path = 'x'");
        connection.runNative("update bu set " + settings.toUtf8());
    }

    QString row() const
    {
        store::Connection connection(modMain::BUConnString);
        const store::Recordset set(connection, u"select freq,lastbu,path,dobackup from bu"_s);
        QStringList fields;
        for (int i = 0; i < set.fieldCount(); ++i)
            fields << (set.field(i).isNull() ? u"(null)"_s : set.field(i).toText());
        const QString row = fields.join(u'|').replace(home.path(), u"HOME"_s);
        return QString(row).replace(place.path(), u"PLACE"_s).replace(backslashed, u"BACKSLASHED"_s);
    }

    /// Opens the dialog and clicks these controls, the last of which must close it.
    void clickThrough(const QString& controls)
    {
        backup::frmBackup form(nullptr);
        form.show();
        for (const QString& name : controls.split(u' '))
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
    void opensOnTheStoredSettings_data()
    {
        table({{"settings", "shows"},
               {"daily", "freq = 1", "Daily"},
               {"weekly, active", "dobackup = 1", "Active Weekly"},
               {"monthly, neither on nor off", "freq = 30, dobackup = NULL", "Monthly"},
               {"another interval", "freq = 5", ""},
               {"none", "freq = NULL", ""}});
    }

    void opensOnTheStoredSettings()
    {
        QFETCH(const QString, settings);
        const Desk desk(u"path = 'D:\\<b>&', "_s + settings);
        const backup::frmBackup form(nullptr);
        QStringList shows;
        for (const auto* button : form.findChildren<QAbstractButton*>()) {
            if (button->isChecked())
                shows << button->text();
        }
        QTEST(shows.join(u' '), "shows");
        QCOMPARE(shown(form, "lblBU"), u"8/1/2004"_s);
        QCOMPARE(shown(form, "lblPath"), u"D:\\<b>&"_s);
        QVERIFY(QDir(desk.home.filePath(u"Documents/PWR Backup"_s)).exists());
    }

    void opensNotWithoutSettingsAndFolder()
    {
        for (const char* column : {"lastbu", "path"}) {
            Desk desk(QLatin1String(column) + u" = NULL"_s);
            desk.expectEnd(94, "Invalid use of Null");
            ui::guard([] { backup::frmBackup form(nullptr); });
        }
        Desk desk(u"path = 'x'"_s);
        writeFile(desk.home.filePath(u"Documents"_s), "");
        QCOMPARE(faultOf([] { backup::frmBackup form(nullptr); }), 75);
    }

    void hasNoDefaultWithoutDocuments()
    {
        Desk desk(u"path = 'Not set'"_s);
        QDir(desk.home.path()).mkdir(u".config"_s);
        writeFile(desk.home.filePath(u".config/user-dirs.dirs"_s), "XDG_DOCUMENTS_DIR=\"\"\n");
        for (const QString& home : {desk.home.path(), u""_s}) {
            qputenv("HOME", QFile::encodeName(home));
            desk.answers.expectBox(u"There is no documents folder, and so no default folder for the backup. Press "
                                   "Change path and choose another one."_s);
            desk.clickThrough(u"cmdClose"_s);
            QCOMPARE(desk.row(), u"7|8/1/2004|Not set|False"_s);
        }
        QVERIFY(!QFile::exists(u"/PWR Backup"_s) && !QFile::exists(u"/Documents/PWR Backup"_s));
    }

    void changesPath()
    {
        Desk desk(u"path = 'Not set'"_s);
        backup::frmBackup form(nullptr);
        const auto change = [&](QMessageBox::StandardButton answer, const Work& pick = {}) {
            desk.answers.expectBox(u"It is recommended that you use the default path which copies this program's data,"
                                   "\r\ntemplates and reports folders to your 'My Documents/PWR Backup' folder and \r\n"
                                   "backup ALL of your important files at one time. Click 'Yes' to use the \r\n"
                                   "default path or 'No' to select another location.  NOTE: This program will\r\n"
                                   "not copy directly to a CD Drive."_s,
                                   answer, u"Wait a minute!"_s);
            if (pick)
                desk.answers.expectDialog(u"objBD"_s, pick);
            click(form, "cmdPath");
            return shown(form, "lblPath");
        };
        QCOMPARE(change(QMessageBox::Yes), u"Not set"_s);
        const QString picked = change(QMessageBox::No, [&](QWidget& window) {
            auto& picker = dynamic_cast<QFileDialog&>(window);
            QCOMPARE(picker.windowTitle(), u"Browse to drive or folder"_s);
            QCOMPARE(picker.labelText(QFileDialog::LookIn), u"Select drive or folder you wish to backup to."_s);
            QCOMPARE(picker.directory().path(), desk.home.filePath(u"Documents/PWR Backup"_s));
            find<QLineEdit>(picker, "fileNameEdit").setText(desk.place.path());
            QTest::keyClick(&picker, Qt::Key_Return);
        });
        QCOMPARE(picked, desk.place.path());
        QCOMPARE(change(QMessageBox::No, [](QWidget& picker) { QTest::keyClick(&picker, Qt::Key_Escape); }), picked);
        QCOMPARE(desk.row(), u"7|8/1/2004|Not set|False"_s);
    }

    // What is clicked in the dialog, or else the closing of the program; a closing that ends it has the mark "end".
    void events_data()
    {
#define FAILED(error) "Error " error ") in procedure BackUpFolders of Module modMain|Backup failed."
#define ADVICE "See that it is there and that its disk is connected."
#define NULL_PATH "Error 94 (Invalid use of Null) in procedure GetBackUpInfo of Module modMain"
        table({
            {"settings", "clicks", "boxes", "row"},
            {"save", "path = 'D:\\B'", "optFreq_2 chkActive cmdSave", "", "30|8/1/2004|D:\\B|True"},
            {"save, no interval", "freq = 5, dobackup = 1", "chkActive cmdSave", "", "0|8/1/2004|x|False"},
            {"save refused, then cancel", "path = 'Not set'", "optFreq_0 chkActive cmdSave cmdClose",
             "You select a location to backup to.", "7|8/1/2004|HOME/Documents/PWR Backup|False"},
            {"cancel", "path = 'not set'", "optFreq_0 chkActive cmdClose", "", "7|8/1/2004|not set|False"},
            {"now, to either separator", "path = 'BACKSLASHED'", "cmdBackup", "Backup was successful.",
             "7|8/20/2004|BACKSLASHED|False"},
            {"now, not set", "path = 'Not set'", "cmdBackup", FAILED("76 (Path not found: 'Not set/'. " ADVICE),
             "7|8/1/2004|Not set|False"},
            {"now, drive", "path = 'E:'", "cmdBackup", "Drive is not ready|Backup failed.", "7|8/1/2004|E:|False"},
            {"now, nothing", "path = ''", "cmdBackup", FAILED("76 (Path not found"), "7|8/1/2004||False"},
            {"off, whatever else is there", "path = NULL, lastbu = NULL", "end", "", "7|(null)|(null)|False"},
            {"neither on nor off", "dobackup = NULL", "end", "", "7|8/1/2004|x|(null)"},
            {"not due yet", "dobackup = 1, freq = 19", "end", "", "19|8/1/2004|x|True"},
            {"not due before the last", "dobackup = 1, freq = 1, lastbu = '2014-08-20 00:00:00'", "end", "",
             "1|8/20/2014|x|True"},
            {"due by the calendar", "dobackup = 1, path = 'PLACE', freq = 1, lastbu = '2004-08-18 23:59:59'", "end",
             "Backup was successful.", "1|8/20/2004|PLACE|True"},
            {"due, no drive", "dobackup = 1, path = 'E:\\'", "end",
             "Drive is not ready|Backup failed - please check your backup settings.", "7|8/1/2004|E:\\|True"},
            {"no path", "dobackup = 1, path = NULL", "", NULL_PATH, "7|8/1/2004|(null)|True"},
            {"no date", "dobackup = 1, lastbu = NULL", "", NULL_PATH, "7|(null)|x|True"},
        });
    }

    void events()
    {
        QFETCH(const QString, settings);
        QFETCH(const QString, clicks);
        QFETCH(const QString, boxes);
        Desk desk(settings);
        for (const QString& box : boxes.split(u'|', Qt::SkipEmptyParts))
            desk.answers.expectBox(box);
        if (clicks == u"end"_s)
            desk.expectedEnds << EXIT_SUCCESS;
        if (clicks.contains(u"cmd"_s))
            desk.clickThrough(clicks);
        else
            modMain::GetBackUpInfo();
        QTEST(desk.row(), "row");
        for (const char* name : {"data/dB.mdb", "data/BU.mdb", "reports", "templates"})
            QCOMPARE(QFileInfo::exists(desk.place.filePath(QLatin1String(name))), boxes.contains(u"successful"_s));
    }

    void copyingIsShownAndStopped_data()
    {
        QTest::addColumn<Work>("stop");
        QTest::newRow("button") << Work([](QWidget& box) { box.findChild<QPushButton*>()->click(); });
        QTest::newRow("Escape") << Work([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QTest::newRow("close box") << Work([](QWidget& box) { box.close(); });
        QTest::newRow("end of the program") << Work([](QWidget&) { modMain::GetBackUpInfo(); });
    }

    // The data file is in the middle of a change by another program, for which the copying waits.
    void copyingIsShownAndStopped()
    {
        QFETCH(const Work, stop);
        const bool isEnd = QByteArray(QTest::currentDataTag()).startsWith("end");
        Desk desk(u"path = 'PLACE'"_s);
        writeFile(desk.folder.path() + u"/reports/r.xls"_s, "");
        auto other = std::make_unique<store::Connection>(modMain::DBConnString);
        other->runNative("begin exclusive");
        desk.answers.expectDialog(u"copyBox"_s, [&](QWidget& box) {
            QTRY_VERIFY(dynamic_cast<QProgressDialog&>(box).labelText().contains(u" of 3 files, "_s));
            if (isEnd)
                other.reset();
            stop(box);
            QTest::qWait(10);
            QVERIFY(box.isVisible()); // until the copying has stopped
            other.reset();
            box.hide();
        });
        desk.answers.expectBox(u"Backup failed."_s);
        if (isEnd)
            desk.expectedEnds << EXIT_SUCCESS;
        desk.clickThrough(u"cmdBackup"_s);
        QCOMPARE(desk.row(), u"7|8/1/2004|PLACE|False"_s);
        QVERIFY(QFile::exists(desk.place.filePath(u"reports/r.xls"_s)));
        QVERIFY(QDir(desk.place.filePath(u"data"_s)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
        QVERIFY(!QFile::exists(desk.place.filePath(u"templates"_s)));
    }
};

QTEST_MAIN(TestBackup)
#include "tst_backup.moc"
