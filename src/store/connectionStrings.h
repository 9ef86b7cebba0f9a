// store: the encrypted data files: how they are opened, what they contain, and the SQL in which the program
// addresses them. The connection strings are shared (modMain).
#pragma once

#include <QString>

namespace modMain {

/// The path and password of the main data file; empty until setConnectionStrings().
extern QString DBConnString;

/// The same for the file with the backup settings.
extern QString BUConnString;

/// The connection string of the main data file in a program folder (no separator at its end).
QString mainConnectionString(const QString& programFolder);

/// The connection string of the backup-settings file in a program folder.
QString backupConnectionString(const QString& programFolder);

/// The connection string of the file with the jobs that were left open, in a program folder.
QString openJobsConnectionString(const QString& programFolder);

/// Sets both, and ProgramFolder, from the program folder (no separator at its end). Called once at start-up.
void setConnectionStrings(const QString& programFolder);

} // namespace modMain
