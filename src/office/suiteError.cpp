#include "suiteError.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace office {

using values::RuntimeError;

namespace {

constexpr int cannotCreateObject = 429;
constexpr int diskFullNumber = 61;

/// What the suite may need for a file, in bytes; it does not say itself that the disk is full.
constexpr qint64 leastRoom = 1 << 20;

RuntimeError diskFull(const QString& fileName)
{
    return {diskFullNumber, QStringLiteral("Disk full: '%1'. Free some space there and try again.")
                                .arg(QDir::toNativeSeparators(fileName))};
}

} // namespace

RuntimeError suiteMissing()
{
    return {cannotCreateObject, QStringLiteral("can't create the automation object: the office suite is not installed. "
                                               "Install the packages libreoffice-writer and libreoffice-calc.")};
}

RuntimeError suiteLost()
{
    return {cannotCreateObject,
            QStringLiteral("can't create the automation object: the office suite stopped or did not "
                           "answer, twice. Try again.")};
}

RuntimeError accessError(const QString& fileName, const QString& advice)
{
    return {static_cast<int>(values::Fault::PathFileAccess),
            QStringLiteral("Path/File access error: '%1' %2").arg(QDir::toNativeSeparators(fileName), advice)};
}

RuntimeError notWritten(const QString& fileName)
{
    const QStorageInfo disk(QFileInfo(fileName).path());
    if (disk.isValid() && disk.bytesAvailable() < leastRoom)
        return diskFull(fileName);
    return accessError(fileName, QStringLiteral("could not be written. See that you may write there and that the disk "
                                                "is not full."));
}

RuntimeError writeError(const QFileDevice& device, const QString& fileName)
{
    return device.error() == QFileDevice::ResourceError ? diskFull(fileName) : notWritten(fileName);
}

} // namespace office
