#include "copyFolders.h"

#include "copyError.h"
#include "copyFile.h"
#include "copyPlan.h"
#include "dataFile.h"
#include "pendingFiles.h"

#include "store/connection.h"
#include "store/copyDataFile.h"

#include <QFile>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <ranges>

namespace backup {

namespace {

namespace fs = std::filesystem;
using Kind = CopyStep::Kind;

constexpr const char* folders[] = {"reports", "data", "templates"};

/// The plans for the folders that could be read, and the error of the first one that could not.
struct Plans {
    std::vector<CopyPlan> all;
    std::exception_ptr failure;
};

bool isSame(const fs::path& one, const fs::path& other)
{
    std::error_code error;
    return fs::equivalent(one, other, error);
}

// Compares the folders themselves, because one folder may have several names.
void refuseCopyIntoItself(const fs::path& programFolder, const fs::path& destination)
{
    for (const char* name : folders) {
        const fs::path source = programFolder / name;
        if (isSame(destination / name, source))
            throw copyIntoItselfError(destination / name);
        for (fs::path place = fs::canonical(destination); place.has_relative_path(); place = place.parent_path()) {
            if (isSame(place, source))
                throw copyIntoItselfError(destination);
        }
    }
}

Plans makePlans(const fs::path& programFolder, const fs::path& destination, CopyProgress& progress)
{
    Plans plans;
    try {
        for (const char* name : folders)
            plans.all.push_back(planCopy(programFolder, name, destination, progress));
    } catch (const values::RuntimeError&) {
        plans.failure = std::current_exception();
    }
    return plans;
}

bool canWrite(const fs::path& folder)
{
    return (fs::status(folder).permissions() & fs::perms::owner_write) != fs::perms::none;
}

void removeLeftovers(const fs::path& folder)
{
    std::vector<fs::path> leftovers;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (PendingFiles::isTemporary(entry.path().filename()))
            leftovers.push_back(entry.path());
    }
    for (const fs::path& leftover : leftovers)
        fs::remove(leftover);
}

void makeFolder(const CopyStep& step)
{
    // Through a link the files would be written, and replace others, outside the backup.
    if (fs::is_symlink(fs::symlink_status(step.place)))
        fs::remove(step.place);
    if (mkdir(step.place.c_str(), S_IRWXU) == 0)
        return;
    if (errno != EEXIST || !fs::is_directory(step.place))
        throw lastCopyError(step.place);
    // The earlier copy of a read-only folder is read-only too, and must become writable for the new one.
    if (!canWrite(step.source))
        fs::permissions(step.place, fs::perms::owner_all, fs::perm_options::add);
    removeLeftovers(step.place);
}

QString makeConnectionString(const CopyStep& step)
{
    const fs::path programFolder = step.source.parent_path().parent_path();
    return step.dataFile->connectionString(QFile::decodeName(programFolder.c_str()));
}

// A journal that a crash left beside the old copy would later be applied to the new one, so it is used up first.
void finishOldCopy(const CopyStep& step)
{
    const fs::path journal = step.place.native() + "-journal";
    if (!fs::exists(journal))
        return;
    try {
        const QString copy = QFile::decodeName(step.place.c_str());
        store::Connection(store::replaceDataSource(makeConnectionString(step), copy))
            .runNative("SELECT count(*) FROM sqlite_master");
    } catch (const values::RuntimeError&) { // NOLINT(bugprone-empty-catch): there is nothing to do.
        // The old copy cannot be repaired; the new one replaces it.
    }
    fs::remove(journal);
}

void copyDataFile(const CopyStep& step, const fs::path& temporary)
{
    finishOldCopy(step);
    createPrivateFile(temporary);
    store::copyDataFile(makeConnectionString(step), QFile::decodeName(temporary.c_str()), step.dataFile->tables());
    keepTimesAndPermissions(step.source, temporary);
}

// False on a disk that cannot store links, as on most memory sticks.
bool copyLink(const CopyStep& step, const fs::path& temporary)
{
    std::error_code error;
    fs::create_symlink(step.linkTarget, temporary, error);
    if (error && error != std::errc::operation_not_permitted)
        throw copyError(error.value(), step.place);
    return !error;
}

bool copyTo(const fs::path& temporary, const CopyStep& step, CopyProgress& progress)
{
    if (step.kind == Kind::Link)
        return copyLink(step, temporary);
    if (step.kind == Kind::DataFile) {
        copyDataFile(step, temporary);
        progress.addBytes(step.bytes);
        return true;
    }
    if (!copyFile(step.source, temporary, progress))
        return false;
    keepTimesAndPermissions(step.source, temporary);
    return true;
}

void copyStep(const CopyStep& step, PendingFiles& pending, CopyProgress& progress)
{
    progress.throwIfStopped();
    if (step.kind == Kind::Folder) {
        makeFolder(step);
        return;
    }
    if (step.kind == Kind::File && isCopied(step.source, step.place))
        progress.addBytes(step.bytes);
    else if (!copyTo(pending.add(step.place, step.bytes), step, progress))
        pending.forgetLast();
    progress.addFile();
}

void carryOut(const CopyPlan& plan, PendingFiles& pending, CopyProgress& progress)
{
    for (const CopyStep& step : plan)
        copyStep(step, pending, progress);
    pending.moveIntoPlace();
    // Only now, because every file moved into a folder changes the folder's time.
    for (const CopyStep& step : plan | std::views::reverse) {
        if (step.kind == Kind::Folder)
            keepTimesAndPermissions(step.source, step.place);
    }
}

} // namespace

void copyFolders(const QString& programFolder, const QString& destination, QPromise<void>& promise)
{
    CopyProgress progress(promise);
    const fs::path source = QFile::encodeName(programFolder).toStdString();
    const fs::path target = QFile::encodeName(destination).toStdString();
    try {
        PendingFiles pending(target);
        refuseCopyIntoItself(source, target);
        const Plans plans = makePlans(source, target, progress);
        progress.showPlan();
        for (const CopyPlan& plan : plans.all)
            carryOut(plan, pending, progress);
        pending.flush();
        if (plans.failure)
            std::rethrow_exception(plans.failure);
    } catch (const fs::filesystem_error& error) {
        throw copyError(error.code().value(), error.path1());
    }
}

} // namespace backup
