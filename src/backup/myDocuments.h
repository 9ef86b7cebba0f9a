#pragma once

#include <QString>

namespace modMain {

/// The user's documents folder, without a separator at its end; empty when the desktop names none.
QString GetMyDocumentsLocation();

} // namespace modMain

namespace backup {

/// The folder "PWR Backup" in the user's documents folder.
QString defaultFolder();

} // namespace backup
