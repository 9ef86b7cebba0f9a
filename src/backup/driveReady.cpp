#include "driveReady.h"

#include <QDir>
#include <QRegularExpression>
#include <QStorageInfo>

#include <mntent.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace backup {

namespace {

bool isInside(const QString& path, const QString& folder)
{
    return path == folder || path.startsWith(folder + u'/');
}

// The mount point of the disk that holds the path, even if the path does not exist yet.
QString findMountPoint(QString path)
{
    while (!QFileInfo::exists(path))
        path = QFileInfo(path).path();
    return QStorageInfo(path).rootPath();
}

// The innermost mount point in /etc/fstab that contains the path; empty when there is none.
QString findListedMountPoint(const QString& path)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> table(setmntent("/etc/fstab", "r"), endmntent);
    QString found;
    while (const mntent* entry = table ? getmntent(table.get()) : nullptr) {
        const QString place = QDir::cleanPath(QFile::decodeName(entry->mnt_dir));
        if (place.size() > found.size() && place != u"/"_s && isInside(path, place))
            found = place;
    }
    return found;
}

} // namespace

bool isDriveReady(const QString& folder)
{
    static const QRegularExpression driveRoot(u"^[A-Za-z]:[/\\\\]$"_s);
    if (driveRoot.match(folder).hasMatch())
        return false;
    const QString path = QDir::cleanPath(QDir().absoluteFilePath(folder));
    const QString mountPoint = findMountPoint(path);
    const QString listed = findListedMountPoint(path);
    if (!listed.isEmpty() && !isInside(mountPoint, QFileInfo(listed).canonicalFilePath()))
        return false;
    // The desktop mounts memory sticks below these; a folder there on the system's own disk is left from a removed one.
    for (const char* const place : {"/media", "/run/media"}) {
        const QString stickFolder = QLatin1String(place);
        if (isInside(path, stickFolder) && mountPoint == findMountPoint(stickFolder))
            return false;
    }
    return QStorageInfo(mountPoint).isReady();
}

} // namespace backup
