#include "Simulation/PointStatistics.hpp"

#include <algorithm>
#include <cstddef>

namespace Merivane::Simulation {

PointStatistics ComputeStatistics(const std::vector<double>& values) {
    PointStatistics statistics;
    if (values.empty()) {
        return statistics;
    }
    double sum = 0.0;
    for (const double value : values) {
        sum += value;
    }
    const auto [smallest, largest] = std::minmax_element(values.begin(), values.end());
    statistics.count = values.size();
    statistics.mean = sum / static_cast<double>(values.size());
    statistics.minimum = *smallest;
    statistics.maximum = *largest;
    if (statistics.mean > 0.0) {
        statistics.uniformity = statistics.minimum / statistics.mean;
    }
    return statistics;
}

PointStatistics TaskStatistics(const CalculationGrid& grid, const std::vector<double>& values) {
    const std::vector<bool> selection = TaskSelection(grid);
    std::vector<double> taken;
    for (std::size_t i = 0; i < std::min(values.size(), selection.size()); ++i) {
        if (selection[i]) {
            taken.push_back(values[i]);
        }
    }
    return ComputeStatistics(taken);
}

} // namespace Merivane::Simulation
