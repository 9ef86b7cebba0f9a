#include "myDocuments.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace modMain {

QString GetMyDocumentsLocation()
{
    const QString folder = QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    // Without a home folder Qt gives a path below the root, and a setting made by hand may not be a path at all.
    const bool isThere = QDir::isAbsolutePath(folder) && !QDir(folder).isRoot() && !QDir::home().isRoot();
    return isThere ? QDir::toNativeSeparators(folder) : QString();
}

} // namespace modMain

namespace backup {

QString defaultFolder()
{
    const QString documents = modMain::GetMyDocumentsLocation();
    return documents.isEmpty() ? QString() : documents + QDir::separator() + u"PWR Backup"_s;
}

} // namespace backup
