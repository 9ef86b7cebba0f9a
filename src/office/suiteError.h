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

/// The disk that holds the file is full: 61.
values::RuntimeError diskFull(const QString& fileName);

/// What to say of a file when writing to this device failed: 61 when its disk is full, else 75.
values::RuntimeError writeError(const QFileDevice& device, const QString& fileName);

/// A file that could not be written: 75.
values::RuntimeError notWritten(const QString& fileName);

} // namespace office
