#include "store/faults.h"
#include "trees.h"

#include "backup/pendingFiles.h"
#include "store/command.h"
#include "store/connectionStrings.h"
#include "store/recordset.h"

#include <QTest>

#include <sys/stat.h>

#include <functional>

using namespace Qt::StringLiterals;
using std::chrono::seconds;

using Spoil = std::function<void(Trees&)>;
Q_DECLARE_METATYPE(Spoil)

static int charactersIn(const fs::path& programFolder)
{
    store::Connection connection(modMain::mainConnectionString(QString::fromStdString(programFolder.native())));
    const store::Recordset sum(connection, u"select sum(jobchar) from jobs"_s);
    return sum.field(0).isNull() ? 0 : sum.field(0).toLong();
}

static void addJobs(store::Connection& connection, int characters, int jobs)
{
    const QByteArray numbers = "with recursive n(i) as (select 1 union all select i + 1 from n where i < %2) ";
    const QByteArray insert =
        "insert into jobs(jobchar, jobreference) " + numbers + "select %1, 'reference ' || i from n";
    connection.runNative(
        QByteArray(insert).replace("%1", QByteArray::number(characters)).replace("%2", QByteArray::number(jobs)));
}

class TestCopyFolders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsNamesTimesAndPermissions();
    void followsLinksOnlyInside();
    void neverIntoItself();
    void faultSpoilsNothing_data();
    void faultSpoilsNothing();
    void openDataFileIsCopiedWhole();
    void fiveThousandFiles();
};

