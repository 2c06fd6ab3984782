#pragma once

#include <cstddef>
#include <initializer_list>
#include <limits>
#include <vector>

#include "Simulation/GridField.hpp"

namespace Merivane::Tests {

inline constexpr double NoValue = std::numeric_limits<double>::quiet_NaN();

/// A field with its grid, 1 m from node to node, node (0, 0) in the origin.
struct SmallField {
    Simulation::CalculationGrid grid;
    std::vector<double> values;

    /// The rows as one sees them in a plan, the top one first, all of the same length.
    SmallField(std::initializer_list<std::vector<double>> rowsFromTop) {
        grid.stepX = 1.0;
        grid.stepY = 1.0;
        grid.rows = static_cast<std::int32_t>(rowsFromTop.size());
        for (const std::vector<double>& row : rowsFromTop) {
            grid.columns = static_cast<std::int32_t>(row.size());
            values.insert(values.begin(), row.begin(), row.end());
        }
    }

    Simulation::GridField Field() const { return {&grid, values}; }
};

} // namespace Merivane::Tests
