#include "readRows.h"

#include "waitCursor.h"

#include "store/connectionStrings.h"
#include "store/recordset.h"

namespace ui {

store::RowSet readRows(const QString& statement)
{
    const WaitCursor wait;
    return store::readRows(modMain::DBConnString, statement);
}

} // namespace ui
