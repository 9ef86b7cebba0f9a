#include "backup/backUp.h"
#include "backup/copyBox.h"
#include "backup/due.h"
#include "backup/frmBackup.h"
#include "store/recordset.h"
#include "support/bench.h"
#include "support/find.h"
#include "ui/eventGuard.h"

#include <QFileDialog>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

/// A program folder on August 20, 2004, with a home of its own for the documents and a place to back up to.
struct Desk : Bench {
    explicit Desk(const QByteArray& settings = "path = 'Not set'")
    {
        now = values::dateTime(QDate(2004, 8, 20), QTime(14, 5, 7));
        qputenv("HOME", QFile::encodeName(home.path()));
        qunsetenv("XDG_CONFIG_HOME");
        for (const QString& name : {u"reports"_s, u"templates"_s})
            QDir(folder.path()).mkdir(name);
        set("freq = 7, lastbu = '2004-08-01 00:00:00', dobackup = 0");
        set(QByteArray(settings).replace("PLACE", QFile::encodeName(place.path())));
    }

    void set(const QByteArray& values) const
    {
        store::Connection(modMain::BUConnString).runNative("update bu set " + values);
    }
    QString row() const
    {
        store::Connection connection(modMain::BUConnString);
        const store::Recordset row(connection, u"select freq,lastbu,path,dobackup from bu"_s);
        QStringList fields;
        for (int i = 0; i < row.fieldCount(); ++i)
            fields << (row.field(i).isNull() ? u"(null)"_s : row.field(i).toText());
        return fields.join(u'|').replace(place.path(), u"PLACE"_s).replace(home.path(), u"HOME"_s);
    }
    void expectFailure(int number, const QString& description)
    {
        answers.expectBox(u"Error %1 (%2) in procedure BackUpFolders of Module modMain"_s.arg(number).arg(description));
    }
    /// The dialog at work; what is done in it must close it.
    void inDialog(const std::function<void(backup::frmBackup&)>& work)
    {
        backup::frmBackup form(nullptr);
        form.show();
        work(form);
        QVERIFY(!form.isVisible());
    }

    QTemporaryDir home;
    QTemporaryDir place;
};

const QString missing = u"Path not found: '%1'. See that it is there and that its disk is connected."_s;
const QString advice = u"It is recommended that you use the default path which copies this program's data,\r\n"
                       "templates and reports folders to your 'My Documents/PWR Backup' folder and \r\n"
                       "backup ALL of your important files at one time. Click 'Yes' to use the \r\n"
                       "default path or 'No' to select another location.  NOTE: This program will\r\n"
                       "not copy directly to a CD Drive."_s;

} // namespace

class TestBackup : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isDue_data();
    void isDue();
    void opensOnTheStoredSettings_data();
    void opensOnTheStoredSettings();
    void nullsEndTheOpening();
    void changesPath();
    void saves_data();
    void saves();
    void backsUpNow_data();
    void backsUpNow();
    void closing_data();
    void closing();
    void copyingIsShownAndStopped_data();
    void copyingIsShownAndStopped();
};

void TestBackup::isDue_data()
{
    QTest::addColumn<QString>("last");
    QTest::addColumn<int>("days");
    QTest::addColumn<bool>("due");
    QTest::newRow("daily, yesterday") << u"8/19/2004"_s << 1 << false;
    QTest::newRow("daily, two days by the calendar") << u"8/18/2004 11:59:59 PM"_s << 1 << true;
    QTest::newRow("weekly, seven days") << u"8/13/2004"_s << 7 << false;
    QTest::newRow("monthly, over a leap day") << u"7/20/2004"_s << 30 << true;
    QTest::newRow("no interval, same day") << u"8/20/2004"_s << 0 << false;
    QTest::newRow("no interval, yesterday") << u"8/19/2004"_s << 0 << true;
    QTest::newRow("the clock was moved back") << u"8/20/2014"_s << 1 << false;
}

void TestBackup::isDue()
{
    QFETCH(const QString, last);
    QFETCH(const int, days);
    const QDateTime justAfterMidnight = values::dateTime(QDate(2004, 8, 20), QTime(0, 0, 1));
    QTEST(backup::isDue(values::toDate(last), days, justAfterMidnight), "due");
}

void TestBackup::opensOnTheStoredSettings_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<bool>("active");
    QTest::newRow("daily") << QByteArray("freq = 1") << u"Daily"_s << false;
    QTest::newRow("weekly, active") << QByteArray("freq = 7, dobackup = 1") << u"Weekly"_s << true;
    QTest::newRow("monthly") << QByteArray("freq = 30, dobackup = NULL") << u"Monthly"_s << false;
    QTest::newRow("another interval") << QByteArray("freq = 5") << QString() << false;
    QTest::newRow("none") << QByteArray("freq = NULL") << QString() << false;
}

