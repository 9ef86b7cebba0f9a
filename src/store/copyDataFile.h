#pragma once

#include <QString>

namespace store {

/// Copies a data file, page by page through the engine, into an empty file, which then opens with the same password
/// (connectionStringOf()). What another program is writing is waited for, and a damaged file is not copied. Not yet
/// flushed to the disk. Throws RuntimeError.
void copyDataFile(const QString& connectionString, const QString& emptyFile);

} // namespace store
