#include "faults.h"
#include "native.h"
#include "support/errorOf.h"
#include "support/files.h"
#include "support/scratchFolder.h"

#include "store/command.h"
#include "store/connectionStrings.h"
#include "store/copyDataFile.h"
#include "store/dataFiles.h"
#include "store/recordset.h"
#include "store/storeError.h"

#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QElapsedTimer>

#include <filesystem>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using Damage = std::function<void(const QString& fileName)>;

int modeOf(const QString& path)
{
    return static_cast<int>(std::filesystem::status(path.toStdU16String()).permissions());
}

QString folderOf(const QString& fileName)
{
    return QFileInfo(fileName).path();
}

} // namespace

class TestDataFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<ScratchFolder>(); }

    void isMadeForItsOwnerOnly()
    {
        const QString programFolder = m_folder->path() + u"/Jürgen's; \"Büro\" #1 & \\data\\Иван = %20?"_s;
        QVERIFY(QDir().mkpath(programFolder));
        values::setClock([] { return values::dateTime(QDate(2004, 8, 16), QTime(14, 30)); });
        const mode_t before = umask(0);
        store::createDataFiles(programFolder);
        umask(before);
        values::setClock({});
        QCOMPARE(QDir(programFolder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(u"data"_s));
        const QDir data(programFolder + u"/data"_s);
        QCOMPARE(data.entryList(QDir::Files), QStringList({u"BU.mdb"_s, u"dB.mdb"_s}));
        QCOMPARE(modeOf(data.path()), 0700);
        for (const QString& file : data.entryList(QDir::Files))
            QCOMPARE(modeOf(data.filePath(file)), 0600);

        store::Connection connection(modMain::backupConnectionString(programFolder));
        const store::Recordset settings(connection, u"select * from bu where dobackup = False"_s);
        QStringList fields;
        for (int i = 0; i < settings.fieldCount(); ++i)
            fields << settings.field(i).toText();
        QCOMPARE(fields.join(u'|'), u"1|7|8/16/2004|Not set|False"_s);

        const QString copy = programFolder + u"/a\\b"_s;
        writeFile(copy, QByteArray());
        store::copyDataFile(modMain::mainConnectionString(programFolder), copy, {});
        QVERIFY(QFileInfo(copy).size() > 1024);

        m_folder->run(u"insert into jobs (jobreference) values ('new')"_s);
        QCOMPARE(m_folder->rows(u"select * from jobs"_s),
                 QStringList(u"1|(null)|(null)|(null)|new|(null)|0|0|(null)|."_s));
    }

    void neverTouchesAFile()
    {
        const QString backupFile = folderOf(fileName()) + u"/BU.mdb"_s;
        addClient("Anna");
        for (const QByteArray& content : {contentOf(fileName()), QByteArray(), QByteArrayLiteral("something else")}) {
            writeFile(fileName(), content);
            QVERIFY(QFile::remove(backupFile));
            store::createDataFiles(m_folder->path());
            QCOMPARE(contentOf(fileName()), content);
            QVERIFY(QFile::exists(backupFile));
        }
    }

    void isOneSecretFile()
    {
        addClient("Zwetschgenbaum");
        QCOMPARE(QDir(folderOf(fileName())).entryList(QDir::Files), QStringList({u"BU.mdb"_s, u"dB.mdb"_s}));
        const QByteArray content = contentOf(fileName());
        QVERIFY(content.size() > 1000);
        for (const char* clear : {"Zwetschgenbaum", "jobacct", "SQLite format"})
            QVERIFY(!content.contains(clear));
        const store::Connection connection(modMain::DBConnString);
        QCOMPARE(nativeValues(connection, "PRAGMA journal_mode"), u"delete"_s);
        QCOMPARE(nativeValues(connection, "PRAGMA synchronous"), u"2"_s); // FULL: a save outlives a power cut
        QCOMPARE(nativeValues(connection, "PRAGMA integrity_check"), u"ok"_s);
    }

    void saysWhatIsWrong_data()
    {
        QTest::addColumn<int>("readable");
        QTest::addColumn<QString>("says");
        QTest::addColumn<Damage>("damage");
        const auto row = [](const char* name, int readable, const char* says, Damage damage) {
            QTest::newRow(name) << readable << QString::fromLatin1(says) << damage;
        };
        row("missing", 0, "Could not find file", [](auto file) { QFile::remove(file); });
        row("empty", 0, "is empty", [](auto file) { writeFile(file, QByteArray()); });
        row("of one byte", 0, "is damaged", [](auto file) { QFile::resize(file, 1); });
        row("of one page", 0, "is damaged", [](auto file) { QFile::resize(file, 1024); });
        row("garbage", 0, "from a backup", [](auto file) { writeFile(file, QByteArray(4096, 'x')); });
        row("another key", 0, "Not a valid password",
            [](auto file) { writeFile(file, contentOf(folderOf(file) + u"/BU.mdb"_s)); });
        row("cut short", 0, "is damaged", [](auto file) { QFile::resize(file, 3000); });
        row("for others", 0, "you may read it", [](auto file) { chmod(qPrintable(file), 0); });
        row("to read only", 1, "is read-only", [](auto file) { chmod(qPrintable(file), 0444); });
        // No journal can be made, and without one a save that breaks off would spoil the file.
        row("folder to read only", 1, "write in its folder",
            [](auto file) { chmod(qPrintable(folderOf(file)), 0555); });
    }

    void saysWhatIsWrong()
    {
        QFETCH(int, readable);
        QFETCH(QString, says);
        QFETCH(Damage, damage);
        addClient("Anna");
        chmod(qPrintable(m_folder->path()), 0755);
        chmod(qPrintable(folderOf(fileName())), 0777);
        chmod(qPrintable(fileName()), 0666);
        damage(fileName());
        const QByteArray damaged = contentOf(fileName());
        {
            const NoPrivileges noPrivileges;
            checkError(errorOf([&] { addClient("Bert"); }), says);
            if (readable)
                QCOMPARE(clients(), QStringList(u"Anna"_s));
            else
                checkError(errorOf([&] { clients(); }), says);
        }
        chmod(qPrintable(folderOf(fileName())), 0700);
        QCOMPARE(contentOf(fileName()), damaged);
    }

    // Whichever page a bad bit is on, it is told as what it is. The text is long enough to spread over several pages.
    void tellsOfASingleBadBit()
    {
        m_folder->run(u"insert into jobs (jobreference) values ('%1')"_s.arg(QString(250, u'a')));
        const QByteArray good = contentOf(fileName());
        int found = 0;
        for (qsizetype position = 1500; position < good.size(); position += 1024) {
            QByteArray damaged = good;
            damaged[position] = static_cast<char>(damaged[position] ^ 1);
            writeFile(fileName(), damaged);
            const values::RuntimeError error = errorOf([&] { m_folder->run(u"update jobs set jobreference = 'b'"_s); });
            if (error.number() != 0)
                checkError(error, u"is damaged"_s);
            found += error.number() != 0;
        }
        QVERIFY2(found > 3, "the statement reads hardly anything");
    }

    void waitsForOthers()
    {
        addClient("Anna");
        for (const char* lock : {"BEGIN EXCLUSIVE", "BEGIN; SELECT * FROM jobacct"}) {
            store::Connection other(modMain::DBConnString);
            other.runNative(lock);
            QElapsedTimer time;
            time.start();
            checkError(errorOf([&] { addClient("Bert"); }), u"in use by another program"_s);
            QVERIFY(time.elapsed() > 1500 && time.elapsed() < 3000);
        }
        QCOMPARE(clients(), QStringList(u"Anna"_s));
    }

    // The disk fails after every number of writes that a save may have done by then.
    void survivesAFailingDisk()
    {
        addClient("Anna");
        for (const auto& [diskError, says] : {std::pair(ENOSPC, u"is full. Nothing was changed. Free some space"_s),
                                              std::pair(EIO, u"is connected"_s)}) {
            m_folder->run(u"update jobacct set acctname = 'Anna'"_s);
            const auto save = [&, number = diskError](int writes) {
                const FailingDisk disk(writes, number);
                return errorOf([&] { m_folder->run(u"update jobacct set acctname = 'Bert'"_s); });
            };
            int writes = 0;
            for (values::RuntimeError error = save(0); error.number() != 0; error = save(++writes)) {
                checkError(error, says);
                QCOMPARE(clients(), QStringList(u"Anna"_s));
                QCOMPARE(nativeValues(store::Connection(modMain::DBConnString), "PRAGMA integrity_check"), u"ok"_s);
            }
            QVERIFY2(writes > 2, "the disk did not fail");
            QCOMPARE(clients(), QStringList(u"Bert"_s));
        }
    }

    void givesTypedValues()
    {
        m_folder->run(
            u"insert into jobs (jobdate, jobchar, joblines, jobreference) values (#8/16/2004 2 PM#, 40000, 1.5, 'x')"_s);
        store::Connection connection(modMain::DBConnString);
        store::Recordset jobs(connection, u"select jobdate, jobchar, joblines, jobreference, joblength from jobs"_s);
        using Value = store::Field::Value;
        const store::Field date = jobs.field(0), whole = jobs.field(1), text = jobs.field(3), null = jobs.field(4);
        QVERIFY(date.value() == Value(values::dateTime(QDate(2004, 8, 16), QTime(14, 0))));
        QVERIFY(whole.value() == Value(qint64(40000)) && jobs.field(2).value() == Value(1.5));
        QVERIFY(text.value() == Value(u"x"_s) && null.isNull());

        QCOMPARE(faultOf([&] { null.toText(); }), 94);
        QCOMPARE(faultOf([&] { null.toLong(); }), 94);
        QCOMPARE(faultOf([&] { null.toDate(); }), 94);
        QCOMPARE(faultOf([&] { date.toLong(); }), typeMismatch);
        QCOMPARE(faultOf([&] { whole.toDate(); }), typeMismatch);
        QCOMPARE(faultOf([&] { whole.toInteger(); }), overflow);
        QCOMPARE(faultOf([&] { jobs.field(5); }), 9);
        QCOMPARE(faultOf([&] { jobs.field(-1); }), 9);
        jobs.moveNext();
        QCOMPARE(faultOf([&] { jobs.field(0); }), 3021);
    }

private:
    QString fileName() const { return m_folder->mainFile(); }
    QStringList clients() const { return m_folder->rows(u"select acctname from jobacct"_s); }
    void addClient(const char* name) const
    {
        m_folder->run(u"insert into jobacct (acctname) values ('%1')"_s.arg(QLatin1String(name)));
    }
    void checkError(const values::RuntimeError& error, const QString& says) const
    {
        QCOMPARE(error.number(), static_cast<int>(store::StoreFault::Unspecified));
        for (const QString& part : {says, u'\'' + fileName() + u'\''})
            QVERIFY2(error.description().contains(part), qPrintable(error.description()));
    }

    std::unique_ptr<ScratchFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestDataFile)
#include "tst_dataFile.moc"
