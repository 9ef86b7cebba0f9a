#pragma once

#include "values/runtimeError.h"

#include <filesystem>

namespace backup {

/// The error for an errno on this file or folder, described so that the user knows what to do about it.
values::RuntimeError copyError(int systemError, const std::filesystem::path& path);

/// The same for the errno of the call that has just failed.
values::RuntimeError lastCopyError(const std::filesystem::path& path);

/// The error of a destination that is part of what is backed up.
values::RuntimeError copyIntoItselfError(const std::filesystem::path& destination);

} // namespace backup
