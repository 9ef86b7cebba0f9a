#include "dataFile.h"

#include "store/connectionStrings.h"

namespace backup {

const std::array<DataFile, 2> dataFiles{{
    {"dB.mdb", modMain::mainConnectionString, [] { return std::span<const store::Table>(store::mainTables()); }},
    {"BU.mdb", modMain::backupConnectionString, [] { return std::span(&store::backupTable(), 1); }},
}};

} // namespace backup
