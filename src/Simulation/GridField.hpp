#pragma once

#include <vector>

#include "Simulation/CalculationGrid.hpp"

namespace Merivane::Simulation {

/// A grid and a value at each of its nodes, for contouring. The grid is not owned and must outlive
/// the field.
struct GridField {
    const CalculationGrid* grid = nullptr;
    std::vector<double> values; ///< columns x rows, index j * columns + i; NaN = no value
};

/// The i-th value goes to the i-th calculation point, every other node is NaN. Stops at whichever
/// runs out first.
GridField MakeGridField(const CalculationGrid& grid, const std::vector<double>& values);

/// Value at `point`: bilinear where the four nodes around it are active, else weighted by inverse
/// squared distance over a growing window. `field` is the whole-grid array, NaN at inactive nodes.
/// 0 when the grid has no active node.
double SampleGrid(const CalculationGrid& grid, const std::vector<double>& field, Point2D point);

} // namespace Merivane::Simulation
