#include "dataFile.h"

#include "store/connectionStrings.h"

namespace backup {

const std::array<DataFile, 3> dataFiles{{
    {"dB.mdb", false, modMain::mainConnectionString, [] { return std::span<const store::Table>(store::mainTables()); }},
    {"BU.mdb", false, modMain::backupConnectionString, [] { return std::span(&store::backupTable(), 1); }},
    {"open.mdb", true, modMain::openJobsConnectionString, [] { return std::span(&store::openJobsTable(), 1); }},
}};

} // namespace backup
