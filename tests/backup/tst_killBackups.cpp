#include "trees.h"

#include "store/connectionStrings.h"
#include "store/native.h"
#include "support/killAtWork.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <chrono>
#include <thread>

constexpr int files = 60;

static fs::path file(int number)
{
    return fs::path(number % 2 ? "reports" : "templates") / std::to_string(number);
}

static std::string content(int number, char letter)
{
    return std::string(1 + 5000 * std::size_t(number), letter);
}

static void fill(const Trees& trees, char letter)
{
    for (int i = 0; i < files; ++i)
        write(trees.source / file(i), content(i, letter));
    store::Connection(modMain::mainConnectionString(trees.program.path()))
        .runNative(QByteArray("insert into jobs(jobreference) values ('") + letter + "')");
}

/// Backups of two program folders in turn to one place, killed at any moment.
class TestKillBackups : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsWhole()
    {
        const Trees one, other;
        fill(one, '1');
        fill(other, '2');
        QElapsedTimer time;
        time.start();
        QCOMPARE(one.copyTo(one.target).number(), 0);
        const qint64 whole = time.nsecsElapsed();
        int kills = 0, mixed = 0, halfMade = 0;
        for (int tries = 0; kills < 50 && tries < 500; ++tries) {
            const std::chrono::nanoseconds moment(QRandomGenerator::global()->bounded(whole));
            kills += killAtWork([&] { (tries % 2 ? one : other).copyTo(one.target); },
                                [&] { std::this_thread::sleep_for(moment); });
            int ofOne = 0;
            for (int i = 0; i < files; ++i) {
                const std::string found = read(one.target / file(i));
                ofOne += found == content(i, '1');
                QVERIFY(found == content(i, '1') || found == content(i, '2'));
            }
            mixed += ofOne > 0 && ofOne < files;
            halfMade += one.leftovers() > 0;
            const store::Connection copy(modMain::mainConnectionString(one.place.path()));
            QCOMPARE(nativeValues(copy, "PRAGMA integrity_check"), "ok");
            QVERIFY(QStringList({"1", "2"}).contains(nativeValues(copy, "select jobreference from jobs")));
        }
        QVERIFY2(kills == 50 && mixed > 0 && halfMade > 0, "the kills did not meet backups at work");
        QCOMPARE(one.copyTo(one.target).number(), 0);
        QCOMPARE(one.leftovers(), 0);
    }
};

QTEST_GUILESS_MAIN(TestKillBackups)
#include "tst_killBackups.moc"
