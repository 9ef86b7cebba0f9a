#include "suiteError.h"

#include <QDir>

namespace office {

using values::RuntimeError;

namespace {

constexpr int cannotCreateObject = 429;

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

} // namespace office
