#include "suiteError.h"

#include <QDir>
#include <QStorageInfo>

namespace office {

using values::RuntimeError;

namespace {

constexpr int cannotCreateObject = 429;

// The suite cannot work with less.
constexpr qint64 leastBytes = 1024 * 1024;

bool isFull(const QString& folder)
{
    const QStorageInfo disk(folder);
    return disk.isValid() && disk.bytesAvailable() < leastBytes;
}

} // namespace

RuntimeError suiteMissing()
{
    return {cannotCreateObject, QStringLiteral("can't create the automation object: the office suite is not installed. "
                                               "Install the packages libreoffice-writer and libreoffice-calc.")};
}

RuntimeError suiteLost()
{
    if (isFull(QDir::tempPath()))
        return RuntimeError(values::Fault::DiskFull);
    return {cannotCreateObject,
            QStringLiteral("can't create the automation object: the office suite stopped, twice. Try again.")};
}

RuntimeError suiteSlow()
{
    return {cannotCreateObject,
            QStringLiteral("can't create the automation object: the office suite took too long and was stopped. "
                           "Try again.")};
}

RuntimeError writeError(const QString& folder)
{
    if (isFull(folder))
        return RuntimeError(values::Fault::DiskFull);
    return accessError(folder, QStringLiteral("could not be written. See that you may write there and that the disk "
                                              "is not full."));
}

RuntimeError accessError(const QString& fileName, const QString& advice)
{
    return {static_cast<int>(values::Fault::PathFileAccess),
            QStringLiteral("Path/File access error: '%1' %2").arg(QDir::toNativeSeparators(fileName), advice)};
}

} // namespace office
