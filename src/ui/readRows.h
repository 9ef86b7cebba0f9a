#pragma once

#include "store/rowSet.h"

namespace ui {

/// All rows that a select gives of the main data file, read under the wait cursor: there may be many. Throws what
/// reading throws.
store::RowSet readRows(const QString& statement);

} // namespace ui
