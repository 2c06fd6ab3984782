#pragma once

#include <cstdint>
#include <vector>

#include "Simulation/CalculationGrid.hpp"

namespace Merivane::Simulation {

/// What is reported of a set of illuminances [lux]; all 0 for an empty set.
struct PointStatistics {
    std::uint64_t count = 0;
    double mean = 0.0;       ///< Em
    double minimum = 0.0;    ///< Emin
    double maximum = 0.0;    ///< Emax
    double uniformity = 0.0; ///< U0 = Emin / Em; 0 when Em is not above 0

    bool operator==(const PointStatistics&) const = default;
};

/// Statistics of all values.
PointStatistics ComputeStatistics(const std::vector<double>& values);

/// Statistics over the task area only; `values` in `ActivePoints` order. Stops where the values or
/// the points run out.
PointStatistics TaskStatistics(const CalculationGrid& grid, const std::vector<double>& values);

} // namespace Merivane::Simulation
