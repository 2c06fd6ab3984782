#pragma once

#include <vector>

#include "Simulation/ContourRecords.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/LevelList.hpp"

namespace Merivane::Simulation {

/// Colour bands of a field in ascending order: the areas below the first level, between two
/// neighbouring levels, and from the last level up. A band without area is left out. The bands run
/// along the curves of `ExtractIsolines`, do not overlap, and cover exactly the cells whose four
/// corners have a value. Without levels, band 0 covers them all.
///
/// Empty without a grid, with fewer than 2 columns or rows, or with fewer values than nodes.
/// Infinite values are allowed, but a polygon with a crossing beside one may be lost.
std::vector<ColorBand> BuildBands(const GridField& field, const LevelList& levels);

} // namespace Merivane::Simulation
