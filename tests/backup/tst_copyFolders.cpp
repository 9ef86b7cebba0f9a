#include "store/faults.h"
#include "store/native.h"
#include "trees.h"

#include "backup/dataFile.h"
#include "backup/pendingFiles.h"
#include "store/connectionStrings.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using Spoil = std::function<void(Trees&)>;

static QString jobsIn(const Trees& trees)
{
    const store::Connection copy(modMain::mainConnectionString(trees.place.path()));
    return nativeValues(copy, "select count(*) from jobs");
}

static void addJobs(store::Connection& connection, int count)
{
    connection.runNative("insert into jobs(joblength) with recursive n(i) as (select 1 union all select i + 1 from n "
                         "where i < " +
                         QByteArray::number(count) + ") select hex(randomblob(50)) from n");
}

class TestCopyFolders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Twice, because what the first one has kept must not be in the way of the second.
    void keepsNamesTimesAndPermissions()
    {
        const NoPrivileges user;
        Trees trees;
        const fs::path folder = "templates/fixed";
        const fs::path names[] = {"reports/Übersicht\n2.xls", "reports/latin \xfc", folder / "a.doc", folder / ".b"};
        for (const char* content : {"first", "the second, longer"}) {
            for (const fs::path& name : names) {
                write(trees.source / name, content);
                fs::permissions(trees.source / name, fs::perms(0640));
            }
            for (const fs::path& name : {names[0], names[1], names[2], folder})
                fs::last_write_time(trees.source / name,
                                    fs::file_time_type::clock::now() - std::chrono::seconds(100'000));
            fs::permissions(trees.source / folder, fs::perms(0555));
            QCOMPARE(trees.copyTo(trees.target).description(), QString());
            fs::permissions(trees.source / folder, fs::perms::owner_all);
            QCOMPARE(fs::status(trees.target / folder).permissions(), fs::perms(0555));
            for (const fs::path& name : names) {
                QCOMPARE(read(trees.target / name), std::string(content));
                QCOMPARE(fs::status(trees.target / name).permissions(), fs::perms(0640));
            }
            for (const fs::path& name : {names[0], names[1], names[2], folder, fs::path("data/dB.mdb")})
                QCOMPARE(fs::last_write_time(trees.target / name), fs::last_write_time(trees.source / name));
        }
        fs::permissions(trees.target / folder, fs::perms::owner_all);
    }

    // A file at the end of a link inside is copied, a folder is not copied again, and nothing from outside.
    void followsLinksOnlyInside()
    {
        Trees trees;
        const QTemporaryDir elsewhere;
        const fs::path outside = elsewhere.path().toStdString();
        const fs::path links = trees.source / "templates/links";
        write(outside / "secret/a.doc", "outside");
        write(trees.source / "templates/real/a.doc", "inside");
        write(trees.source / "templates/real/.~lock.a.doc#", "left out");
        fs::create_directory(links);
        fs::create_symlink("../real/a.doc", links / "file");
        fs::create_symlink(trees.source / "templates/real", links / "folder");
        const fs::path kept[] = {"..", "nowhere", outside / "secret"};
        for (const fs::path& end : kept)
            fs::create_symlink(end, links / ("to " + end.filename().native()));
        // A link that an earlier backup left where now a folder stands.
        fs::create_directories(trees.target / "templates");
        fs::create_symlink(outside, trees.target / "templates/real");
        const fs::path copied = trees.target / "templates/links";
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(trees.copyTo(trees.target).description(), QString());
            QVERIFY(!fs::is_symlink(copied / "file"));
            QCOMPARE(fs::read_symlink(copied / "folder"), fs::path("../real"));
            QCOMPARE(read(copied / "file") + read(copied / "folder/a.doc"), std::string("insideinside"));
            for (const fs::path& end : kept)
                QCOMPARE(fs::read_symlink(copied / ("to " + end.filename().native())), end);
            QVERIFY(!fs::is_symlink(trees.target / "templates/real") && !fs::exists(outside / "a.doc"));
            QVERIFY(!fs::exists(trees.target / "templates/real/.~lock.a.doc#"));
        }
    }

    void stopsWhileItPlans()
    {
        const Trees trees;
        write(trees.source / "reports/r.xls", "");
        backup::CopyProgress progress;
        progress.isStopped = true;
        QVERIFY_THROWS_EXCEPTION(backup::CopyStopped,
                                 backup::copyFolders(trees.program.path(), trees.place.path(), progress));
        QCOMPARE(progress.allFiles.load(), 0);
    }

    void neverIntoItself()
    {
        Trees trees;
        fs::create_directory(trees.source / "templates/sub");
        fs::create_directory_symlink(trees.source / "data", trees.target / "link");
        for (const fs::path& folder : {trees.source, trees.source / "data", trees.source / "templates/sub",
                                       trees.source / "templates/../reports", trees.target / "link"}) {
            QCOMPARE(trees.copyTo(folder).number(), 70);
            QVERIFY(folder == trees.source || !fs::exists(folder / "reports"));
        }
    }

    void faultSpoilsNothing_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("named");
        QTest::addColumn<std::string>("report");
        QTest::addColumn<Spoil>("spoil");
        const auto row = [](const char* fault, int number, const std::string& named, const char* report, Spoil spoil) {
            QTest::addRow("%s: %s", fault, named.c_str())
                << number << QString::fromStdString(named) << std::string(report) << std::move(spoil);
        };
        static std::unique_ptr<backup::PendingFiles> other;
        row("no destination", 76, "missing", "old", [](Trees& t) { t.target /= "missing"; });
        row("destination a file", 75, "file", "old", [](Trees& t) { write(t.target /= "file", ""); });
        row("read-only", 70, "reports", "old",
            [](Trees& t) { fs::permissions(t.target / "reports", fs::perms(0555)); });
        row("in use", 70, "", "old", [](Trees& t) { other = std::make_unique<backup::PendingFiles>(t.target); });
        row("folder for a file", 75, "templates/new.doc", "new",
            [](Trees& t) { fs::create_directories(t.target / "templates/new.doc/x"); });
        row("file for a folder", 75, "templates", "new", [](Trees& t) {
            fs::remove(t.target / "templates");
            write(t.target / "templates", "");
        });
        row("no source", 76, "templates", "new", [](Trees& t) { fs::remove_all(t.source / "templates"); });
        row("unreadable", 70, "templates/new.doc", "new",
            [](Trees& t) { fs::permissions(t.source / "templates/new.doc", fs::perms(0)); });
        for (const backup::DataFile& file : backup::dataFiles) {
            const auto dataRow = [&](const char* fault, const std::function<void(const fs::path&)>& dataSpoil) {
                const fs::path name = fs::path("data") / file.name;
                row(fault, -2147467259, name, "new", [=](Trees& t) { dataSpoil(t.source / name); });
            };
            const auto change = [&file](const QByteArray& statement) {
                return [&file, statement](const fs::path& path) {
                    const fs::path folder = path.parent_path().parent_path();
                    store::Connection(file.connectionString(QString::fromStdString(folder))).runNative(statement);
                };
            };
            const QByteArray table = file.tables().back().name;
            dataRow("missing", [](const fs::path& path) { fs::remove(path); });
            dataRow("folder", [](const fs::path& path) { fs::remove(path) && fs::create_directory(path); });
            dataRow("empty", [](const fs::path& path) { write(path, ""); });
            dataRow("one byte", [](const fs::path& path) { write(path, "x"); });
            dataRow("cut short", [](const fs::path& path) { fs::resize_file(path, fs::file_size(path) - 1024); });
            dataRow("damaged", [](const fs::path& path) { write(path, read(path).replace(1500, 7, "damaged")); });
            dataRow("no table", change("DROP TABLE " + table));
            dataRow("no column", change("DROP TABLE " + table + "; CREATE TABLE " + table + " (id)"));
            dataRow("pages mixed up", change("PRAGMA writable_schema = ON; UPDATE sqlite_master SET rootpage = "
                                             "(SELECT max(rootpage) FROM sqlite_master) WHERE type = 'table'"));
        }
    }

    void faultSpoilsNothing()
    {
        QFETCH(const QString, named);
        QFETCH(const Spoil, spoil);
        const NoPrivileges user;
        Trees trees;
        const fs::path copy = trees.target;
        write(trees.source / "reports/r.xls", "old");
        QCOMPARE(trees.copyTo(copy).description(), QString());
        write(trees.source / "reports/r.xls", "new");
        write(trees.source / "templates/new.doc", "new");
        spoil(trees);
        const values::RuntimeError error = trees.copyTo(trees.target);
        QTEST(error.number(), "number");
        QVERIFY2(error.description().contains(named + u'\''), qPrintable(error.description()));
        fs::permissions(copy / "reports", fs::perms::owner_all);
        QTEST(read(copy / "reports/r.xls"), "report");
        QVERIFY(!fs::is_regular_file(copy / "templates/new.doc"));
        const store::Connection settings(modMain::backupConnectionString(trees.place.path()));
        QCOMPARE(jobsIn(trees) + u' ' + nativeValues(settings, "select path from bu"), u"0 Not set"_s);
        QCOMPARE(trees.leftovers(), 0);
    }

    void openDataFileIsCopiedWhole()
    {
        Trees trees;
        store::Connection writer(modMain::mainConnectionString(trees.program.path()));
        addJobs(writer, 1000);
        writer.runNative("begin");
        addJobs(writer, 10);
        QVERIFY(fs::exists(trees.source / "data/dB.mdb-journal"));
        QCOMPARE(trees.copyTo(trees.target).description(), QString());
        QCOMPARE(jobsIn(trees), u"1000"_s);
        QVERIFY(!fs::exists(trees.target / "data/dB.mdb-journal"));
        // What a crash in the middle of a larger change leaves at the destination must not be done to the new copy.
        addJobs(writer, 50'000);
        for (const char* name : {"data/dB.mdb", "data/dB.mdb-journal"})
            fs::copy_file(trees.source / name, trees.target / name, fs::copy_options::overwrite_existing);
        writer.runNative("rollback");
        addJobs(writer, 50'000);
        QCOMPARE(trees.copyTo(trees.target).description(), QString());
        QVERIFY(!fs::exists(trees.target / "data/dB.mdb-journal"));
        QCOMPARE(jobsIn(trees), u"51000"_s);
    }

    // More than may be open at once.
    void fiveThousandFiles()
    {
        const Trees trees;
        const auto name = [](int i) { return fs::path("reports") / std::to_string(i % 50) / std::to_string(i); };
        for (int i = 0; i < 5000; ++i)
            write(trees.source / name(i), i % 50 ? "" : std::to_string(i));
        QCOMPARE(trees.copyTo(trees.target).description(), QString());
        for (int i = 0; i < 5000; ++i)
            QVERIFY(fs::exists(trees.target / name(i)) && read(trees.target / name(i)) == read(trees.source / name(i)));
    }
};

QTEST_GUILESS_MAIN(TestCopyFolders)
#include "tst_copyFolders.moc"
