#pragma once

#include <QString>

namespace app {

/// The program folder of a program whose executable lies in this folder (no separator at its end).
///
/// It is the executable's own folder, except for an installed program, whose files for all users lie beside the
/// installation and not with the executable: each user of that one has the folder `penwright` among his data
/// (XDG_DATA_HOME), which is made at the first start. In a folder that is there already, nothing is made anew; only
/// templates that no earlier version brought are added. Throws RuntimeError when the folder cannot be made.
QString findProgramFolder(const QString& executableFolder);

} // namespace app
