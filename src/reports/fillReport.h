#pragma once

#include "reportSheet.h"

class QWidget;

namespace reports {

/// What is done with a report: it is opened as a new document, printed, saved, or saved and printed.
enum class Mode { Open, Print, Save, Both };

/// All that a report is made from.
struct Request {
    Kind kind;
    QString title;
    Mode mode;
    QString statement;
    std::vector<Column> columns;
    QString periodText;
    /// The number of printed copies, used for Both only.
    int copies;
};

/// Starts the suite ahead, so that it is ready by the time that somebody has chosen what to report. Returns at once.
void prepareReports();

/// Reads the rows and makes the workbook; shows a message instead when there are no rows or too many. A long report
/// shows its progress and can be cancelled. Throws what reading and making a workbook throw; then no file is left.
void FillReport(const Request& request);

} // namespace reports
