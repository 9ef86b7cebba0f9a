#pragma once

#include "copyProgress.h"

#include <filesystem>

namespace backup {

/// Copies a file under a name that is not taken; only its owner may read the copy. False when the file has gone
/// meanwhile, and nothing was made. Throws RuntimeError or CopyStopped, and leaves to the caller what it has made.
bool copyFile(const std::filesystem::path& source, const std::filesystem::path& copy, CopyProgress& progress);

/// Makes an empty file that only its owner may read, under a name that is not taken.
void createPrivateFile(const std::filesystem::path& file);

/// Gives the copy of a file or folder the times and permissions of the original, as far as its disk knows such.
void keepTimesAndPermissions(const std::filesystem::path& original, const std::filesystem::path& copy);

} // namespace backup
