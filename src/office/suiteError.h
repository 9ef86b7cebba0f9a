#pragma once

#include "values/runtimeError.h"

#include <QFileDevice>

namespace office {

/// The suite is not installed or does not start: 429, with the packages to install.
values::RuntimeError suiteMissing();

/// The suite was lost (killed, crashed) twice in a row: 429, or 61 when the disk is full that it works on.
values::RuntimeError suiteLost();

/// The suite took too long: 429.
values::RuntimeError suiteSlow();

/// A file, or a folder's files, that could not be written: 61 when the disk is full, else 75.
values::RuntimeError writeError(const QString& path);

/// The same for a file of ours: the device that failed knows whether its disk is full.
values::RuntimeError writeError(const QFileDevice& device, const QString& fileName);

/// A file that the suite could not open, or that could not be written: 75.
values::RuntimeError accessError(const QString& fileName, const QString& advice);

} // namespace office
