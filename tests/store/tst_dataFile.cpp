#include "errorOf.h"
#include "faults.h"
#include "native.h"
#include "support/scratchFolder.h"

#include "store/command.h"
#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "store/recordset.h"
#include "store/storeError.h"

#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using values::Fault;

namespace {

mode_t modeOf(const QString& path)
{
    struct stat status;
    return stat(path.toLocal8Bit().constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

void setMode(const QString& path, mode_t mode)
{
    QCOMPARE(chmod(path.toLocal8Bit().constData(), mode), 0);
}

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("cannot be read");
}

void write(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), content.size());
}

} // namespace

class TestDataFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<ScratchFolder>(); }

    void isMadeForItsOwnerOnly();
    void neverTouchesAFile();
    void startsWithDefaults();
    void isSecret();
    void isOneSafeFile();

    void saysWhatIsWrongWithTheFile_data();
    void saysWhatIsWrongWithTheFile();
    void tellsOfASingleBadBit();
    void keepsToPermissions_data();
    void keepsToPermissions();
    void waitsForOthers_data();
    void waitsForOthers();
    void survivesAFailingDisk_data();
    void survivesAFailingDisk();

    void givesTypedValues();

private:
    QString folder() const { return m_folder->path(); }
    QString fileName() const { return m_folder->mainFile(); }
    void addClient(const QString& name) const
    {
        m_folder->run(u"insert into jobacct (acctname) values ('%1')"_s.arg(name));
    }
    void checkError(const values::RuntimeError& error, const QString& says) const
    {
        QCOMPARE(error.number(), static_cast<int>(store::StoreFault::Unspecified));
        QVERIFY2(error.description().contains(says), qPrintable(error.description()));
        QVERIFY2(error.description().contains(u'\'' + fileName() + u'\''), qPrintable(error.description()));
    }
    QStringList clients() const { return m_folder->rows(u"select acctname from jobacct"_s); }

    std::unique_ptr<ScratchFolder> m_folder;
};

void TestDataFile::isMadeForItsOwnerOnly()
{
    const QDir programFolder(folder() + u"/Jürgen's; \"Büro\" #1 & Иван = %20?"_s);
    QVERIFY(programFolder.mkpath(u"."_s));
    const mode_t before = umask(0);
    store::createDataFiles(programFolder.path());
    umask(before);
    QCOMPARE(programFolder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(u"data"_s));
    const QString data = programFolder.filePath(u"data"_s);
    QCOMPARE(QDir(data).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList({u"BU.mdb"_s, u"dB.mdb"_s}));
    QCOMPARE(modeOf(data), 0700);
    QCOMPARE(modeOf(data + u"/dB.mdb"_s), 0600);
    QCOMPARE(modeOf(data + u"/BU.mdb"_s), 0600);

    store::Connection connection(modMain::mainConnectionString(programFolder.path()));
    store::Command(connection, u"insert into jobacct (acctname) values ('Anna')"_s).execute();
    QCOMPARE(store::Recordset(connection, u"select acctname from jobacct"_s).field(0).toText(), u"Anna"_s);
    QCOMPARE(clients(), QStringList());
}

void TestDataFile::neverTouchesAFile()
{
    const QString backupFile = folder() + u"/data/BU.mdb"_s;
    for (const QByteArray& content : {contentOf(fileName()), QByteArray(), QByteArrayLiteral("something else")}) {
        write(fileName(), content);
        QVERIFY(QFile::remove(backupFile));
        const QDateTime written = QFileInfo(fileName()).lastModified();
        QTest::qSleep(5);
        store::createDataFiles(folder());
        QCOMPARE(contentOf(fileName()), content);
        QCOMPARE(QFileInfo(fileName()).lastModified(), written);
        QVERIFY(QFile::exists(backupFile));
    }
}

void TestDataFile::startsWithDefaults()
{
    m_folder->run(u"insert into jobs (jobreference) values ('new')"_s);
    QCOMPARE(m_folder->rows(u"select * from jobs"_s), QStringList(u"1|(null)|(null)|(null)|new|(null)|0|0|(null)|."_s));

    const QTemporaryDir programFolder;
    values::setClock([] { return values::dateTime(QDate(2004, 8, 16), QTime(14, 30)); });
    store::createDataFiles(programFolder.path());
    values::setClock({});
    store::Connection connection(modMain::backupConnectionString(programFolder.path()));
    const store::RowSet rows =
        store::Recordset(connection, u"select id, freq, lastbu, path, dobackup from bu where dobackup = False"_s)
            .readAll();
    QCOMPARE(rows.rowCount(), 1);
    QStringList values;
    for (int i = 0; i < rows.columnCount(); ++i)
        values << rows.at(0, i).toText();
    QCOMPARE(values, QStringList({u"1"_s, u"7"_s, u"8/16/2004"_s, u"Not set"_s, u"False"_s}));
}

