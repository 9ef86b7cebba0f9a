#include "suiteError.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace office {

using values::RuntimeError;

namespace {

constexpr int cannotCreateObject = 429;

// With less free space the suite cannot work.
constexpr qint64 minimumFreeBytes = qint64{1024} * 1024;

bool isFull(const QString& path)
{
    const QStorageInfo disk(QFileInfo(path).isDir() ? path : QFileInfo(path).path());
    return disk.isValid() && disk.bytesAvailable() < minimumFreeBytes;
}

} // namespace

RuntimeError suiteMissingError()
{
    return {cannotCreateObject, u"can't create the automation object: the office suite is not installed. "
                                "Install the packages libreoffice-writer and libreoffice-calc."_s};
}

RuntimeError suiteLostError()
{
    if (isFull(QDir::tempPath()))
        return RuntimeError(values::Fault::DiskFull);
    return {cannotCreateObject, u"can't create the automation object: the office suite stopped, twice. Try again."_s};
}

RuntimeError suiteSlowError()
{
    return {cannotCreateObject, u"can't create the automation object: the office suite took too long and was stopped. "
                                "Try again."_s};
}

RuntimeError writeError(const QString& path)
{
    if (isFull(path))
        return RuntimeError(values::Fault::DiskFull);
    return accessError(path, u"could not be written. See that you may write there."_s);
}

RuntimeError writeError(const QFileDevice& device, const QString& fileName)
{
    return device.error() == QFileDevice::ResourceError ? RuntimeError(values::Fault::DiskFull) : writeError(fileName);
}

RuntimeError accessError(const QString& fileName, const QString& advice)
{
    return {static_cast<int>(values::Fault::PathFileAccess),
            u"Path/File access error: '%1' %2"_s.arg(QDir::toNativeSeparators(fileName), advice)};
}

} // namespace office
