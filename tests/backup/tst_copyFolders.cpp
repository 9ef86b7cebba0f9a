#include "store/faults.h"
#include "store/native.h"
#include "support/killAtWork.h"
#include "trees.h"

#include "backup/copyProgress.h"
#include "backup/dataFile.h"
#include "backup/pendingFiles.h"
#include "store/connection.h"
#include "store/connectionStrings.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <sys/stat.h>

#include <chrono>
#include <functional>
#include <thread>

struct Fault {
    int number;         // of the expected error
    std::string named;  // the end of the path in the error
    std::string report; // the version of the report that is then in the backup
    std::function<void(Trees&)> spoil;
};

class TestCopyFolders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Twice, because permissions kept by the first backup must not prevent the second.
    void keepsNamesTimesAndPermissions()
    {
        const NoPrivileges user;
        Trees trees;
        const fs::path folder = "templates/fixed";
        const fs::path names[] = {"reports/Übersicht\n2.xls", "reports/latin \xfc", folder / "a.doc", folder / ".b"};
        const fs::path old[] = {names[0], names[1], names[2], folder, "data/dB.mdb"};
        for (int i = 0; i < 3000; ++i) // more files than may be open at once
            write(trees.source / "reports/many" / std::to_string(i), "");
        for (const char* content : {"first", "the second, longer"}) {
            for (const fs::path& name : names) {
                write(trees.source / name, content);
                fs::permissions(trees.source / name, fs::perms(0640));
            }
            for (const fs::path& name : old)
                fs::last_write_time(trees.source / name, fs::file_time_type::clock::now() - std::chrono::hours(30));
            fs::permissions(trees.source / folder, fs::perms(0555));
            QCOMPARE(trees.copyTo(trees.target).description(), "");
            fs::permissions(trees.source / folder, fs::perms::owner_all);
            QCOMPARE(fs::status(trees.target / folder).permissions(), fs::perms(0555));
            for (const fs::path& name : names) {
                QCOMPARE(read(trees.target / name), std::string(content));
                QCOMPARE(fs::status(trees.target / name).permissions(), fs::perms(0640));
            }
            for (const fs::path& name : old)
                QCOMPARE(fs::last_write_time(trees.target / name), fs::last_write_time(trees.source / name));
        }
        fs::permissions(trees.target / folder, fs::perms::owner_all);
        QCOMPARE(std::distance(fs::directory_iterator(trees.target / "reports/many"), fs::directory_iterator()), 3000);
    }

    // Only what is the same by every sign stays as it is: a time of writing can be set back.
    void leavesWhatIsTheSame()
    {
        Trees trees;
        const fs::path reports = trees.source / "reports", copies = trees.target / "reports";
        const char* names[] = {"same", "written", "mode", "link"};
        for (const char* name : names)
            write(reports / name, "first");
        fs::permissions(reports / "mode", fs::perms(0600));
        std::this_thread::sleep_for(std::chrono::milliseconds(2100));
        // When something about each copy changed last.
        const auto changeTimes = [&] {
            std::vector<std::pair<time_t, long>> times;
            struct stat state = {};
            for (const char* name : names) {
                lstat((copies / name).c_str(), &state);
                times.emplace_back(state.st_ctim.tv_sec, state.st_ctim.tv_nsec);
            }
            return times;
        };
        QCOMPARE(trees.copyTo(trees.target).description(), "");
        const auto time = fs::last_write_time(reports / "written");
        write(reports / "written", "later");
        fs::last_write_time(reports / "written", time);
        fs::permissions(copies / "mode", fs::perms(0644));
        fs::remove(copies / "link");
        fs::create_symlink(reports / "link", copies / "link");
        const auto before = changeTimes();
        QCOMPARE(trees.copyTo(trees.target).description(), "");
        const auto after = changeTimes();
        for (std::size_t i = 0; i < std::size(names); ++i) {
            QCOMPARE(after[i] == before[i], i == 0);
            QCOMPARE(read(copies / names[i]), read(reports / names[i]));
            QCOMPARE(fs::symlink_status(copies / names[i]).permissions(), fs::status(reports / names[i]).permissions());
        }
    }

    // A linked file inside is copied, a linked folder is not copied twice, and nothing from outside is copied.
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
        // An earlier backup left a link where there is a folder now.
        fs::create_directories(trees.target / "templates");
        fs::create_symlink(outside, trees.target / "templates/real");
        const fs::path copied = trees.target / "templates/links";
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(trees.copyTo(trees.target).description(), "");
            QVERIFY(!fs::is_symlink(copied / "file"));
            QCOMPARE(fs::read_symlink(copied / "folder"), fs::path("../real"));
            QCOMPARE(read(copied / "file") + read(copied / "folder/a.doc"), std::string("insideinside"));
            for (const fs::path& end : kept)
                QCOMPARE(fs::read_symlink(copied / ("to " + end.filename().native())), end);
            QVERIFY(!fs::is_symlink(trees.target / "templates/real") && !fs::exists(outside / "a.doc"));
            QVERIFY(!fs::exists(trees.target / "templates/real/.~lock.a.doc#"));
        }
    }

    void stopsWhilePlanning()
    {
        const Trees trees;
        write(trees.source / "reports/r.xls", "");
        QPromise<void> progress;
        progress.start();
        progress.future().cancel();
        QVERIFY_THROWS_EXCEPTION(backup::CopyStopped,
                                 backup::copyFolders(trees.program.path(), trees.place.path(), progress));
        QCOMPARE(progress.future().progressMaximum(), 0);
    }

    void refusesToCopyIntoItself()
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

    void keepsEarlierCopyOnFault_data()
    {
        QTest::addColumn<Fault>("fault");
        const auto row = [](const char* name, const Fault& fault) {
            QTest::addRow("%s: %s", name, fault.named.c_str()) << fault;
        };
        static std::unique_ptr<backup::PendingFiles> other;
        const fs::path fresh = "templates/new.doc";
        row("no destination", {76, "missing", "old", [](Trees& t) { t.target /= "missing"; }});
        row("destination a file", {75, "file", "old", [](Trees& t) { write(t.target /= "file", ""); }});
        row("read-only",
            {70, "reports", "old", [](Trees& t) { fs::permissions(t.target / "reports", fs::perms(0555)); }});
        row("in use", {70, "", "old", [](Trees& t) { other = std::make_unique<backup::PendingFiles>(t.target); }});
        row("folder for a file", {75, fresh, "new", [=](Trees& t) { fs::create_directories(t.target / fresh / "x"); }});
        const auto replaceFolder = [](Trees& t) {
            fs::remove(t.target / "templates");
            write(t.target / "templates", "");
        };
        row("file for a folder", {75, "templates", "new", replaceFolder});
        row("no source", {76, "templates", "new", [](Trees& t) { fs::remove_all(t.source / "templates"); }});
        row("unreadable", {70, fresh, "new", [=](Trees& t) { fs::permissions(t.source / fresh, fs::perms(0)); }});
        for (const backup::DataFile& file : backup::dataFiles) {
            const fs::path name = fs::path("data") / file.name;
            const auto damaged = [&](const char* damage, const std::function<void(const fs::path&)>& spoil) {
                row(damage, {-2147467259, name, "new", [=](Trees& t) { spoil(t.source / name); }});
            };
            const auto changed = [&](const char* change, const QByteArray& statement) {
                const auto connect = file.connectionString;
                row(change, {-2147467259, name, "new",
                             [=](Trees& t) { store::Connection(connect(t.program.path())).runNative(statement); }});
            };
            if (!file.mayBeMissing)
                damaged("missing", [](const fs::path& path) { fs::remove(path); });
            damaged("folder", [](const fs::path& path) { fs::remove(path) && fs::create_directory(path); });
            damaged("empty", [](const fs::path& path) { write(path, ""); });
            damaged("one byte", [](const fs::path& path) { write(path, "x"); });
            damaged("cut short", [](const fs::path& path) { fs::resize_file(path, fs::file_size(path) - 1024); });
            damaged("damaged", [](const fs::path& path) { write(path, read(path).replace(1500, 7, "damaged")); });
            const QByteArray drop = "DROP TABLE " + QByteArray(file.tables().back().name);
            changed("no table", drop);
            changed("no column", drop + "; CREATE" + drop.mid(4) + " (id)");
            changed("pages mixed up", "PRAGMA writable_schema = ON; UPDATE sqlite_master SET rootpage = "
                                      "(SELECT max(rootpage) FROM sqlite_master) WHERE type = 'table'");
        }
    }

    void keepsEarlierCopyOnFault()
    {
        QFETCH(const Fault, fault);
        const NoPrivileges user;
        Trees trees;
        const fs::path copy = trees.target;
        write(trees.source / "reports/r.xls", "old");
        QCOMPARE(trees.copyTo(copy).description(), "");
        write(trees.source / "reports/r.xls", "new");
        write(trees.source / "templates/new.doc", "new");
        fault.spoil(trees);
        const values::RuntimeError error = trees.copyTo(trees.target);
        QCOMPARE(error.number(), fault.number);
        QVERIFY2(error.description().contains((fault.named + "'").c_str()), qPrintable(error.description()));
        fs::permissions(copy / "reports", fs::perms::owner_all);
        QCOMPARE(read(copy / "reports/r.xls"), fault.report);
        QVERIFY(!fs::is_regular_file(copy / "templates/new.doc"));
        QCOMPARE(trees.copiedJobs(), QStringList("0"));
        const QString settings = modMain::backupConnectionString(trees.place.path());
        QCOMPARE(readRows(settings, "select path from bu"), QStringList("Not set"));
        QCOMPARE(trees.leftovers(), 0);
    }

    void copiesOpenDataFileWhole()
    {
        Trees trees;
        store::Connection writer(modMain::mainConnectionString(trees.program.path()));
        const auto addJobs = [&](const QByteArray& count) {
            writer.runNative("insert into jobs(joblength) with recursive n(i) as (select 1 union all select i + 1 "
                             "from n where i < " +
                             count + ") select hex(randomblob(50)) from n");
        };
        addJobs("1000");
        writer.runNative("begin");
        addJobs("10");
        QVERIFY(fs::exists(trees.source / "data/dB.mdb-journal"));
        QCOMPARE(trees.copyTo(trees.target).description(), "");
        QCOMPARE(trees.copiedJobs(), QStringList("1000"));
        QVERIFY(!fs::exists(trees.target / "data/dB.mdb-journal"));
        // A journal that a crash left at the destination must not be applied to the new copy.
        addJobs("50000");
        for (const char* name : {"data/dB.mdb", "data/dB.mdb-journal"})
            fs::copy_file(trees.source / name, trees.target / name, fs::copy_options::overwrite_existing);
        writer.runNative("rollback");
        addJobs("50000");
        QCOMPARE(trees.copyTo(trees.target).description(), "");
        QVERIFY(!fs::exists(trees.target / "data/dB.mdb-journal"));
        QCOMPARE(trees.copiedJobs(), QStringList("51000"));
    }

    // Two program folders are backed up in turn to the same place, and each backup is killed at a random moment.
    void keepsFilesWholeWhenKilled()
    {
        constexpr int files = 60;
        const auto nthFile = [](int i) { return fs::path(i % 2 ? "reports" : "templates") / std::to_string(i); };
        const auto nthContent = [](int i, char letter) { return std::string(1 + 5000 * std::size_t(i), letter); };
        const Trees one, other;
        for (const auto& [trees, letter] : {std::pair(&one, '1'), std::pair(&other, '2')}) {
            for (int i = 0; i < files; ++i)
                write(trees->source / nthFile(i), nthContent(i, letter));
            store::Connection(modMain::mainConnectionString(trees->program.path()))
                .runNative(QByteArray("insert into jobs(jobreference) values ('") + letter + "')");
        }
        QElapsedTimer time;
        time.start();
        QCOMPARE(one.copyTo(one.target).number(), 0);
        const qint64 whole = time.nsecsElapsed();
        int kills = 0, halfMade = 0;
        for (int tries = 0; kills < 50 && tries < 500; ++tries) {
            const std::chrono::nanoseconds moment(QRandomGenerator::global()->bounded(whole));
            kills += killAtWork([&] { (tries % 2 ? one : other).copyTo(one.target); },
                                [&] { std::this_thread::sleep_for(moment); });
            for (int i = 0; i < files; ++i) {
                const std::string found = read(one.target / nthFile(i));
                QVERIFY(found == nthContent(i, '1') || found == nthContent(i, '2'));
            }
            halfMade += one.leftovers() > 0;
            const store::Connection copy(modMain::mainConnectionString(one.place.path()));
            QCOMPARE(nativeValues(copy, "PRAGMA integrity_check"), "ok");
            QVERIFY(QStringList({"1", "2"}).contains(nativeValues(copy, "select jobreference from jobs")));
        }
        QVERIFY2(kills == 50 && halfMade > 0, "the kills did not meet backups at work");
        QCOMPARE(one.copyTo(one.target).number(), 0);
        QCOMPARE(one.leftovers(), 0);
    }
};

QTEST_GUILESS_MAIN(TestCopyFolders)
#include "tst_copyFolders.moc"