void TestDataFile::isSecret()
{
    addClient(u"Zwetschgenbaum"_s);
    const QByteArray content = contentOf(fileName());
    QVERIFY(content.size() > 1000);
    for (const char* clear : {"Zwetschgenbaum", "jobacct", "SQLite format"})
        QVERIFY(!content.contains(clear));

    sqlite3* database = nullptr;
    QCOMPARE(sqlite3_open(fileName().toUtf8().constData(), &database), SQLITE_OK);
    QCOMPARE(sqlite3_exec(database, "select * from sqlite_master", nullptr, nullptr, nullptr), SQLITE_NOTADB);
    sqlite3_close(database);
}

void TestDataFile::isOneSafeFile()
{
    addClient(u"Anna"_s);
    QCOMPARE(QDir(folder() + u"/data"_s).entryList(QDir::Files), QStringList({u"BU.mdb"_s, u"dB.mdb"_s}));
    const store::Connection connection(modMain::DBConnString);
    QCOMPARE(nativeValues(connection, "PRAGMA journal_mode"), u"delete"_s);
    QCOMPARE(nativeValues(connection, "PRAGMA synchronous"), u"2"_s); // FULL: a save outlives a power cut
    QCOMPARE(nativeValues(connection, "PRAGMA integrity_check"), u"ok"_s);
}

void TestDataFile::saysWhatIsWrongWithTheFile_data()
{
    using Damage = std::function<void(const QString&)>;
    QTest::addColumn<Damage>("damage");
    QTest::addColumn<QString>("says");
    const QString backup = u"from a backup"_s;
    QTest::newRow("missing") << Damage([](const QString& file) { QFile::remove(file); }) << u"Could not find file"_s;
    QTest::newRow("a folder") << Damage([](const QString& file) { QFile::remove(file) && QDir().mkdir(file); })
                              << u"Could not find file"_s;
    QTest::newRow("empty") << Damage([](const QString& file) { write(file, QByteArray()); }) << u"is empty"_s;
    QTest::newRow("garbage") << Damage([](const QString& file) { write(file, QByteArray(4096, 'x')); }) << backup;
    QTest::newRow("another key") << Damage([](const QString& file) {
        write(file, contentOf(QFileInfo(file).path() + u"/BU.mdb"_s));
    }) << u"Not a valid password"_s;
    QTest::newRow("cut short") << Damage([](const QString& file) { QFile::resize(file, 3000); }) << u"is damaged"_s;
}

void TestDataFile::saysWhatIsWrongWithTheFile()
{
    QFETCH(std::function<void(const QString&)>, damage);
    QFETCH(QString, says);
    addClient(u"Anna"_s);
    damage(fileName());
    const QByteArray damaged = contentOf(fileName());
    checkError(errorOf([&] { clients(); }), says);
    checkError(errorOf([&] { addClient(u"Bert"_s); }), says);
    QCOMPARE(contentOf(fileName()), damaged);
}

// Whichever page a bad bit is on, it is told as what it is. The text is long enough to spread over several pages.
void TestDataFile::tellsOfASingleBadBit()
{
    m_folder->run(u"insert into jobs (jobreference) values ('%1')"_s.arg(QString(250, u'a')));
    const QByteArray good = contentOf(fileName());
    int found = 0;
    for (qsizetype position = 1500; position < good.size(); position += 1024) {
        QByteArray damaged = good;
        damaged[position] = static_cast<char>(damaged[position] ^ 1);
        write(fileName(), damaged);
        const values::RuntimeError error = errorOf([&] { m_folder->run(u"update jobs set jobreference = 'b'"_s); });
        if (error.number() == 0)
            continue;
        ++found;
        checkError(error, u"is damaged"_s);
        QCOMPARE(contentOf(fileName()), damaged);
    }
    QVERIFY2(found > 3, "the statement reads hardly anything");
}

void TestDataFile::keepsToPermissions_data()
{
    QTest::addColumn<mode_t>("fileMode");
    QTest::addColumn<mode_t>("folderMode");
    QTest::addColumn<QStringList>("readable");
    QTest::addColumn<QString>("says");
    const QStringList anna(u"Anna"_s);
    QTest::newRow("file to read only") << mode_t(0444) << mode_t(0777) << anna << u"is read-only"_s;
    QTest::newRow("file for others") << mode_t(0) << mode_t(0777) << QStringList() << u"you may read it"_s;
    // No journal can be made, and without one a save that breaks off would spoil the file.
    QTest::newRow("folder to read only") << mode_t(0666) << mode_t(0555) << anna << u"write in its folder"_s;
}

void TestDataFile::keepsToPermissions()
{
    QFETCH(mode_t, fileMode);
    QFETCH(mode_t, folderMode);
    QFETCH(QStringList, readable);
    QFETCH(QString, says);
    addClient(u"Anna"_s);
    const QString data = folder() + u"/data"_s;
    setMode(folder(), 0755);
    setMode(data, folderMode);
    setMode(fileName(), fileMode);
    QStringList read;
    values::RuntimeError error(0, QString());
    {
        const NoPrivileges noPrivileges;
        QVERIFY2(noPrivileges.areGiven(), "the administrator's rights could not be laid down");
        errorOf([&] { read = clients(); });
        error = errorOf([&] { addClient(u"Bert"_s); });
    }
    setMode(data, 0700);
    setMode(fileName(), 0600);
    QCOMPARE(read, readable);
    checkError(error, says);
    QCOMPARE(clients(), QStringList(u"Anna"_s));
}