void TestBackup::opensOnTheStoredSettings()
{
    QFETCH(const QByteArray, settings);
    Desk desk("path = 'D:\\<b>&', " + settings);
    desk.inDialog([](backup::frmBackup& form) {
        QString chosen;
        for (const auto* button : form.findChildren<QRadioButton*>())
            chosen += button->isChecked() ? button->text() : QString();
        QTEST(chosen, "chosen");
        QTEST(find<QAbstractButton>(form, "chkActive").isChecked(), "active");
        QCOMPARE(shown(form, "lblBU"), u"8/1/2004"_s);
        QCOMPARE(shown(form, "lblPath"), u"D:\\<b>&"_s);
        QTest::keyClick(&form, Qt::Key_Escape);
    });
    QVERIFY(QDir(desk.home.filePath(u"Documents/PWR Backup"_s)).exists());
}

void TestBackup::nullsEndTheOpening()
{
    for (const char* column : {"lastbu", "path"}) {
        Desk desk(QByteArray(column) + " = NULL");
        desk.expectEnd(94, "Invalid use of Null");
        ui::guard([] { backup::frmBackup form(nullptr); });
    }
}

void TestBackup::changesPath()
{
    Desk desk;
    const auto pick = [&](QWidget& window) {
        auto& picker = dynamic_cast<QFileDialog&>(window);
        QCOMPARE(picker.windowTitle(), u"Browse to drive or folder"_s);
        QCOMPARE(picker.labelText(QFileDialog::LookIn), u"Select drive or folder you wish to backup to."_s);
        QCOMPARE(picker.directory().path(), desk.home.filePath(u"Documents/PWR Backup"_s));
        picker.setDirectory(desk.place.path());
        find<QLineEdit>(picker, "fileNameEdit").setText(desk.place.path());
        QMetaObject::invokeMethod(&picker, "accept");
    };
    const auto leave = [](QWidget& picker) { QTest::keyClick(&picker, Qt::Key_Escape); };
    desk.inDialog([&](backup::frmBackup& form) {
        desk.answers.expectBox(advice, QMessageBox::Yes, u"Wait a minute!"_s);
        click(form, "cmdPath");
        QCOMPARE(shown(form, "lblPath"), u"Not set"_s);
        for (const std::function<void(QWidget&)>& work : {std::function<void(QWidget&)>(pick), {leave}}) {
            desk.answers.expectBox(advice, QMessageBox::No, u"Wait a minute!"_s);
            desk.answers.expectDialog(u"objBD"_s, work);
            click(form, "cmdPath");
            QCOMPARE(shown(form, "lblPath"), desk.place.path());
        }
        QCOMPARE(desk.row(), u"7|8/1/2004|Not set|False"_s);
        click(form, "cmdSave");
    });
    QCOMPARE(desk.row(), u"7|8/1/2004|PLACE|False"_s);
}

void TestBackup::saves_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("clicks");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QString>("row");
    QTest::newRow("chosen") << QByteArray("path = 'D:\\Backups'") << QByteArray("optFreq_2 chkActive cmdSave")
                            << QByteArray() << u"30|8/1/2004|D:\\Backups|True"_s;
    QTest::newRow("no interval") << QByteArray("path = 'x', freq = 5, dobackup = 1") << QByteArray("chkActive cmdSave")
                                 << QByteArray() << u"0|8/1/2004|x|False"_s;
    QTest::newRow("not set stays, and Cancel stores the default")
        << QByteArray("path = 'Not set'") << QByteArray("optFreq_0 chkActive cmdSave cmdClose")
        << QByteArray("You select a location to backup to.") << u"7|8/1/2004|HOME/Documents/PWR Backup|False"_s;
    QTest::newRow("Cancel with a path stores nothing")
        << QByteArray("path = 'not set'") << QByteArray("optFreq_0 chkActive cmdClose") << QByteArray()
        << u"7|8/1/2004|not set|False"_s;
}

void TestBackup::saves()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const QByteArray, clicks);
    QFETCH(const QByteArray, box);
    Desk desk(settings);
    if (!box.isEmpty())
        desk.answers.expectBox(QString::fromLatin1(box));
    desk.inDialog([&](backup::frmBackup& form) {
        for (const QByteArray& name : clicks.split(' '))
            find<QAbstractButton>(form, name.constData()).click();
    });
    QTEST(desk.row(), "row");
}

