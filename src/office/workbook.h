#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace office {

/// Texts for the cells of a sheet, from one cell (counted from 0) to the right and down. A text stays a text, whatever
/// it begins with.
struct Block {
    QString sheet;
    int column;
    int row;
    std::vector<QStringList> rows;
};

/// Makes a workbook (.xls) from a template workbook: a copy with the block filled in, which replaces an earlier file of
/// that name whole or not at all. An empty block leaves the template's sheet as it is. Throws FileNotFound without the
/// template, PathFileAccess when it cannot be opened or the copy not be written, 429 when the suite cannot be had.
void makeWorkbook(const QString& templateFile, const Block& block, const QString& fileName);

/// Shows a workbook in a window that outlives the program, and prints it on the default printer. False when it could
/// not be printed. Throws as makeWorkbook() does.
bool showAndPrintWorkbook(const QString& fileName);

} // namespace office
