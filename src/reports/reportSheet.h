#pragma once

#include "statements.h"

#include "office/workbook.h"
#include "store/rowSet.h"

namespace reports {

enum class Kind { Summary, Detail };

/// The most rows that a workbook of this kind (.xls) has room for below the headings.
inline constexpr int maximumRows = 65'536 - 3;

/// Makes the sheet of a report: the title and a line of text at the top, the headings in bold in row 3, and below them
/// the rows, with numbers as numbers and dates as dates. A detail report begins with the reference in column A, a
/// summary in column B.
office::SheetContent makeReportSheet(Kind kind, const QString& title, const QString& text,
                                     const std::vector<Column>& columns, const store::RowSet& rows);

} // namespace reports
