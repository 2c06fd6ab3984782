#pragma once

#include "Archicad/ResultDrawing.hpp"

namespace Merivane::Archicad {

/// A legend is asked for, there are bands to explain, and a fill to show their colours with.
bool HasLegend(const DrawingOptions& options, const ResultStructure& structure);

/// Room that a legend takes from its upper left corner to the right and downwards [mm on paper].
struct LegendExtent {
    double width = 0.0;
    double height = 0.0;
};
LegendExtent MeasureLegend(const Simulation::LevelList& levels);

} // namespace Merivane::Archicad