void TestDataFile::waitsForOthers_data()
{
    QTest::addColumn<QByteArray>("lock");
    QTest::newRow("somebody writes") << QByteArrayLiteral("BEGIN EXCLUSIVE");
    QTest::newRow("somebody reads") << QByteArrayLiteral("BEGIN; SELECT * FROM jobacct");
}

void TestDataFile::waitsForOthers()
{
    QFETCH(QByteArray, lock);
    addClient(u"Anna"_s);
    auto other = std::make_unique<store::Connection>(modMain::DBConnString);
    other->runNative(lock);

    QElapsedTimer time;
    time.start();
    const values::RuntimeError error = errorOf([&] { addClient(u"Bert"_s); });
    const qint64 waited = time.elapsed();
    checkError(error, u"in use by another program"_s);
    QVERIFY2(waited > 1500 && waited < 3000, qPrintable(u"after %1 ms"_s.arg(waited)));

    other.reset();
    QCOMPARE(clients(), QStringList(u"Anna"_s));
}

void TestDataFile::survivesAFailingDisk_data()
{
    QTest::addColumn<int>("diskError");
    QTest::addColumn<QString>("says");
    QTest::newRow("full") << ENOSPC << u"is full. Nothing was changed. Free some space"_s;
    QTest::newRow("over quota") << EDQUOT << u"has room"_s;
    QTest::newRow("pulled out") << EIO << u"is connected"_s;
}

// The disk fails after every number of writes that a save may have done by then.
void TestDataFile::survivesAFailingDisk()
{
    QFETCH(int, diskError);
    QFETCH(QString, says);
    addClient(u"Anna"_s);
    int writes = 0;
    for (;; ++writes) {
        values::RuntimeError error(0, QString());
        {
            const FailingDisk disk(writes, diskError);
            error = errorOf([&] { m_folder->run(u"update jobacct set acctname = 'Bert'"_s); });
        }
        if (error.number() == 0)
            break;
        checkError(error, says);
        QCOMPARE(clients(), QStringList(u"Anna"_s));
        const store::Connection connection(modMain::DBConnString);
        QCOMPARE(nativeValues(connection, "PRAGMA integrity_check"), u"ok"_s);
    }
    QVERIFY2(writes > 2, "the disk did not fail");
    QCOMPARE(clients(), QStringList(u"Bert"_s));
}

void TestDataFile::givesTypedValues()
{
    m_folder->run(
        u"insert into jobs (jobdate, jobchar, joblines, jobreference) values (#8/16/2004 2 PM#, 40000, 1.5, 'x')"_s);
    store::Connection connection(modMain::DBConnString);
    store::Recordset jobs(connection, u"select jobdate, jobchar, joblines, jobreference, joblength from jobs"_s);
    using Value = store::Field::Value;
    const store::Field date = jobs.field(0), whole = jobs.field(1), text = jobs.field(3), null = jobs.field(4);
    QVERIFY(date.value() == Value(values::dateTime(QDate(2004, 8, 16), QTime(14, 0))));
    QVERIFY(whole.value() == Value(qint64(40000)));
    QVERIFY(jobs.field(2).value() == Value(1.5));
    QVERIFY(text.value() == Value(u"x"_s));
    QVERIFY(null.isNull());

    const auto faultOf = [](const auto& action) { return Fault(errorOf(action).number()); };
    QCOMPARE(faultOf([&] { null.toText(); }), Fault::InvalidUseOfNull);
    QCOMPARE(faultOf([&] { null.toLong(); }), Fault::InvalidUseOfNull);
    QCOMPARE(faultOf([&] { null.toDate(); }), Fault::InvalidUseOfNull);
    QCOMPARE(faultOf([&] { text.toDouble(); }), Fault::TypeMismatch);
    QCOMPARE(faultOf([&] { date.toLong(); }), Fault::TypeMismatch);
    QCOMPARE(faultOf([&] { whole.toDate(); }), Fault::TypeMismatch);
    QCOMPARE(faultOf([&] { whole.toInteger(); }), Fault::Overflow);
    QCOMPARE(faultOf([&] { jobs.field(5); }), Fault::SubscriptOutOfRange);
    QCOMPARE(faultOf([&] { jobs.field(-1); }), Fault::SubscriptOutOfRange);
    jobs.moveNext();
    QVERIFY(jobs.atEnd());
    QCOMPARE(faultOf([&] { jobs.field(0); }), Fault::NoCurrentRecord);
}

QTEST_GUILESS_MAIN(TestDataFile)
#include "tst_dataFile.moc"
