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
    const QString shared = QDir::cleanPath(executableFolder + u"/" PENWRIGHT_SHARED_FILES ""_s);
    if (QFileInfo::exists(executableFolder + u"/data"_s) || !QFileInfo(shared).isDir())
        return executableFolder;
    const QString folder = userDataFolder() + u"/penwright"_s;
    // A link without its goal, to a disk that is not connected, is the user's folder too.
    if (const QFileInfo place(folder); !place.exists() && !place.isSymbolicLink())
        makeProgramFolder(shared, folder);
    else
        addNewTemplates(shared, folder);
    return folder;
}

} // namespace app
