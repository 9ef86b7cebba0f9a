#pragma once

#include <QString>

struct sqlite3;

/// The baseline: the engine's own calls with the settings of the program, without any of the program's code.
sqlite3* openBare(const QString& programFolder);
void closeBare(sqlite3* database);
/// Runs a statement and reads every value of every row. Returns the number of rows, -1 when none held anything.
int runBare(sqlite3* database, const char* statement);
