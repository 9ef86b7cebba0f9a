#include "copyPlan.h"

#include "copyError.h"
#include "dataFile.h"
#include "pendingFiles.h"

#include <algorithm>
#include <string_view>

namespace backup {

namespace {

namespace fs = std::filesystem;
using Kind = CopyStep::Kind;

constexpr std::string_view journalSuffix = "-journal";

bool isInside(const fs::path& path, const fs::path& folder)
{
    return std::ranges::mismatch(folder, path).in1 == folder.end();
}

// The office suite's mark for an open document: in the copy, the document would seem to be open for ever.
bool isLockFile(std::string_view name)
{
    return name.starts_with(".~lock.") && name.ends_with('#');
}

// The copies of data files are complete, and a journal beside them would damage them.
bool isDataFileOrJournal(std::string_view name)
{
    if (name.ends_with(journalSuffix))
        name.remove_suffix(journalSuffix.size());
    return std::ranges::find(dataFiles, name, &DataFile::name) != dataFiles.end();
}

class Planner {
public:
    Planner(const fs::path& source, CopyProgress& progress) : m_root(fs::canonical(source)), m_progress(progress) {}

    void addFolder(const fs::path& source, const fs::path& place)
    {
        add({Kind::Folder, source, place});
        const bool holdsDataFiles = m_plan.size() == 1 && source.filename() == "data";
        if (holdsDataFiles)
            addDataFiles(source, place);
        for (const fs::directory_entry& entry : fs::directory_iterator(source)) {
            const fs::path name = entry.path().filename();
            m_progress.throwIfStopped();
            if (!isLockFile(name.native()) && !PendingFiles::isTemporary(name) &&
                !(holdsDataFiles && isDataFileOrJournal(name.native())))
                addEntry(entry, place / name);
        }
    }

    CopyPlan takePlan() { return std::move(m_plan); }

private:
    void add(const CopyStep& step)
    {
        if (step.kind != Kind::Folder)
            m_progress.planFile(step.bytes);
        m_plan.push_back(step);
    }

    void addDataFiles(const fs::path& source, const fs::path& place)
    {
        for (const DataFile& each : dataFiles) {
            const fs::path file = source / each.name;
            if (each.mayBeMissing && !fs::exists(file))
                continue;
            const qint64 bytes = fs::is_regular_file(file) ? qint64(fs::file_size(file)) : 0;
            add({Kind::DataFile, file, place / each.name, bytes, &each});
        }
    }

    void addEntry(const fs::directory_entry& entry, const fs::path& place)
    {
        const fs::path target = entry.is_symlink() ? findLinkTarget(entry.path()) : fs::path();
        if (!target.empty())
            add({.kind = Kind::Link, .source = entry.path(), .place = place, .linkTarget = target});
        else if (entry.is_directory())
            addFolder(entry.path(), place);
        else if (entry.is_regular_file())
            add({Kind::File, entry.path(), place, qint64(entry.file_size())});
    }

    // The target for the copy of a link; empty when the file that it leads to is copied instead.
    fs::path findLinkTarget(const fs::path& link) const
    {
        std::error_code error;
        const fs::path target = fs::canonical(link, error);
        if (error || !isInside(target, m_root))
            return fs::read_symlink(link);
        return fs::is_directory(target) ? target.lexically_relative(fs::canonical(link.parent_path())) : fs::path();
    }

    fs::path m_root;
    CopyProgress& m_progress;
    CopyPlan m_plan;
};

} // namespace

CopyPlan planCopy(const fs::path& programFolder, const fs::path& name, const fs::path& destination,
                  CopyProgress& progress)
{
    try {
        Planner planner(programFolder / name, progress);
        planner.addFolder(programFolder / name, destination / name);
        return planner.takePlan();
    } catch (const fs::filesystem_error& error) {
        throw copyError(error.code().value(), error.path1());
    }
}

} // namespace backup
