#pragma once

#include "copyProgress.h"

#include <filesystem>
#include <vector>

namespace backup {

struct DataFile;

/// One thing to copy.
struct CopyStep {
    enum class Kind { Folder, File, DataFile, Link };

    Kind kind;
    std::filesystem::path source;
    std::filesystem::path place;
    qint64 bytes = 0;
    const DataFile* dataFile = nullptr;    // only for a data file
    std::filesystem::path linkTarget = {}; // only for a link
};

using CopyPlan = std::vector<CopyStep>;

/// Plans copying one of the program's folders with everything in it, each folder before its contents. The data files of
/// `data` are planned even if they are missing, where they may not be. A link to a file inside the folder is followed;
/// a link to a folder inside becomes a link to that folder's copy, so that nothing is copied twice; any other link is
/// copied unchanged. Counts files and bytes, and stops when asked to. Throws RuntimeError or CopyStopped.
CopyPlan planCopy(const std::filesystem::path& programFolder, const std::filesystem::path& name,
                  const std::filesystem::path& destination, CopyProgress& progress);

} // namespace backup
