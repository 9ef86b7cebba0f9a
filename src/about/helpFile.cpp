#include "helpFile.h"

#include "viewer.h"

#include "store/connectionStrings.h"
#include "ui/messages.h"

#include <QDir>
#include <QProcess>

namespace about {

namespace {

// A desktop asked to open a file that nobody has registered for hands it to a browser, or does nothing and says so to
// no one.
bool hasDesktopViewer()
{
    QProcess query;
    query.start(QStringLiteral("xdg-mime"),
                {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("application/vnd.ms-htmlhelp")});
    constexpr int patience = 3000;
    return query.waitForFinished(patience) && !query.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace

void openHelpFile()
{
    const QStringList file{QDir::toNativeSeparators(modMain::ProgramFolder + QStringLiteral("/PWR.chm"))};
    // The usual viewers are started by name: only then is it certain that the file opens in one.
    if (startFirstInstalled({{QStringLiteral("xchm"), file}, {QStringLiteral("kchmviewer"), file}}))
        return;
    if (hasDesktopViewer() && startFirstInstalled({{QStringLiteral("xdg-open"), file}}))
        return;
    ui::showMessage(QStringLiteral("There is no viewer for the help file. Install the package xchm."));
}

} // namespace about
