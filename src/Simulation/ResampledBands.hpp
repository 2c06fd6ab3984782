#pragma once

#include <vector>

#include "Simulation/CalculationGrid.hpp"
#include "Simulation/ContourRecords.hpp"
#include "Simulation/Geometry.hpp"
#include "Simulation/LevelList.hpp"

namespace Merivane::Simulation {

/// Colour bands on a finer grid than was calculated, for the colour maps in 3D; verification and
/// printed numbers never see these values. `values` in `ActivePoints` order of `grid` [lux]. The
/// mesh has steps of `minimumSpacing` [m] until it reaches about 20000 nodes and keeps that number
/// from there on. Empty without values, when their number is not that of the points, or where no
/// fine node lies in the polygon.
std::vector<ColorBand> ResampleBands(const CalculationGrid& grid, const std::vector<double>& values,
                                     const Polygon2D& polygon, const LevelList& levels,
                                     double minimumSpacing);

} // namespace Merivane::Simulation
