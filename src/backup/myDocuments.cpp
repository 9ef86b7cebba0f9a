#include "myDocuments.h"

#include <QDir>
#include <QStandardPaths>

namespace modMain {

QString GetMyDocumentsLocation()
{
    return QDir::toNativeSeparators(
        QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
}

} // namespace modMain

namespace backup {

QString defaultFolder()
{
    return modMain::GetMyDocumentsLocation() + QDir::separator() + QStringLiteral("PWR Backup");
}

} // namespace backup
