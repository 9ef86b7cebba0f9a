#pragma once

#include "store/schema.h"

#include <QString>

#include <array>
#include <span>
#include <string_view>

namespace backup {

/// One of the data files. Without those that may not be missing a backup is worth nothing.
struct DataFile {
    std::string_view name;
    bool mayBeMissing;
    QString (*connectionString)(const QString& programFolder);
    std::span<const store::Table> (*tables)();
};

/// The data files of the folder `data`.
extern const std::array<DataFile, 3> dataFiles;

} // namespace backup
