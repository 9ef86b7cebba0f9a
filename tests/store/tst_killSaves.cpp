// Saves in another process, which is killed again and again in the middle of it.
#include "native.h"
#include "support/killAtWork.h"
#include "support/scratchFolder.h"

#include "store/connectionStrings.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

#include <sys/mman.h>

#include <atomic>
#include <thread>

class TestKillSaves : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatIsSaved()
    {
        const ScratchFolder folder;
        // As many as fill several pages, so that a save is more than one write: half of it would show.
        for (int i = 0; i < 40; ++i)
            folder.run("insert into jobs (joblength) values ('" + QString(200, 'x') + "')");
        // The last number that the other process has saved; both see it.
        void* shared = mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        QVERIFY(shared != MAP_FAILED);
        auto& acknowledged = *new (shared) std::atomic_int(0);
        const auto saveForEver = [&] {
            for (int number = acknowledged + 1;; acknowledged = number++)
                folder.run(QString("update jobs set jobchar = %1, joblines = %1 / 4, jobreference = 'save %1', "
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
            cutOff += QFile::exists(folder.mainFile() + "-journal");
            const store::Connection connection(modMain::DBConnString);
            QCOMPARE(nativeValues(connection, "PRAGMA integrity_check"), "ok");
            const QStringList rows =
                folder.rows("select distinct jobchar, joblines, jobreference, jobuploaded from jobs");
            const int stored = rows.first().section('|', 0, 0).toInt();
            QCOMPARE(rows, QStringList(QString("%1|%2|save %1|%1").arg(stored).arg(stored / 4.0)));
            QVERIFY2(stored == acknowledged || stored == acknowledged + 1, qPrintable(QString::number(stored)));
            acknowledged = stored;
        }
        QVERIFY2(cutOff > 0, "no kill met a save");
    }
};

QTEST_GUILESS_MAIN(TestKillSaves)
#include "tst_killSaves.moc"