void TestCopyFolders::keepsNamesTimesAndPermissions()
{
    const NoPrivileges user; // a folder that is read-only must not stop its second backup
    Trees trees;
    const fs::path names[] = {"reports/Übersicht\n2.xls", "reports/latin \xfc.xls", "templates/fixed/a.doc",
                              "templates/fixed/.hidden"};
    for (const char* content : {"first", "the second, longer", ""}) {
        fs::permissions(trees.source / "templates", fs::perms::owner_all);
        if (fs::exists(trees.source / names[2]))
            fs::permissions(trees.source / "templates/fixed", fs::perms::owner_all);
        for (const fs::path& name : names) {
            write(trees.source / name, content);
            fs::permissions(trees.source / name, fs::perms(0640));
            fs::last_write_time(trees.source / name, fs::file_time_type::clock::now() - seconds(100'000));
        }
        fs::last_write_time(trees.source / "templates/fixed", fs::file_time_type::clock::now() - seconds(200'000));
        fs::permissions(trees.source / "templates/fixed", fs::perms(0555));
        write(trees.target / "reports/only here.xls", "kept");
        QCOMPARE(trees.copyTo(trees.target).description(), QString());
        for (const fs::path& name : names) {
            QCOMPARE(read(trees.target / name), std::string(content));
            for (const fs::path& each : {name, fs::path("templates/fixed"), fs::path("data/dB.mdb")}) {
                QCOMPARE(fs::last_write_time(trees.target / each), fs::last_write_time(trees.source / each));
                QCOMPARE(fs::status(trees.target / each).permissions(), fs::status(trees.source / each).permissions());
            }
        }
        QCOMPARE(read(trees.target / "reports/only here.xls"), std::string("kept"));
    }
    for (const fs::path& folder : {trees.source, trees.target})
        fs::permissions(folder / "templates/fixed", fs::perms::owner_all);
}

void TestCopyFolders::followsLinksOnlyInside()
{
    Trees trees;
    const QTemporaryDir elsewhere;
    const fs::path outside = elsewhere.path().toStdString();
    write(outside / "secret/a.doc", "outside");
    write(trees.source / "templates/real/a.doc", "inside");
    const fs::path links = trees.source / "templates/links";
    fs::create_directory(links);
    fs::create_symlink("../real/a.doc", links / "file");
    fs::create_symlink("../real", links / "folder");
    fs::create_symlink("..", links / "loop");
    fs::create_symlink("nowhere", links / "dangling");
    fs::create_symlink(outside / "secret", links / "out");
    // A link that an earlier backup left where now a folder stands.
    fs::create_directories(trees.target / "templates");
    fs::create_symlink(outside, trees.target / "templates/real");
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(trees.copyTo(trees.target).description(), QString());
        const fs::path copied = trees.target / "templates/links";
        QVERIFY(fs::is_regular_file(fs::symlink_status(copied / "file")));
        QCOMPARE(read(copied / "folder/a.doc"), std::string("inside"));
        QVERIFY(!fs::is_symlink(copied / "folder") && !fs::is_symlink(trees.target / "templates/real"));
        QCOMPARE(fs::read_symlink(copied / "loop"), fs::path(".."));
        QCOMPARE(fs::read_symlink(copied / "dangling"), fs::path("nowhere"));
        QCOMPARE(fs::read_symlink(copied / "out"), outside / "secret");
        QVERIFY(!fs::exists(outside / "a.doc"));
    }
}

void TestCopyFolders::neverIntoItself()
{
    Trees trees;
    fs::create_directory(trees.source / "templates/sub");
    fs::create_directory_symlink(trees.source / "data", trees.target / "link");
    for (const fs::path& folder : {trees.source, trees.source / "data", trees.source / "templates/sub",
                                   trees.source / "templates/../reports", trees.target / "link"}) {
        QCOMPARE(trees.copyTo(folder).number(), 70);
        QVERIFY(!fs::exists(folder / "reports/reports") &&
                !fs::exists(folder / "data/dB.mdb") == (folder != trees.source));
    }
}

void TestCopyFolders::faultSpoilsNothing_data()
{
    QTest::addColumn<Spoil>("spoil");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("reportsCopied");
    const auto row = [](const char* name, int number, bool reportsCopied, const Spoil& spoil) {
        QTest::newRow(name) << spoil << number << reportsCopied;
    };
    row("destination missing", 76, false, [](Trees& trees) { trees.target /= "missing"; });
    row("destination a file", 75, false, [](Trees& trees) { write(trees.target /= "file", ""); });
    row("destination read-only", 70, false,
        [](Trees& trees) { fs::permissions(trees.target / "reports", fs::perms(0555)); });
    row("another backup is writing there", 70, false, [](Trees& trees) {
        static std::unique_ptr<backup::PendingFiles> other;
        other = std::make_unique<backup::PendingFiles>(trees.target);
    });
    row("file for a folder", 75, true, [](Trees& trees) { write(trees.target / "templates", ""); });
    row("folder for a file", 75, true,
        [](Trees& trees) { fs::create_directories(trees.target / "templates/new.doc/x"); });
    row("source missing", 76, true, [](Trees& trees) { fs::remove_all(trees.source / "templates"); });
    row("source unreadable", 70, true,
        [](Trees& trees) { fs::permissions(trees.source / "templates/new.doc", fs::perms::none); });
    row("data file damaged", -2147467259, true, [](Trees& trees) {
        std::fstream(trees.source / "data/dB.mdb", std::ios::in | std::ios::out).seekp(5000) << "damaged";
    });
    row("data file empty", -2147467259, true, [](Trees& trees) { fs::resize_file(trees.source / "data/dB.mdb", 0); });
}

void TestCopyFolders::faultSpoilsNothing()
{
    QFETCH(const Spoil, spoil);
    const NoPrivileges user;
    Trees trees;
    write(trees.source / "reports/r.xls", "old");
    QCOMPARE(trees.copyTo(trees.target).description(), QString());
    const fs::path before = trees.target;
    const std::string oldData = read(before / "data/dB.mdb");
    write(trees.source / "reports/r.xls", "new");
    write(trees.source / "templates/new.doc", "new");
    write(trees.target / "templates/.penwright-7.part", "left by a backup that was killed");
    if (QByteArray(QTest::currentDataTag()) == "file for a folder")
        fs::remove_all(trees.target / "templates");
    spoil(trees);
    QTEST(trees.copyTo(trees.target).number(), "number");
    fs::permissions(before / "reports", fs::perms::owner_all);
    QTEST(read(before / "reports/r.xls") == "new", "reportsCopied");
    QCOMPARE(read(before / "data/dB.mdb").size(), oldData.size());
    QCOMPARE(charactersIn(before), 0);
}

void TestCopyFolders::openDataFileIsCopiedWhole()
{
    Trees trees;
    const fs::path data = trees.source / "data/dB.mdb";
    const fs::path copy = trees.target / "data/dB.mdb";
    store::Connection writer(modMain::mainConnectionString(trees.program.path()));
    addJobs(writer, 1, 1000);
    writer.runNative("begin");
    addJobs(writer, 10, 10);
    QVERIFY(fs::exists(data.native() + "-journal"));
    QCOMPARE(trees.copyTo(trees.target).description(), QString());
    QCOMPARE(charactersIn(trees.target), 1000);
    // What a crash in the middle of a larger change leaves at the destination must not be done to the new copy.
    addJobs(writer, 10, 50'000);
    for (const char* ending : {"", "-journal"})
        fs::copy_file(data.native() + ending, copy.native() + ending, fs::copy_options::overwrite_existing);
    writer.runNative("rollback");
    addJobs(writer, 1, 50'000);
    QCOMPARE(trees.copyTo(trees.target).description(), QString());
    QVERIFY(!fs::exists(copy.native() + "-journal"));
    QCOMPARE(charactersIn(trees.target), 51'000);
}

// More than may be open at once.
void TestCopyFolders::fiveThousandFiles()
{
    Trees trees;
    const auto name = [](int i) { return fs::path("reports") / std::to_string(i % 50) / std::to_string(i); };
    for (int i = 0; i < 5000; ++i)
        write(trees.source / name(i), i % 50 ? "" : std::to_string(i));
    QElapsedTimer time;
    time.start();
    QCOMPARE(trees.copyTo(trees.target).description(), QString());
    qInfo("5,000 files in %lld ms", static_cast<long long>(time.elapsed()));
    for (int i = 0; i < 5000; ++i)
        QCOMPARE(read(trees.target / name(i)), i % 50 ? "" : std::to_string(i));
    QCOMPARE(trees.leftovers(), 0);
}

QTEST_GUILESS_MAIN(TestCopyFolders)
#include "tst_copyFolders.moc"
