#include "storedJob.h"

#include "jobStatements.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"

namespace workspace {

std::optional<StoredJob> readStoredJob(qint32 jobId)
{
    const store::RowSet rows = store::readRows(modMain::DBConnString, selectStoredJob(jobId));
    if (rows.rowCount() == 0)
        return std::nullopt;
    StoredJob job{rows.at(0, 2).toText(), rows.at(0, 1).toInteger(), rows.at(0, 0).toDate(), {}};
    for (int column = 0; column < rows.columnCount(); ++column)
        job.texts << (rows.at(0, column).isNull() ? QString() : rows.at(0, column).toText());
    return job;
}

} // namespace workspace
