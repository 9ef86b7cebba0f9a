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
    const DataFile* dataFile = nullptr; // which one it is
    std::filesystem::path end = {};     // where a link leads
};

using CopyPlan = std::vector<CopyStep>;

/// Everything in a folder of the program folder, a folder before what it holds; the data files of `data` whether they
/// are there or not. A link to a file in the same folder is followed; one to a folder in it leads to the copy of that
/// folder, so that nothing is copied twice; any other is copied as it is. Counts what there is to do, and looks on the
/// way whether to stop. Throws RuntimeError or CopyStopped.
CopyPlan planCopy(const std::filesystem::path& programFolder, const std::filesystem::path& name,
                  const std::filesystem::path& destination, CopyProgress& progress);

} // namespace backup
