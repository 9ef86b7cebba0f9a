#pragma once

#include "reportSheet.h"

class QWidget;

namespace reports {

/// What becomes of a report: opened as a new document, printed, saved, or saved and printed.
enum class Mode { Open, Print, Save, Both };

/// All that a report is made from.
struct Request {
    Kind kind;
    QString title;
    Mode mode;
    QString statement;
    std::vector<Column> columns;
    QString periodText;
    /// Printed copies; read for Both only.
    int copies;
};

/// Reads the rows and makes the workbook; says so when there are no rows or too many. A long report
/// says how far it is and can be cancelled. Throws what reading and making a workbook throw; then no file is left.
void FillReport(const Request& request);

} // namespace reports
