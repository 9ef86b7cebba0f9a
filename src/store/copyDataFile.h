#pragma once

#include "schema.h"

#include <QString>

#include <span>

namespace store {

/// Copies a data file, page by page through the engine, into an empty file, which then opens with the same password
/// (connectionStringOf()). What another program is writing is waited for. A damaged file, or one without these tables,
/// is refused, also when it shows only in the copy. Not yet flushed to the disk. Throws RuntimeError.
void copyDataFile(const QString& connectionString, const QString& emptyFile, std::span<const Table> tables);

} // namespace store
