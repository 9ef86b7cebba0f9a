#include "findProgramFolder.h"

#include "newProgramFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace app {

namespace {

// A relative XDG_DATA_HOME is to be ignored, which not every version of Qt does.
QString userDataFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir::isRelativePath(folder) ? QDir::homePath() + u"/.local/share"_s : folder;
}

} // namespace

QString findProgramFolder(const QString& executableFolder)
{
    const QString delivered = QDir::cleanPath(executableFolder + u"/" PENWRIGHT_DELIVERED_FILES ""_s);
    if (QFileInfo::exists(executableFolder + u"/data"_s) || !QFileInfo(delivered).isDir())
        return executableFolder;
    const QString folder = userDataFolder() + u"/penwright"_s;
    // A link without its goal, to a disk that is not connected, is the user's folder too.
    if (const QFileInfo place(folder); !place.exists() && !place.isSymbolicLink())
        makeProgramFolder(delivered, folder);
    else
        addNewTemplates(delivered, folder);
    return folder;
}

} // namespace app
