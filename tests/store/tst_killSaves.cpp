#include "native.h"
#include "support/scratchFolder.h"

#include "store/connectionStrings.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

/// Saves in another process, which is killed again and again in the middle of it.
class TestKillSaves : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatIsSaved();

private:
    void fillJobs();
    int saveUntilKilled(int from);
    void checkFile(int acknowledged);

    ScratchFolder m_folder;
    QRandomGenerator m_random;
    qint64 m_oneSave = 0;
    int m_stored = 0;
    int m_cutOff = 0;
    int m_unheard = 0;
};

// As many as fill several pages, so that a save is more than one write: half of it would show.
void TestKillSaves::fillJobs()
{
    for (int i = 0; i < 40; ++i)
        m_folder.run(u"insert into jobs (joblength) values ('%1')"_s.arg(QString(200, u'x')));
    constexpr int saves = 5;
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < saves; ++i)
        m_folder.run(
            u"update jobs set jobchar = %1, joblines = %1, jobreference = 'save', jobuploaded = '%1'"_s.arg(i));
    m_oneSave = time.nsecsElapsed() / saves;
}

// Lets it make a few saves, then kills it somewhere within the next one. Gives the last number that it acknowledged.
int TestKillSaves::saveUntilKilled(int from)
{
    QProcess saver;
    saver.start(QStringLiteral(SAVER), {m_folder.path(), QString::number(from)}, QIODevice::ReadOnly);
    QByteArray said;
    const int heard = m_random.bounded(1, 6);
    while (said.count('\n') < heard && saver.waitForReadyRead(10000))
        said += saver.readAllStandardOutput();
    QElapsedTimer time;
    time.start();
    const qint64 moment = m_random.bounded(m_oneSave);
    while (time.nsecsElapsed() < moment) {
    }
    saver.kill();
    saver.waitForFinished();
    said += saver.readAllStandardOutput();
    return said.left(said.lastIndexOf('\n')).split('\n').last().toInt();
}

void TestKillSaves::checkFile(int acknowledged)
{
    m_cutOff += QFile::exists(m_folder.mainFile() + u"-journal"_s);
    const store::Connection connection(modMain::mainConnectionString(m_folder.path()));
    QCOMPARE(nativeValues(connection, "PRAGMA integrity_check"), u"ok"_s);
    const QStringList rows = m_folder.rows(u"select distinct jobchar, joblines, jobreference, jobuploaded from jobs"_s);
    QCOMPARE(rows.size(), 1);
    m_stored = rows.first().section(u'|', 0, 0).toInt();
    QCOMPARE(rows.first(), u"%1|%2|save %1|%1"_s.arg(m_stored).arg(m_stored / 4.0));
    QVERIFY2(m_stored == acknowledged || m_stored == acknowledged + 1,
             qPrintable(u"%1 acknowledged, %2 stored"_s.arg(acknowledged).arg(m_stored)));
    m_unheard += m_stored - acknowledged;
}

void TestKillSaves::keepsWhatIsSaved()
{
    const quint32 seed = QRandomGenerator::system()->generate();
    m_random.seed(seed);
    fillJobs();
    int kills = 0;
    for (int saves = 0; saves < 200 || kills < 40 || (m_cutOff == 0 && kills < 200); ++kills) {
        const int before = m_stored;
        const int acknowledged = saveUntilKilled(before + 1);
        QVERIFY2(acknowledged > before, "the saver saved nothing");
        saves += acknowledged - before;
        checkFile(acknowledged);
        if (QTest::currentTestFailed())
            break;
    }
    qInfo("seed %u: %d kills in %d saves; %d were cut off in the middle, %d kept though not yet acknowledged", seed,
          kills, m_stored, m_cutOff, m_unheard);
    QVERIFY2(m_cutOff > 0, "no kill met a save");
}

QTEST_GUILESS_MAIN(TestKillSaves)
#include "tst_killSaves.moc"
