#pragma once

#include <vector>

namespace workspace {

/// The widths of a column, in pixels.
struct ColumnSpan {
    int wanted;
    int minimum;
};

/// The widths of all columns for a grid that has this much room: what is left goes to the column that takes the rest;
/// what is missing is taken from that column first, then from the others in proportion to what they can give. No column
/// becomes narrower than its minimum.
std::vector<int> fitColumns(const std::vector<ColumnSpan>& columns, int restColumn, int available);

} // namespace workspace
