#pragma once

#include "Document/PlanSheet.hpp"
#include "Document/ResultPlan.hpp"

namespace Merivane::Document {

/// The legend of the colour bands: its title, and for each band, from the top one down, its colour
/// and its range of illuminance. A row takes 5 mm.
SheetBlock BuildLegendBlock(const Simulation::LevelList& levels, std::uint32_t colorScale);

/// The colour of a band of `levels`; `band` 0 lies below the first level.
Drawing::Color PlanBandColor(const Simulation::LevelList& levels, std::uint32_t colorScale,
                             std::size_t band);

} // namespace Merivane::Document
