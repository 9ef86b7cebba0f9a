// store: the two encrypted data files: how they are opened, what they hold, and the SQL that the program speaks to
// them. The connection strings are shared (modMain).
#pragma once

#include <QString>

namespace modMain {

/// Where the main data file is and how it is opened; empty until setConnectionStrings().
extern QString DBConnString;

/// The same for the file with the backup settings.
extern QString BUConnString;

/// The connection string of the main data file in a program folder (no separator at its end).
QString mainConnectionString(const QString& programFolder);

/// The connection string of the backup-settings file in a program folder.
QString backupConnectionString(const QString& programFolder);

/// Sets both, and ProgramFolder, from the program folder (no separator at its end). Called once at start-up.
void setConnectionStrings(const QString& programFolder);

} // namespace modMain
