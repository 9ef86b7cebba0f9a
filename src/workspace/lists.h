#pragma once

#include <QDateTime>
#include <QString>

#include <vector>

namespace workspace {

enum class ColumnLook { Text, Number, Rate, Amount };

struct GridColumn {
    QString caption;
    int width; ///< in twips
    ColumnLook look = ColumnLook::Text;
};

/// What the rows of a list are, and so what a click on one opens.
enum class RecordKind { Client, Type, Job, Template };

/// One of the workspace's lists: what it is called, whose rows it shows and how the grid shows them.
struct List {
    RecordKind kind;
    QString mode;  ///< the word by which it is asked for
    QString title; ///< of the form
    QString table; ///< its rows are told apart by the id in the first column
    int width;     ///< of the grid, in twips
    std::vector<GridColumn> columns;
};

const List& listOf(RecordKind kind);

/// The list that ShowList() can be asked for by this word, in this case; null for any other. The templates are listed
/// by their manager only.
const List* findList(const QString& mode);

/// The statement that reads a list. Only the jobs are those of a day.
QString selectRows(const List& list, const QDateTime& day);

} // namespace workspace
