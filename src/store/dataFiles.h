#pragma once

#include <QString>

namespace store {

/// Makes the data files of a new program in the folder `data` of a program folder: dB.mdb with empty tables, BU.mdb
/// with its one row. A file that exists is never touched. Files and folder are for their owner only. Throws
/// RuntimeError.
void createDataFiles(const QString& programFolder);

} // namespace store
