#include "support/ownMounts.h"
#include "trees.h"

#include "backup/driveReady.h"
#include "backup/pendingFiles.h"

#include <QTest>

#include <thread>

/// Disks that are full, removed or not mounted, in a mount table that only this test sees.
class TestDisks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void driveIsReadyWhenMounted()
    {
        using backup::isDriveReady;
        mountDisk("/mnt");
        write("/mnt/a disk/left on the wrong disk", "");
        write("/mnt/fstab", "LABEL=x /mnt/a\\040disk ext4 noauto 0 0\n");
        QCOMPARE(mount("/mnt/fstab", "/etc/fstab", nullptr, MS_BIND, nullptr), 0);
        mountDisk("/media");
        fs::create_directories("/media/user/STICK");
        QVERIFY(!isDriveReady("E:/") && !isDriveReady("e:\\"));
        QVERIFY(isDriveReady("/") && isDriveReady("/mnt") && isDriveReady("E"));
        for (const QString place : {"/media/user/STICK", "/mnt/a disk"}) {
            QVERIFY(!isDriveReady(place) && !isDriveReady(place + "/new/sub/"));
            mountDisk(place.toStdString());
            QVERIFY(isDriveReady(place) && isDriveReady(place + "/new/sub/"));
        }
    }

    void keepsEarlierCopyOnFullDisk()
    {
        Trees trees;
        mountDisk(trees.target);
        write(trees.source / "reports/r.xls", std::string(300'000, 'o'));
        QCOMPARE(trees.copyTo(trees.target).number(), 0);
        write(trees.source / "reports/r.xls", std::string(900'000, 'n'));
        const values::RuntimeError error = trees.copyTo(trees.target);
        QCOMPARE(error.number(), 61);
        QVERIFY2(error.description().contains(trees.place.path() + "/reports'"), qPrintable(error.description()));
        QCOMPARE(read(trees.target / "reports/r.xls"), std::string(300'000, 'o'));
        QCOMPARE(trees.leftovers(), 0);
        umount(trees.target.c_str());
    }

    // After the removal, a folder with the same sub-folders remains on another disk.
    void noticesRemovedDisk()
    {
        Trees trees;
        for (const char* folder : {"reports", "data", "templates"})
            fs::create_directories(trees.target / folder);
        mountDisk(trees.target, "size=100m");
        for (int i = 0; i < 3000; ++i)
            write(trees.source / "templates" / std::to_string(i), std::string(10'000, 'x'));
        {
            const backup::PendingFiles pending(trees.target);
            umount2(trees.target.c_str(), MNT_DETACH);
            QCOMPARE(catchFault([&] { pending.flush(); }), 76);
        }
        mountDisk(trees.target, "size=100m");
        QPromise<void> progress;
        progress.start();
        std::thread removal([&] {
            while (progress.future().progressValue() < 700)
                std::this_thread::yield();
            umount2(trees.target.c_str(), MNT_DETACH);
        });
        const int fault = catchFault([&] { backup::copyFolders(trees.program.path(), trees.place.path(), progress); });
        removal.join();
        QCOMPARE(fault, 76);
        QCOMPARE(trees.leftovers(), 0);
    }
};

int main(int argc, char* argv[])
{
    takeOwnMounts(argc, argv);
    TestDisks test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_disks.moc"
