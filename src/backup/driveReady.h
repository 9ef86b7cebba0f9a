#pragma once

#include <QString>

namespace backup {

/// Whether what is to hold the folder is there: a mount point with nothing mounted on it takes files, too, but they
/// would land on the wrong disk. A drive letter (`X:/`) is a drive that this system does not have.
bool isDriveReady(const QString& folder);

} // namespace backup
