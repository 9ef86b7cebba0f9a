#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace workspace {

enum class ColumnLook { Text, Number, Currency };

struct GridColumn {
    QString caption;
    int width; ///< in twips
    ColumnLook look = ColumnLook::Text;
};

/// How the grid shows one of the lists.
struct GridLayout {
    QString table; ///< whose rows the list shows, by the id in the first column
    int width;     ///< of the grid, in twips
    std::vector<GridColumn> columns;
};

const GridLayout& clientLayout();
const GridLayout& typeLayout();
const GridLayout& jobLayout();
const GridLayout& templateLayout();

} // namespace workspace
