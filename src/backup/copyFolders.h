#pragma once

#include "copyProgress.h"

#include <QString>

namespace backup {

/// Copies the folders reports, data and templates of a program folder, in this order, into a folder that is there, over
/// what it has of them; nothing is removed from it. A file of the copy is always whole, the old one or the new one,
/// whatever ends this early, and the folders before it stay copied. Throws RuntimeError, or CopyStopped.
void copyFolders(const QString& programFolder, const QString& destination, CopyProgress& progress);

} // namespace backup