void TestBackup::backsUpNow_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("row");
    QTest::newRow("both separators") << QByteArray("path = replace('PLACE', '/tmp/', '\\tmp\\')") << 0 << QString()
                                     << u"7|8/20/2004|%1|False"_s;
    QTest::newRow("not set is a folder like another")
        << QByteArray("path = 'Not set'") << 76 << missing.arg(u"Not set/"_s) << u"7|8/1/2004|%1|False"_s;
    QTest::newRow("drive") << QByteArray("path = 'E:'") << 0 << u"Drive is not ready"_s << u"7|8/1/2004|%1|False"_s;
    QTest::newRow("nothing") << QByteArray("path = ''") << 76 << u"Path not found"_s << u"7|8/1/2004|%1|False"_s;
}

void TestBackup::backsUpNow()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const int, number);
    QFETCH(const QString, box);
    QFETCH(const QString, row);
    Desk desk(settings);
    const QString path = desk.row().section(u'|', 2, 2);
    const bool isGood = box.isEmpty();
    if (number != 0)
        desk.expectFailure(number, box);
    else if (!isGood)
        desk.answers.expectBox(box);
    desk.answers.expectBox(isGood ? u"Backup was successful."_s : u"Backup failed."_s);
    desk.inDialog([](backup::frmBackup& form) { click(form, "cmdBackup"); });
    QCOMPARE(desk.row(), row.arg(path));
    for (const char* name : {"data/dB.mdb", "data/BU.mdb", "reports", "templates"})
        QCOMPARE(QFileInfo::exists(desk.place.filePath(QLatin1String(name))), isGood);
}

void TestBackup::closing_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QString>("row");
    const QString failed = u"Backup failed - please check your backup settings."_s;
    const QString stopped = u"Error 94 (Invalid use of Null) in procedure GetBackUpInfo of Module modMain"_s;
    QTest::newRow("off, whatever else is there")
        << QByteArray("path = NULL, lastbu = NULL, freq = NULL") << QStringList() << u"(null)|(null)|(null)|False"_s;
    QTest::newRow("neither on nor off") << QByteArray("dobackup = NULL, path = 'x'") << QStringList()
                                        << u"7|8/1/2004|x|(null)"_s;
    QTest::newRow("not due") << QByteArray("dobackup = 1, lastbu = '2004-08-13 00:00:00', path = 'x'") << QStringList()
                             << u"7|8/13/2004|x|True"_s;
    QTest::newRow("due") << QByteArray("dobackup = 1, path = 'PLACE'") << QStringList(u"Backup was successful."_s)
                         << u"7|8/20/2004|PLACE|True"_s;
    QTest::newRow("due, drive missing") << QByteArray("dobackup = 1, path = 'E:\\'")
                                        << QStringList({u"Drive is not ready"_s, failed}) << u"7|8/1/2004|E:\\|True"_s;
    QTest::newRow("no path") << QByteArray("dobackup = 1, path = NULL") << QStringList(stopped)
                             << u"7|8/1/2004|(null)|True"_s;
    QTest::newRow("no date") << QByteArray("dobackup = 1, lastbu = NULL, path = 'x'") << QStringList(stopped)
                             << u"7|(null)|x|True"_s;
}

void TestBackup::closing()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const QStringList, boxes);
    Desk desk(settings);
    for (const QString& box : boxes)
        desk.answers.expectBox(box);
    if (!boxes.join(u' ').contains(u"GetBackUpInfo"_s))
        desk.expectedEnds << EXIT_SUCCESS;
    modMain::GetBackUpInfo();
    QTEST(desk.row(), "row");
}

void TestBackup::copyingIsShownAndStopped_data()
{
    using Stop = std::function<void(QWidget&)>;
    QTest::addColumn<Stop>("stop");
    QTest::addColumn<bool>("isEnd");
    QTest::newRow("button") << Stop([](QWidget& box) { box.findChild<QPushButton*>()->click(); }) << false;
    QTest::newRow("Escape") << Stop([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); }) << false;
    QTest::newRow("close box") << Stop([](QWidget& box) { box.close(); }) << false;
    QTest::newRow("end of the program") << Stop([](QWidget&) { modMain::GetBackUpInfo(); }) << true;
}

// The data file is in the middle of a change by another program, which the copying waits for.
void TestBackup::copyingIsShownAndStopped()
{
    QFETCH(const std::function<void(QWidget&)>, stop);
    QFETCH(const bool, isEnd);
    Desk desk("path = 'PLACE'");
    QFile(desk.folder.path() + u"/reports/r.xls"_s).open(QIODevice::WriteOnly);
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
    desk.inDialog([](backup::frmBackup& form) { click(form, "cmdBackup"); });
    QCOMPARE(desk.row(), u"7|8/1/2004|PLACE|False"_s);
    QCOMPARE(QDir(desk.place.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
             QStringList({u"data"_s, u"reports"_s}));
    QVERIFY(QFile::exists(desk.place.filePath(u"reports/r.xls"_s)));
    QVERIFY(QDir(desk.place.filePath(u"data"_s)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

QTEST_MAIN(TestBackup)
#include "tst_backup.moc"
