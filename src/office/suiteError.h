#pragma once

#include "values/runtimeError.h"

namespace office {

/// The suite is not installed or does not start: 429, with the packages to install.
values::RuntimeError suiteMissing();

/// The suite was lost (killed, hung) twice in a row: 429.
values::RuntimeError suiteLost();

/// A file that the suite could not open, or that could not be written: 75.
values::RuntimeError accessError(const QString& fileName, const QString& advice);

} // namespace office
