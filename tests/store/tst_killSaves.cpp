// Saves in another process, which is killed again and again in the middle of it. The other process is this program,
// started as tst_killSaves FOLDER NUMBER.
#include "native.h"
#include "support/scratchFolder.h"

#include "store/command.h"
#include "store/connectionStrings.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <cstdio>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// Saves the number in all jobs and says so at once, then the next one, and so on until it is killed.
[[noreturn]] void saveForEver(const QString& connectionString, int number)
{
    for (;; ++number) {
        {
            store::Connection connection(connectionString);
            store::Command(connection, u"update jobs set jobchar = %1, joblines = %1 / 4, "
                                       "jobreference = 'save %1', jobuploaded = '%1'"_s.arg(number))
                .execute();
        }
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
}

/// Lets the other process make a save or more, then kills it within a later one, which takes up to 30 ms. Gives the
/// last that it acknowledged.
int saveUntilKilled(const QString& folder, int from)
{
    QProcess saver;
    saver.start(QCoreApplication::applicationFilePath(), {folder, QString::number(from)}, QIODevice::ReadOnly);
    saver.waitForReadyRead(10'000);
    std::this_thread::sleep_for(std::chrono::microseconds(QRandomGenerator::global()->bounded(60'000)));
    saver.kill();
    saver.waitForFinished();
    const QByteArray said = saver.readAllStandardOutput();
    return said.left(said.lastIndexOf('\n')).split('\n').last().toInt();
}

} // namespace

class TestKillSaves : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatIsSaved()
    {
        const ScratchFolder folder;
        // As many as fill several pages, so that a save is more than one write: half of it would show.
        for (int i = 0; i < 40; ++i)
            folder.run(u"insert into jobs (joblength) values ('%1')"_s.arg(QString(200, u'x')));
        int stored = 0;
        int cutOff = 0;
        for (int kills = 0; kills < 40 || (cutOff == 0 && kills < 200); ++kills) {
            const int acknowledged = saveUntilKilled(folder.path(), stored + 1);
            QVERIFY2(acknowledged > stored, "the saver saved nothing");
            cutOff += QFile::exists(folder.mainFile() + u"-journal"_s);
            const store::Connection connection(modMain::mainConnectionString(folder.path()));
            QCOMPARE(nativeValues(connection, "PRAGMA integrity_check"), u"ok"_s);
            const QStringList rows =
                folder.rows(u"select distinct jobchar, joblines, jobreference, jobuploaded from jobs"_s);
            stored = rows.first().section(u'|', 0, 0).toInt();
            QCOMPARE(rows, QStringList(u"%1|%2|save %1|%1"_s.arg(stored).arg(stored / 4.0)));
            QVERIFY2(stored == acknowledged || stored == acknowledged + 1,
                     qPrintable(u"%1 acknowledged, %2 stored"_s.arg(acknowledged).arg(stored)));
        }
        QVERIFY2(cutOff > 0, "no kill met a save");
    }
};

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3)
        saveForEver(modMain::mainConnectionString(QString::fromLocal8Bit(argv[1])), atoi(argv[2]));
    TestKillSaves test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_killSaves.moc"
