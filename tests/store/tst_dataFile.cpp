#include "faults.h"
#include "native.h"
#include "support/errorOf.h"
#include "support/files.h"
#include "support/killAtWork.h"
#include "support/scratchFolder.h"

#include "store/connectionStrings.h"
#include "store/copyDataFile.h"
#include "store/dataFiles.h"
#include "store/recordset.h"
#include "store/storeError.h"

#include "values/clock.h"
#include "values/dates.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <atomic>
#include <thread>

using Damage = std::function<void(const QString& fileName)>;

class TestDataFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<ScratchFolder>(); }

    void isReadableByItsOwnerOnly()
    {
        const QString programFolder = m_folder->path() + "/Jürgen's; \"Büro\" #1 & \\data\\Иван = %20?";
        QVERIFY(QDir().mkpath(programFolder));
        values::setClock([] { return values::dateTime(QDate(2004, 8, 16), QTime(14, 30)); });
        const mode_t before = umask(0);
        store::createDataFiles(programFolder);
        umask(before);
        values::setClock({});
        QCOMPARE(QDir(programFolder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("data"));
        const QDir data(programFolder + "/data");
        QCOMPARE(data.entryList(QDir::Files), QStringList({"BU.mdb", "dB.mdb"}));
        for (const char* name : {".", "BU.mdb", "dB.mdb"})
            QVERIFY(!(QFile::permissions(data.filePath(name)) & QFile::Permissions(0x0077)));
        QCOMPARE(readRows(modMain::backupConnectionString(programFolder), "select * from bu where dobackup = False"),
                 QStringList("1|7|8/16/2004|Not set|False"));
        const QString copy = programFolder + "/a\\b";
        writeFile(copy, "");
        store::copyDataFile(modMain::mainConnectionString(programFolder), copy, {});
        QVERIFY(QFileInfo(copy).size() > 1024);
        m_folder->run("insert into jobs (jobreference) values ('new')");
        QCOMPARE(m_folder->rows("select * from jobs"), QStringList("1|(null)|(null)|(null)|new|(null)|0|0|(null)|."));
    }

    void neverTouchesAnExistingFile()
    {
        const QString backupFile = folderOf(fileName()) + "/BU.mdb";
        for (const QByteArray& content : {readFile(fileName()), QByteArray(), QByteArray("something else")}) {
            writeFile(fileName(), content);
            QVERIFY(QFile::remove(backupFile));
            store::createDataFiles(m_folder->path());
            QCOMPARE(readFile(fileName()), content);
            QVERIFY(QFile::exists(backupFile));
        }
    }

    void isOneEncryptedFile()
    {
        m_folder->addClient("Zwetschgenbaum");
        const QByteArray content = readFile(fileName());
        QVERIFY(content.size() > 1000);
        for (const char* clear : {"Zwetschgenbaum", "jobacct", "SQLite format"})
            QVERIFY(!content.contains(clear));
        const store::Connection connection(modMain::DBConnString);
        QCOMPARE(nativeValues(connection, "PRAGMA journal_mode"), "delete");
        QCOMPARE(nativeValues(connection, "PRAGMA synchronous"), "2"); // FULL: a save outlives a power cut
    }

    void describesDamage_data()
    {
        QTest::addColumn<QString>("says");
        QTest::addColumn<Damage>("damage");
        const auto row = [](const char* name, const char* says, Damage damage) {
            QTest::newRow(name) << QString(says) << damage;
        };
        row("missing", "Could not find file", [](auto file) { QFile::remove(file); });
        row("empty", "is empty", [](auto file) { writeFile(file, ""); });
        row("of one byte", "is damaged", [](auto file) { QFile::resize(file, 1); });
        row("of one page", "is damaged", [](auto file) { QFile::resize(file, 1024); });
        row("garbage", "from a backup", [](auto file) { writeFile(file, QByteArray(4096, 'x')); });
        row("another key", "Not a valid password",
            [](auto file) { writeFile(file, readFile(folderOf(file) + "/BU.mdb")); });
        row("cut short", "is damaged", [](auto file) { QFile::resize(file, 3000); });
        row("with a wrong bit", "is damaged", [](auto file) {
            QByteArray content = readFile(file);
            content[1500] = static_cast<char>(content[1500] ^ 1);
            writeFile(file, content);
        });
        row("for others", "you may read it", [](auto file) { chmod(qPrintable(file), 0); });
        row("readable", "is read-only", [](auto file) { chmod(qPrintable(file), 0444); });
        // No journal can be made here, and without one an interrupted save would damage the file.
        row("readable, in such a folder", "write in its folder",
            [](auto file) { chmod(qPrintable(folderOf(file)), 0555); });
    }

    void describesDamage()
    {
        QFETCH(QString, says);
        QFETCH(Damage, damage);
        m_folder->addClient("Anna");
        chmod(qPrintable(m_folder->path()), 0755);
        chmod(qPrintable(folderOf(fileName())), 0777);
        chmod(qPrintable(fileName()), 0666);
        damage(fileName());
        const QByteArray damaged = readFile(fileName());
        {
            const NoPrivileges noPrivileges;
            checkError(catchError([&] { m_folder->addClient("Bert"); }), says);
            if (QString(QTest::currentDataTag()).startsWith("readable"))
                QCOMPARE(m_folder->clients(), QStringList("Anna"));
            else
                checkError(catchError([&] { m_folder->clients(); }), says);
        }
        chmod(qPrintable(folderOf(fileName())), 0700);
        QCOMPARE(readFile(fileName()), damaged);
    }

    // A key is kept, but for this file only.
    void opensAnotherFileInItsPlace()
    {
        m_folder->addClient("Anna");
        const QString other = m_folder->path() + "/other";
        QVERIFY(QDir().mkpath(other));
        store::createDataFiles(other);
        writeFile(fileName(), readFile(other + "/data/dB.mdb"));
        QCOMPARE(m_folder->clients(), QStringList());
    }

    // The system drops a process's locks on a file as soon as the process closes that file anywhere.
    void isLockedWhileOthersOpenIt()
    {
        store::Connection writer(modMain::DBConnString);
        writer.runNative("BEGIN IMMEDIATE");
        m_folder->clients();
        struct flock reserved = {F_WRLCK, SEEK_SET, 0x40000001, 1, 0};
        QFile file(fileName());
        QVERIFY(file.open(QIODevice::ReadWrite) && fcntl(file.handle(), F_OFD_GETLK, &reserved) == 0);
        QCOMPARE(reserved.l_type, F_WRLCK);
    }

    void waitsForOtherPrograms()
    {
        for (const char* lock : {"BEGIN EXCLUSIVE", "BEGIN; SELECT * FROM jobacct"}) {
            store::Connection other(modMain::DBConnString);
            other.runNative(lock);
            QElapsedTimer time;
            time.start();
            checkError(catchError([&] { m_folder->addClient("Bert"); }), "in use by another program");
            QVERIFY(time.elapsed() > 1500 && time.elapsed() < 3000);
        }
        QCOMPARE(m_folder->clients(), QStringList());
    }

    // The disk fails after 0, 1, 2 and more writes, until a save succeeds.
    void survivesAFailingDisk()
    {
        for (const auto& [diskError, says] :
             {std::pair(ENOSPC, "is full. Nothing was changed. Free some space"), std::pair(EIO, "is connected")}) {
            m_folder->run("delete from jobacct");
            const auto save = [&, number = diskError](int writes) {
                const FailingDisk disk(writes, number);
                return catchError([&] { m_folder->addClient("Bert"); });
            };
            int writes = 0;
            for (values::RuntimeError error = save(0); error.number() != 0; error = save(++writes)) {
                checkError(error, says);
                QCOMPARE(m_folder->clients(), QStringList());
                QCOMPARE(nativeValues(store::Connection(modMain::DBConnString), "PRAGMA integrity_check"), "ok");
            }
            QVERIFY2(writes > 2, "the disk did not fail");
            QCOMPARE(m_folder->clients(), QStringList("Bert"));
        }
    }

    // Another process saves again and again and is killed in the middle.
    void keepsWhatIsSaved()
    {
        // Enough rows for several pages, so that a save is more than one write and half a save would show.
        for (int i = 0; i < 40; ++i)
            m_folder->run("insert into jobs (joblength) values ('" + QString(200, 'x') + "')");
        // The last number that the other process has saved; both see it.
        void* shared = mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        QVERIFY(shared != MAP_FAILED);
        auto& acknowledged = *new (shared) std::atomic_int(0);
        const auto saveForEver = [&] {
            for (int number = acknowledged + 1;; acknowledged = number++)
                m_folder->run(QString("update jobs set jobreference = 'save %1', jobchar = %1, joblines = %1 / 4, "
                                      "jobuploaded = '%1'")
                                  .arg(number));
        };
        int cutOff = 0;
        for (int kills = 0; kills < 40 || (cutOff == 0 && kills < 200); ++kills) {
            // After a save or more, within a later one, which takes up to 30 ms.
            QVERIFY(killAtWork(saveForEver, [&, before = acknowledged.load()] {
                while (acknowledged == before)
                    std::this_thread::yield();
                std::this_thread::sleep_for(std::chrono::microseconds(QRandomGenerator::global()->bounded(60'000)));
            }));
            cutOff += QFile::exists(fileName() + "-journal");
            const store::Connection connection(modMain::DBConnString);
            QCOMPARE(nativeValues(connection, "PRAGMA integrity_check"), "ok");
            const QStringList rows =
                m_folder->rows("select distinct jobchar, joblines, jobreference, jobuploaded from jobs");
            const int stored = rows.first().section('|', 0, 0).toInt();
            QCOMPARE(rows, QStringList(QString("%1|%2|save %1|%1").arg(stored).arg(stored / 4.0)));
            QVERIFY2(stored == acknowledged || stored == acknowledged + 1, qPrintable(QString::number(stored)));
            acknowledged = stored;
        }
        QVERIFY2(cutOff > 0, "no kill met a save");
    }

    // More than one block of texts, one text larger than any block, and rows that move to another owner.
    void keepsLongLists()
    {
        const QString large(5'000'000, u'é');
        const auto reference = [&](int id) {
            return id == 700 ? large : QString("é%1").arg(id, id % 60, 10, QChar('0'));
        };
        store::Connection connection(modMain::DBConnString);
        connection.runNative("insert into jobs (jobreference, joblength) with recursive n(i) as (select 1 union all "
                             "select i + 1 from n where i < 100000) select printf('é%0*d', i % 60, i), '' from n");
        connection.runNative(
            "update jobs set jobreference = replace(hex(zeroblob(5000000)), '00', 'é') where id = 700");
        store::RowSet read = store::readRows(modMain::DBConnString,
                                             "select id, jobreference, joblength, jobstart from jobs order by id");
        read.removeRow(98);
        const store::RowSet rows = std::move(read);
        QCOMPARE(rows.rowCount(), 99'999);
        for (int row = 0; row < rows.rowCount(); ++row) {
            const int id = row < 98 ? row + 1 : row + 2;
            if (rows.at(row, 0).toLong() != id || rows.at(row, 1).toText() != reference(id))
                QFAIL(qPrintable(QString::number(row)));
        }
        QCOMPARE(rows.at(5, 2).toText(), "");
        QVERIFY(rows.at(5, 3).isNull());
        for (const auto& [row, column] : {std::pair(99'999, 0), {-1, 0}, {0, 4}, {0, -1}})
            QCOMPARE(catchFault([&] { rows.at(row, column); }), 9);
    }

private:
    QString fileName() const { return m_folder->mainFile(); }
    static QString folderOf(const QString& fileName) { return QFileInfo(fileName).path(); }
    void checkError(const values::RuntimeError& error, const QString& says) const
    {
        QCOMPARE(error.number(), static_cast<int>(store::StoreFault::Unspecified));
        for (const QString& part : {says, '\'' + fileName() + '\''})
            QVERIFY2(error.description().contains(part), qPrintable(error.description()));
    }

    std::unique_ptr<ScratchFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestDataFile)
#include "tst_dataFile.moc"
