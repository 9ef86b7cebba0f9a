#pragma once

#include <QString>

#include <filesystem>
#include <vector>

namespace backup {

/// One thing to copy.
struct CopyStep {
    enum class Kind { Folder, File, DataFile, Link };

    Kind kind;
    std::filesystem::path source;
    std::filesystem::path place;
    qint64 bytes = 0;
};

using CopyPlan = std::vector<CopyStep>;

/// Everything in a folder of the program folder, a folder before what it holds. A link is followed where it leads to
/// something in the same folder; another one is copied as the link that it is. Throws RuntimeError.
CopyPlan planCopy(const std::filesystem::path& programFolder, const std::filesystem::path& name,
                  const std::filesystem::path& destination);

/// How to open a data file of the program folder that has this name.
QString dataFileConnection(const std::filesystem::path& dataFile);

} // namespace backup
