#pragma once

#include <string>
#include <vector>

#include "Archicad/ModelReadingZones.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/Study/CeilingDetection.hpp"

namespace Merivane::Archicad {

/// A Zone's height is often not that of its room: sets `height` of every Zone to that of the
/// ceiling which the model's faces form over at least half of it, see `DetectCeiling`. Differences
/// under 0.005 m are left. With `logRequested` what was found, and what was not, goes to
/// `logLines`. Returns what was found for each Zone, in order.
std::vector<Simulation::ZoneCeiling>
DetectCeilings(std::vector<ZoneRecord>& zones,
               const std::vector<Simulation::SceneSurface>& surfaces, bool logRequested,
               std::vector<std::string>& logLines);

} // namespace Merivane::Archicad
