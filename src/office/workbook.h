#pragma once

#include "ui/longWork.h"

#include <QDateTime>
#include <QString>

#include <variant>
#include <vector>

namespace office {

/// What a cell holds: nothing, a number (a date and time is one, see dateNumber()), or a text, which stays a text
/// whatever it begins with.
using Cell = std::variant<std::monostate, double, QString>;

/// Cells from one on (counted from 0) to the right and down. All rows are equally long.
struct Block {
    int column = 0;
    int row = 0;
    std::vector<std::vector<Cell>> rows{};
    bool isBold = false;
};

/// How a whole column shows its values: a format code such as "#,##0" or, for texts, "@", and on which side.
struct ColumnFormat {
    int column;
    QString code;
    Qt::AlignmentFlag side = Qt::AlignLeft;
};

/// What a sheet of a workbook gets beyond what its template has.
struct Filling {
    QString sheet;
    std::vector<Block> blocks;
    std::vector<ColumnFormat> formats{};
    /// What the columns get their widths from, besides the first block: a few rows as wide as the widest of all,
    /// because measuring all takes longer than all the rest. Whatever stands there later must cover it. Empty: the
    /// columns keep their widths.
    Block widest{};
    /// Written when the columns have their widths: a long title runs on over its neighbours.
    std::vector<Block> titles{};
};

/// A date and time as sheets count it: days since 12/30/1899.
double dateNumber(const QDateTime& value);

/// Makes a workbook (.xls) from a template workbook: a filled copy, which replaces an earlier file of that name whole
/// or not at all. `shown` has a step for each row of the blocks. Throws FileNotFound without the template, PathNotFound
/// without the folder, PathFileAccess when the template cannot be opened or the copy not be written, DiskFull,
/// SubscriptOutOfRange when the template has no such sheet, Cancelled when it was (then nothing was made), 429 when the
/// suite cannot be had.
void makeWorkbook(const QString& templateFile, const Filling& filling, const QString& fileName,
                  const ui::LongWork& shown = {});

/// As the file that it is, or as a new document that has no file yet.
enum class ShowAs { File, NewDocument };

/// Shows a workbook in a window that outlives the program. Throws PathFileAccess when it cannot be opened, and 429.
void showWorkbook(const QString& fileName, ShowAs as);

/// Prints a workbook on the default printer; false when there is none. Throws as showWorkbook() does.
bool printWorkbook(const QString& fileName, int copies);

} // namespace office
