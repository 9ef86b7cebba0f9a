#pragma once

#include "store/schema.h"

#include <QString>

#include <array>
#include <span>
#include <string_view>

namespace backup {

/// One of the data files, without which a backup is worth nothing.
struct DataFile {
    std::string_view name;
    QString (*connectionString)(const QString& programFolder);
    std::span<const store::Table> (*tables)();
};

/// The two data files of the folder `data`.
extern const std::array<DataFile, 2> dataFiles;

} // namespace backup
