#pragma once

#include "ui/longWork.h"

#include <QDateTime>
#include <QString>

#include <variant>
#include <vector>

namespace office {

/// The value of a cell: nothing, a number (also for a date and time, see dateNumber()), or a text, which is never read
/// as a formula.
using Cell = std::variant<std::monostate, double, QString>;

/// A rectangle of cells with its top left corner at this column and row, counted from 0. All rows are equally long.
struct Block {
    int column = 0;
    int row = 0;
    std::vector<std::vector<Cell>> rows{};
    bool isBold = false;
};

/// How a whole column shows its values: a format code such as "#,##0", or "@" for texts, and the alignment.
struct ColumnFormat {
    int column;
    QString code;
    Qt::AlignmentFlag side = Qt::AlignLeft;
};

/// What is written into a sheet of a template workbook.
struct SheetContent {
    QString sheet;
    std::vector<Block> blocks;
    std::vector<ColumnFormat> formats{};
    /// The columns get their widths from the first block and from this one: a few rows as wide as the widest of all,
    /// because measuring every row takes longer than all other work. A later block must overwrite it. Empty: the
    /// columns keep the widths of the template.
    Block widest{};
    /// Written after the columns have got their widths, so that a long title does not widen its column.
    std::vector<Block> titles{};
};

/// A date and time as a number of days since 12/30/1899, as sheets store it.
double dateNumber(const QDateTime& value);

/// Makes a workbook (.xls) as a filled copy of a template workbook. An earlier file of that name is replaced completely
/// or not at all. `shown` has a step for each row of the blocks. Throws FileNotFound without the template, PathNotFound
/// without the folder, PathFileAccess when the template cannot be opened or the copy cannot be written, DiskFull,
/// SubscriptOutOfRange when the template has no such sheet, Cancelled (then nothing was made), and 429 when the suite
/// is not available.
void makeWorkbook(const QString& templateFile, const SheetContent& content, const QString& fileName,
                  const ui::LongWork& shown = {});

/// Gets the suite ready to make workbooks from this template, beside everything else; see prepareSuite().
void prepareWorkbooks(const QString& templateFile);

/// Whether a workbook is shown as its file, or as a new document without a file.
enum class ShowAs { File, NewDocument };

/// Shows a workbook in a window that stays open when the program ends. Throws PathFileAccess when it cannot be opened,
/// and 429.
void showWorkbook(const QString& fileName, ShowAs as);

/// Prints a workbook on the default printer; false when there is none. Throws as showWorkbook() does.
bool printWorkbook(const QString& fileName, int copies);

} // namespace office
