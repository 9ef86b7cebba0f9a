#pragma once

#include "copyProgress.h"

#include <filesystem>

namespace backup {

/// Copies a file to a name that does not exist yet; only its owner may read the copy. False, with nothing made, when
/// the file no longer exists. Throws RuntimeError or CopyStopped; the caller then removes the unfinished copy.
bool copyFile(const std::filesystem::path& source, const std::filesystem::path& copy, CopyProgress& progress);

/// Whether a copy made earlier is still the same as its source: in size, time, permissions, and because nothing about
/// the source has changed since the copy was made.
bool isCopied(const std::filesystem::path& source, const std::filesystem::path& copy);

/// Makes an empty file that only its owner may read, with a name that does not exist yet.
void createPrivateFile(const std::filesystem::path& file);

/// Gives the copy of a file or folder the times and permissions of the original, as far as its disk can store them.
void keepTimesAndPermissions(const std::filesystem::path& original, const std::filesystem::path& copy);

} // namespace backup
