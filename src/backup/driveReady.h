#pragma once

#include <QString>

namespace backup {

/// Whether the disk for this folder is mounted: without it, the files would be written to the system's own disk below
/// the mount point. Never true for a drive letter (`X:/`), because this system has none.
bool isDriveReady(const QString& folder);

} // namespace backup
