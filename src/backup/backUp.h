// Of the shared routines (modMain), the backup: on its day, and at once.
#pragma once

#include <QString>

namespace modMain {

/// Copies the program's folders reports, data and templates into an existing folder. The path may use either separator;
/// it is changed to the platform's, with one at its end. Shows its errors itself. True when all three were copied.
bool BackUpFolders(QString& path);

/// Makes the scheduled backup if it is due, shows whether it succeeded and ends the program. Returns only after an
/// error, which it has shown.
void GetBackUpInfo();

} // namespace modMain
