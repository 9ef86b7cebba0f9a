// Of the shared routines (modMain), the documents folder. In this room because only backups go there.
#pragma once

#include <QString>

namespace modMain {

/// The user's documents folder, without a separator at its end; empty when the user has none.
QString GetMyDocumentsLocation();

} // namespace modMain

namespace backup {

/// The folder "PWR Backup" in the user's documents folder; empty when there is none.
QString defaultFolder();

} // namespace backup
