#pragma once

#include "values/runtimeError.h"

#include <QFileDevice>

namespace office {

/// The suite is not installed or does not start: 429, with the packages to install.
values::RuntimeError suiteMissing();

/// The suite was lost (killed, hung) twice in a row: 429.
values::RuntimeError suiteLost();

/// A file that the suite could not open, or that could not be written: 75.
values::RuntimeError accessError(const QString& fileName, const QString& advice);

/// A file that could not be written: 61 when there is next to no room on its disk, else 75.
values::RuntimeError notWritten(const QString& fileName);

/// As notWritten(), for a file of ours: the device that failed knows whether its disk is full.
values::RuntimeError writeError(const QFileDevice& device, const QString& fileName);

} // namespace office
