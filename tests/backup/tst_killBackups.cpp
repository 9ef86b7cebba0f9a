#include "trees.h"

#include "store/connectionStrings.h"
#include "store/native.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

/// Backups in another process, which is killed in the middle: of two program folders in turn to one place.
class TestKillBackups : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsWhole();

private:
    void fill(const Trees& trees, char letter);
    bool killBackup(const Trees& trees, qint64 moment);
    void check();

    Trees m_one;
    Trees m_other;
    std::vector<fs::path> m_files;
    int m_mixed = 0;
    int m_halfMade = 0;
};

void TestKillBackups::fill(const Trees& trees, char letter)
{
    m_files.clear();
    for (int i = 0; i < 60; ++i) {
        m_files.push_back(fs::path(i % 2 ? "reports" : "templates") / std::to_string(i));
        write(trees.source / m_files.back(), std::string(std::size_t(i) * 5000, letter));
    }
    store::Connection(modMain::mainConnectionString(trees.program.path()))
        .runNative(QByteArray("insert into jobs(jobreference) values ('") + letter + "')");
}

// True when it was killed before its end.
bool TestKillBackups::killBackup(const Trees& trees, qint64 moment)
{
    QProcess backer;
    backer.start(QStringLiteral(BACKER), {trees.program.path(), m_one.place.path()});
    if (!backer.waitForReadyRead(10000))
        qFatal("the backup does not begin");
    QElapsedTimer time;
    time.start();
    while (time.nsecsElapsed() < moment) {
    }
    backer.kill();
    backer.waitForFinished();
    return backer.exitStatus() == QProcess::CrashExit;
}

void TestKillBackups::check()
{
    int ofOne = 0;
    for (const fs::path& file : m_files) {
        const std::string content = read(m_one.target / file);
        const bool isOne = content == read(m_one.source / file);
        QVERIFY2(isOne || content == read(m_other.source / file), file.c_str());
        ofOne += isOne;
    }
    m_mixed += ofOne > 1 && ofOne < int(m_files.size()); // an empty file is the same in both
    m_halfMade += m_one.leftovers() > 0;
    const store::Connection copy(modMain::mainConnectionString(m_one.place.path()));
    QCOMPARE(nativeValues(copy, "PRAGMA integrity_check"), QStringLiteral("ok"));
    QVERIFY(QStringList({QStringLiteral("o"), QStringLiteral("n")})
                .contains(nativeValues(copy, "select jobreference from jobs")));
}

void TestKillBackups::everyFileIsWhole()
{
    const quint32 seed = QRandomGenerator::system()->generate();
    QRandomGenerator random(seed);
    fill(m_one, 'o');
    fill(m_other, 'n');
    QElapsedTimer time;
    time.start();
    QCOMPARE(m_one.copyTo(m_one.target).number(), 0);
    const qint64 whole = time.nsecsElapsed();
    int kills = 0;
    for (int tries = 0; kills < 50 && tries < 500; ++tries) {
        kills += killBackup(tries % 2 ? m_one : m_other, random.bounded(whole));
        check();
        if (QTest::currentTestFailed())
            break;
    }
    qInfo("seed %u: %d backups killed, every file whole; %d left files of both backups, %d left half-made ones", seed,
          kills, m_mixed, m_halfMade);
    QCOMPARE(kills, 50);
    QVERIFY2(m_mixed > 0 && m_halfMade > 0, "no kill met a backup at work");
    QCOMPARE(m_one.copyTo(m_one.target).number(), 0);
    QCOMPARE(m_one.leftovers(), 0);
}

QTEST_GUILESS_MAIN(TestKillBackups)
#include "tst_killBackups.moc"
