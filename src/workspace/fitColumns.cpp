#include "fitColumns.h"

#include <algorithm>
#include <numeric>

namespace workspace {

std::vector<int> fitColumns(const std::vector<ColumnSpan>& columns, int restColumn, int available)
{
    std::vector<int> widths;
    int slack = 0;
    for (const ColumnSpan& column : columns) {
        widths.push_back(column.wanted);
        slack += column.wanted - column.minimum;
    }
    const ColumnSpan& restSpan = columns.at(static_cast<std::size_t>(restColumn));
    int& rest = widths.at(static_cast<std::size_t>(restColumn));
    const int missing = std::accumulate(widths.begin(), widths.end(), 0) - available;
    rest = std::max(rest - missing, restSpan.minimum);
    const int stillMissing = missing - (restSpan.wanted - rest);
    const int othersSlack = slack - (restSpan.wanted - restSpan.minimum);
    if (othersSlack == 0)
        return widths;
    const double share = std::min(1.0, double(stillMissing) / othersSlack);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (&widths[i] != &rest)
            widths[i] -= static_cast<int>(share * (columns[i].wanted - columns[i].minimum));
    }
    return widths;
}

} // namespace workspace
