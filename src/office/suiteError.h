#pragma once

#include "values/runtimeError.h"

#include <QFileDevice>

namespace office {

/// The suite is not installed or does not start: 429, with the packages to install.
values::RuntimeError suiteMissingError();

/// The suite died (killed or crashed) twice in a row: 429, or 61 when the disk of its temporary files is full.
values::RuntimeError suiteLostError();

/// The suite took too long: 429.
values::RuntimeError suiteSlowError();

/// A file, or a file in this folder, could not be written: 61 when the disk is full, else 75.
values::RuntimeError writeError(const QString& path);

/// The same for a file that we write ourselves: its device knows whether the disk is full.
values::RuntimeError writeError(const QFileDevice& device, const QString& fileName);

/// A file could not be opened or written: 75, with this advice.
values::RuntimeError accessError(const QString& fileName, const QString& advice);

} // namespace office
