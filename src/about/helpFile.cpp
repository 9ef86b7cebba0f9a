#include "helpFile.h"

#include "viewer.h"

#include "ui/messages.h"
#include "values/programFolder.h"

#include <QDir>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace about {

namespace {

// Without a registered viewer, a desktop opens the file in a browser, or silently does nothing.
bool hasDesktopViewer()
{
    QProcess query;
    query.start(u"xdg-mime"_s, {u"query"_s, u"default"_s, u"application/vnd.ms-htmlhelp"_s});
    constexpr int maximumMilliseconds = 3000;
    return query.waitForFinished(maximumMilliseconds) && !query.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace

void openHelpFile()
{
    const QStringList file{QDir::toNativeSeparators(modMain::ProgramFolder + u"/PWR.chm"_s)};
    // The usual viewers are started by name: only then is it certain that the file opens in one.
    if (startFirstInstalled({{u"xchm"_s, file}, {u"kchmviewer"_s, file}}))
        return;
    if (hasDesktopViewer() && startFirstInstalled({{u"xdg-open"_s, file}}))
        return;
    ui::showMessage(u"There is no viewer for the help file. Install the package xchm."_s);
}

} // namespace about
