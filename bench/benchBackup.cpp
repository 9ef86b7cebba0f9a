// Backing up 2,000 files of 1 GiB in all, beside `cp -a` and sync: to a new folder and over the copy that is there; and
// closing the program when no backup is due.
#include "stopwatch.h"

#include "backup/backUp.h"
#include "backup/copyFolders.h"
#include "store/connectionStrings.h"
#include "store/dataFiles.h"
#include "ui/eventGuard.h"

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

using Copy = void (*)(const QString&, const QString&);

void compareCopies(const char* what, const QString& programFolder, const QTemporaryDir& places, bool isNewEachTime)
{
    int count = 0;
    const auto to = [&](const QString& name, Copy copy) {
        const QString place = places.filePath(isNewEachTime ? name + QString::number(++count) : name);
        QDir().mkpath(place);
        copy(programFolder, place);
    };
    compare(
        what, 5, 1.15, [&] { to(QStringLiteral("plain"), copyPlainly); }, [&] { to(QStringLiteral("ours"), backUp); });
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    store::createDataFiles(folder.path());
    modMain::setConnectionStrings(folder.path());
    ui::setProgramEnd([](int) {});
    std::printf("%-46s %.1f ms (at most 100 ms)\n", "closing with no backup due", median(20, modMain::GetBackUpInfo));
    fillData(folder.path());
    for (const bool isNewEachTime : {true, false}) {
        const QTemporaryDir places;
        compareCopies(isNewEachTime ? "back up 1 GiB to a new folder" : "back up 1 GiB over the last backup",
                      folder.path(), places, isNewEachTime);
    }
    return 0;
}
