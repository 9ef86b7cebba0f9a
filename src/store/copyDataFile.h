#pragma once

#include "schema.h"

#include <QString>

#include <span>

namespace store {

/// Copies a data file, page by page through the engine, into an empty file, which then opens with the same password
/// (replaceDataSource()). Waits for a program that is writing to it. Refuses a file that is damaged or lacks one of
/// these tables, even if only the copy shows it. Does not flush the copy to the disk. Throws RuntimeError.
void copyDataFile(const QString& connectionString, const QString& emptyFile, std::span<const Table> tables);

} // namespace store
