#pragma once

#include <QString>

struct sqlite3;

/// The engine's own calls, with the settings of the program and nothing around them: the baseline.
sqlite3* bareOpen(const QString& programFolder);
void bareClose(sqlite3* database);
/// Runs a statement and reads every value of every row. Returns the number of rows, -1 when none held anything.
int bareRun(sqlite3* database, const char* statement);
