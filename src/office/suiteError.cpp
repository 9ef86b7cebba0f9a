#include "suiteError.h"

#include <QDir>

namespace office {

using values::RuntimeError;

namespace {

constexpr int cannotCreateObject = 429;
constexpr int diskFullNumber = 61;

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

RuntimeError diskFull(const QString& fileName)
{
    return {diskFullNumber, QStringLiteral("Disk full: '%1'. Free some space there and try again.")
                                .arg(QDir::toNativeSeparators(fileName))};
}

RuntimeError notWritten(const QString& fileName)
{
    return accessError(fileName, QStringLiteral("could not be written. See that you may write there and that the disk "
                                                "is not full."));
}

RuntimeError writeError(const QFileDevice& device, const QString& fileName)
{
    return device.error() == QFileDevice::ResourceError ? diskFull(fileName) : notWritten(fileName);
}

} // namespace office
