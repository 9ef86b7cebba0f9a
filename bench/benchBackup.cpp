// Backing up 2,000 files of 1 GiB in all, to a new folder, beside `cp -a` and sync; over the copy that is there,
// beside `rsync -a` and sync; and closing the program when no backup is due.
#include "stopwatch.h"

#include "backup/backUp.h"
#include "backup/copyFolders.h"
#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "ui/eventGuard.h"

#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <unistd.h>

#include <cstdio>

namespace {

constexpr int fileCount = 2000;
constexpr qint64 fileBytes = (qint64(1) << 30) / fileCount;

void fillData(const QString& programFolder)
{
    const QByteArray content(fileBytes, 'x');
    for (int i = 0; i < fileCount; ++i) {
        const QString folder = programFolder + (i % 2 ? QStringLiteral("/reports") : QStringLiteral("/templates/%1"));
        const QString name = i % 2 ? folder : folder.arg(i % 20);
        QDir().mkpath(name);
        QFile file(name + QStringLiteral("/%1.xls").arg(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != fileBytes)
            qFatal("the disk is full");
    }
    sync();
}

void copyPlainly(const QString& programFolder, const QString& place)
{
    QStringList arguments(QStringLiteral("-a"));
    for (const char* folder : {"/reports", "/data", "/templates"})
        arguments << programFolder + QLatin1String(folder);
    if (QProcess::execute(QStringLiteral("cp"), arguments << place) != 0)
        qFatal("cp failed");
    sync();
}

void backUp(const QString& programFolder, const QString& place)
{
    QPromise<void> progress;
    backup::copyFolders(programFolder, place, progress);
}

void compareToNewCopies(const QString& programFolder)
{
    const QTemporaryDir places;
    int count = 0;
    const auto to = [&](void (*copy)(const QString&, const QString&)) {
        const QString place = places.filePath(QString::number(++count));
        QDir().mkpath(place);
        copy(programFolder, place);
    };
    compare(
        "back up 2,000 files, 1 GiB, to a new folder", 5, 1.05, [&] { to(copyPlainly); }, [&] { to(backUp); });
}

void changeSome(const QString& programFolder)
{
    for (int i = 1; i < fileCount; i += fileCount / 10) {
        for (const QString& name : {QStringLiteral("/reports/%1.xls").arg(i),
                                    QStringLiteral("/templates/%1/%2.xls").arg((i + 1) % 20).arg(i + 1)}) {
            QFile file(programFolder + name);
            if (!file.open(QIODevice::ReadWrite) ||
                file.write(QByteArray::number(QDateTime::currentMSecsSinceEpoch())) < 0)
                qFatal("a file cannot be changed");
        }
    }
}

void compareToRsync(const QString& programFolder)
{
    const QTemporaryDir places;
    const QString plain = places.filePath(QStringLiteral("plain"));
    const QString ours = places.filePath(QStringLiteral("ours"));
    QDir().mkpath(ours);
    const auto synchronize = [&] {
        if (QProcess::execute(QStringLiteral("rsync"), {QStringLiteral("-a"), programFolder + u'/', plain}) != 0)
            qFatal("rsync failed");
        sync();
    };
    backUp(programFolder, ours);
    synchronize();
    compare(
        "the same over the last backup, 20 files changed", 15, 1.2, synchronize, [&] { backUp(programFolder, ours); },
        [&] { changeSome(programFolder); });
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    store::createDataFiles(folder.path());
    modMain::setConnectionStrings(folder.path());
    ui::setProgramEnd([](int) {});
    std::printf("%-46s %.1f ms (at most 5 ms)\n", "closing with no backup due", median(20, modMain::GetBackUpInfo));
    fillData(folder.path());
    compareToNewCopies(folder.path());
    compareToRsync(folder.path());
    return 0;
}
