#pragma once

#include <cstddef>
#include <vector>

namespace Merivane::Simulation {

/// A table of numbers that gives the sum over any rectangle of it at once (summed-area table).
struct SummedTable {
    int rows = 0;
    int columns = 0;
    /// (rows + 1) x (columns + 1): the sum over all rows and columns before.
    std::vector<double> sums;
};

/// `value(row, column)` is asked once for each entry.
template <class Value> SummedTable BuildSummedTable(int rows, int columns, Value value) {
    SummedTable table{rows, columns, {}};
    const auto width = static_cast<std::size_t>(columns) + 1;
    table.sums.assign((static_cast<std::size_t>(rows) + 1) * width, 0.0);
    std::size_t at = width;
    for (int row = 0; row < rows; ++row) {
        double inRow = 0.0;
        ++at;
        for (int column = 0; column < columns; ++column, ++at) {
            inRow += value(row, column);
            table.sums[at] = table.sums[at - width] + inRow;
        }
    }
    return table;
}

/// Sum over `height` rows from `row` and `width` columns from `column`, all inside the table.
inline double SumOver(const SummedTable& table, int row, int height, int column, int width) {
    const auto at = [&table](int r, int c) {
        return table
            .sums[static_cast<std::size_t>(r) * (static_cast<std::size_t>(table.columns) + 1) +
                  static_cast<std::size_t>(c)];
    };
    return at(row + height, column + width) - at(row, column + width) -
           (at(row + height, column) - at(row, column));
}

} // namespace Merivane::Simulation
