#pragma once

#include <QDateTime>
#include <QString>

#include <vector>

namespace workspace {

enum class ColumnLook { Text, Day, Number, Rate, Amount };

/// Whose id a column holds.
enum class NameOf { Nothing, Client, Type };

struct GridColumn {
    QString caption;
    int width; ///< in twips
    ColumnLook look = ColumnLook::Text;
    NameOf nameOf = NameOf::Nothing;
};

/// What the rows of a list are; a click opens the form for that kind.
enum class RecordKind { Client, Type, Job, Template };

/// One of the workspace's lists: its names, its table and how the grid shows its rows.
struct List {
    RecordKind kind;
    QString mode;  ///< its name in ShowList()
    QString title; ///< of the form
    QString table; ///< with the id in the first column
    std::vector<GridColumn> columns;
    int restColumn; ///< takes the room that the others leave
};

const List& listOf(RecordKind kind);

/// The list with this name for ShowList(), in the same case; null for any other name. The list of templates is not
/// among them: only the template manager shows it.
const List* findList(const QString& mode);

/// The statement that reads a list. The day matters only for jobs.
QString selectRows(const List& list, const QDateTime& day);

} // namespace workspace
