#include "copyPlan.h"

#include "copyError.h"
#include "pendingFiles.h"

#include "store/connectionStrings.h"

#include <QFile>

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

class Planner {
public:
    explicit Planner(const fs::path& source) : m_root(fs::canonical(source)) {}

    void addFolder(const fs::path& source, const fs::path& place)
    {
        m_trail.push_back(fs::canonical(source));
        m_plan.push_back({Kind::Folder, source, place});
        for (const fs::directory_entry& entry : fs::directory_iterator(source))
            addEntry(entry, place / entry.path().filename());
        m_trail.pop_back();
    }

    CopyPlan takePlan() { return std::move(m_plan); }

private:
    void addEntry(const fs::directory_entry& entry, const fs::path& place)
    {
        if (PendingFiles::isTemporary(entry.path().filename()) || isJournal(entry.path()))
            return;
        if (isDataFile(entry.path()))
            m_plan.push_back({Kind::DataFile, entry.path(), place, qint64(entry.file_size())});
        else if (entry.is_symlink() && !isToBeFollowed(entry.path()))
            m_plan.push_back({Kind::Link, entry.path(), place});
        else if (entry.is_directory())
            addFolder(entry.path(), place);
        else if (entry.is_regular_file())
            m_plan.push_back({Kind::File, entry.path(), place, qint64(entry.file_size())});
    }

    bool isDataFile(const fs::path& path) const
    {
        return path.parent_path() == m_plan.front().source && !dataFileConnection(path).isEmpty() &&
               fs::is_regular_file(path);
    }

    // It belongs to the data file as it is this moment, and would spoil the copy, which needs none.
    bool isJournal(const fs::path& path) const
    {
        const std::string& name = path.native();
        return name.ends_with(journalSuffix) && isDataFile(name.substr(0, name.size() - journalSuffix.size()));
    }

    // Never to where the way comes from, or it would have no end.
    bool isToBeFollowed(const fs::path& link) const
    {
        std::error_code leadsNowhere;
        const fs::path end = fs::canonical(link, leadsNowhere);
        return !leadsNowhere && isInside(end, m_root) && std::ranges::find(m_trail, end) == m_trail.end();
    }

    fs::path m_root;
    std::vector<fs::path> m_trail;
    CopyPlan m_plan;
};

} // namespace

CopyPlan planCopy(const fs::path& programFolder, const fs::path& name, const fs::path& destination)
{
    try {
        Planner planner(programFolder / name);
        planner.addFolder(programFolder / name, destination / name);
        return planner.takePlan();
    } catch (const fs::filesystem_error& error) {
        throw copyError(error.code().value(), error.path1());
    }
}

QString dataFileConnection(const fs::path& dataFile)
{
    const fs::path folder = dataFile.parent_path();
    if (folder.filename() != "data")
        return QString();
    const QString programFolder = QFile::decodeName(folder.parent_path().c_str());
    if (dataFile.filename() == "dB.mdb")
        return modMain::mainConnectionString(programFolder);
    if (dataFile.filename() == "BU.mdb")
        return modMain::backupConnectionString(programFolder);
    return QString();
}

} // namespace backup
