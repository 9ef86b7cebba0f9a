#pragma once

#include "values/runtimeError.h"

#include <filesystem>

namespace backup {

/// What the system's error (an errno) on a file or folder means, and what the user can do about it.
values::RuntimeError copyError(int systemError, const std::filesystem::path& path);

/// The error of a call that has just failed.
values::RuntimeError lastCopyError(const std::filesystem::path& path);

/// A destination that is part of what is backed up.
values::RuntimeError copyIntoItself(const std::filesystem::path& destination);

} // namespace backup
