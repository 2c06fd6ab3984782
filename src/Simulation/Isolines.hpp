#pragma once

#include <vector>

#include "Simulation/ContourRecords.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/LevelList.hpp"

namespace Merivane::Simulation {

/// Isolux curves of a field, level by level in list order; of one level first the open curves, then
/// the closed ones. Marching squares with linear interpolation, nothing is smoothed. A value equal
/// to a level lies above it. A cell with a NaN corner is left out, so curves end at the edge of the
/// area that has values.
///
/// Empty without a grid, with fewer than 2 columns or rows, with fewer values than nodes, or
/// without levels. Infinite values are allowed, but the place of a crossing beside one may be NaN.
std::vector<IsoCurve> ExtractIsolines(const GridField& field, const LevelList& levels);

} // namespace Merivane::Simulation
