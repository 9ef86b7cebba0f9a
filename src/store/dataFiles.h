#pragma once

#include <QString>

namespace store {

/// Makes the data files of a new program in the folder `data` of a program folder: dB.mdb with empty tables, BU.mdb
/// with its one row. Never touches a file that exists. Only the owner can read the files and the folder. Throws
/// RuntimeError.
void createDataFiles(const QString& programFolder);

/// Makes open.mdb, empty, in the same way.
void createOpenJobsFile(const QString& programFolder);

} // namespace store
