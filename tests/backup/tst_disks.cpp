#include "trees.h"

#include "backup/driveReady.h"

#include <QTest>

#include <sched.h>
#include <sys/mount.h>

#include <thread>

using namespace Qt::StringLiterals;

/// Disks that are full, pulled or not there: in a mount table of the test's own, which nobody else sees.
class TestDisks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readyWhenMounted();
    void fullDisk();
    void pulledHalfway();
};

static void mountSmallDisk(const fs::path& place, const char* options)
{
    fs::create_directories(place);
    QCOMPARE(mount("disk", place.c_str(), "tmpfs", 0, options), 0);
}

void TestDisks::readyWhenMounted()
{
    using backup::isDriveReady;
    const QTemporaryDir scratch;
    const fs::path listed = scratch.path().toStdString() + "/a disk";
    write(listed / "left on the wrong disk", "");
    write(listed.parent_path() / "fstab", "LABEL=x " + listed.parent_path().native() + "/a\\040disk ext4 noauto 0 0\n");
    QCOMPARE(mount((listed.parent_path() / "fstab").c_str(), "/etc/fstab", nullptr, MS_BIND, nullptr), 0);
    mountSmallDisk("/media", "size=1m");
    fs::create_directories("/media/user/STICK");
    const auto inside = [](const fs::path& folder) { return QString::fromStdString(folder.native()) + u"/new/sub/"_s; };
    QVERIFY(!isDriveReady(u"E:/"_s) && !isDriveReady(u"e:\\"_s));
    QVERIFY(isDriveReady(u"/"_s) && isDriveReady(scratch.path()) && isDriveReady(u"E"_s));
    for (const fs::path& place : {fs::path("/media/user/STICK"), listed}) {
        QVERIFY(!isDriveReady(QString::fromStdString(place.native())) && !isDriveReady(inside(place)));
        mountSmallDisk(place, "size=1m");
        QVERIFY(isDriveReady(QString::fromStdString(place.native())) && isDriveReady(inside(place)));
    }
}

void TestDisks::fullDisk()
{
    Trees trees;
    mountSmallDisk(trees.target, "size=1m");
    write(trees.source / "reports/r.xls", std::string(300'000, 'o'));
    QCOMPARE(trees.copyTo(trees.target).description(), QString());
    write(trees.source / "reports/r.xls", std::string(900'000, 'n'));
    const values::RuntimeError error = trees.copyTo(trees.target);
    QCOMPARE(error.number(), 61);
    QCOMPARE(error.description(), u"Disk full: '%1/reports'. Free some space there and try again."_s.arg(
                                      QString::fromStdString(trees.target.native())));
    QCOMPARE(read(trees.target / "reports/r.xls"), std::string(300'000, 'o'));
    QCOMPARE(trees.leftovers(), 0);
}

// What is left of the place is a folder on the wrong disk, with folders of the same names.
void TestDisks::pulledHalfway()
{
    Trees trees;
    for (const char* folder : {"reports", "data", "templates"})
        fs::create_directories(trees.target / folder);
    mountSmallDisk(trees.target, "size=100m");
    for (int i = 0; i < 3000; ++i)
        write(trees.source / "templates" / std::to_string(i), std::string(10'000, 'x'));
    backup::CopyProgress progress;
    std::thread hand([&] {
        while (progress.files < 700)
            std::this_thread::yield();
        umount2(trees.target.c_str(), MNT_DETACH);
    });
    const int number = faultOf([&] { backup::copyFolders(trees.program.path(), trees.place.path(), progress); });
    hand.join();
    QCOMPARE(number, 76);
    QCOMPARE(trees.leftovers(), 0);
}

int main(int argc, char* argv[])
{
    const bool isAdministrator = geteuid() == 0;
    if (unshare(isAdministrator ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        qFatal("no mount table of its own");
    TestDisks test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_disks.moc"
