#pragma once

#include <string>
#include <vector>

#include "Archicad/ModelReadingZones.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Archicad {

/// Gives every Zone the height of its real ceiling, where the model shows one: walls and ceilings of
/// calculations end there. With `logRequested` a line for each Zone that the user should know of is
/// appended to `logLines`.
void DetectCeilings(std::vector<ZoneRecord>& zones,
                    const std::vector<Simulation::SceneSurface>& surfaces, bool logRequested,
                    std::vector<std::string>& logLines);

} // namespace Merivane::Archicad
