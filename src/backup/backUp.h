// Of the shared routines (modMain), the backup: on its day, and at once.
#pragma once

#include <QString>

namespace modMain {

/// Copies the program's folders reports, data and templates into a folder that is there. The path may have either
/// separator; it comes back with the platform's, and one at its end. What goes wrong is shown here. True when all three
/// were copied.
bool BackUpFolders(QString& path);

/// Makes the scheduled backup if it is due, says how it went and ends the program. Returns only when it stopped on an
/// error of its own, which it has shown.
void GetBackUpInfo();

} // namespace modMain
