#include "newProgramFolder.h"

#include "store/dataFiles.h"
#include "values/runtimeError.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QScopeGuard>

#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace app {

namespace {

constexpr auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

const QString templates = u"templates"_s;

// Names the templates that have been copied, one a line: those that the user has deleted since do not come back.
const QString copiedList = u"templates/.copied"_s;

QStringList listTemplates(const QString& shared)
{
    const QDir folder(shared + u'/' + templates);
    QStringList names;
    for (QDirIterator it(folder.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        names << folder.relativeFilePath(it.next());
    names.sort();
    return names;
}

// Under another name first, so that an interruption leaves no half template. An existing file stays.
bool copyTemplate(const QString& shared, const QString& folder, const QString& name)
{
    const QString source = shared + u'/' + templates + u'/' + name;
    const QString goal = folder + u'/' + templates + u'/' + name;
    const QString part = goal + u".part"_s;
    if (QFile::exists(goal))
        return true;
    QFile::remove(part);
    return QDir().mkpath(QFileInfo(goal).path()) && QFile::copy(source, part) &&
           QFile::setPermissions(part, QFile::permissions(part) | QFile::WriteOwner) && QFile::rename(part, goal);
}

bool copyTemplates(const QString& shared, const QString& folder, const QStringList& names)
{
    QFile list(folder + u'/' + copiedList);
    bool areAllCopied = QDir(folder).mkpath(templates) && list.open(QIODevice::Append);
    for (const QString& name : names)
        areAllCopied = areAllCopied && copyTemplate(shared, folder, name) && list.write(name.toUtf8() + '\n') > 0;
    return list.flush() && areAllCopied;
}

bool linkFiles(const QString& shared, const QString& folder)
{
    bool areAllLinked = true;
    for (const QString& name : {u"PWR.chm"_s, u"alert.wav"_s})
        areAllLinked = areAllLinked && QFile::link(shared + u'/' + name, folder + u'/' + name);
    return areAllLinked;
}

bool fillFolder(const QString& shared, const QString& folder)
{
    if (!QDir().mkdir(folder, ownerOnly) || !QDir(folder).mkdir(u"reports"_s))
        return false;
    store::createDataFiles(folder);
    return copyTemplates(shared, folder, listTemplates(shared)) && linkFiles(shared, folder);
}

values::RuntimeError makingError(const QString& folder)
{
    return {
        static_cast<int>(values::Fault::PathFileAccess),
        u"Could not make your Penwright folder '%1'. See that you may write there and that the disk is not full, and "
        "start Penwright again."_s.arg(QDir::toNativeSeparators(folder))};
}

} // namespace

void makeProgramFolder(const QString& shared, const QString& folder)
{
    const QString parent = QFileInfo(folder).path();
    const QString part = parent + u"/.penwright.part"_s;
    if (!QDir().exists(parent) && !QDir().mkpath(parent))
        throw makingError(folder);
    // One at a time, so that whatever lies there under the other name was left by a start that was killed. The lock
    // leaves no file behind; without it, as on some network disks, the renaming still lets only one win.
    const int lock = ::open(QFile::encodeName(parent).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const auto unlock = qScopeGuard([lock] { ::close(lock); });
    ::flock(lock, LOCK_EX);
    if (QFileInfo::exists(folder))
        return;
    QDir(part).removeRecursively();
    const auto removePart = qScopeGuard([part] { QDir(part).removeRecursively(); });
    try {
        if (!fillFolder(shared, part))
            throw makingError(folder);
    } catch (const values::RuntimeError&) {
        throw makingError(folder);
    }
    ::syncfs(lock);
    if (std::rename(QFile::encodeName(part).constData(), QFile::encodeName(folder).constData()) != 0 &&
        !QFileInfo::exists(folder))
        throw makingError(folder);
}

void addNewTemplates(const QString& shared, const QString& folder)
{
    QFile list(folder + u'/' + copiedList);
    // A folder of another origin, or without its templates.
    if (!list.open(QIODevice::ReadOnly))
        return;
    const QStringList known = QString::fromUtf8(list.readAll()).split(u'\n');
    list.close();
    QStringList names = listTemplates(shared);
    names.removeIf([&](const QString& name) { return known.contains(name); });
    if (!names.isEmpty())
        copyTemplates(shared, folder, names);
}

} // namespace app
