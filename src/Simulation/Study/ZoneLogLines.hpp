#pragma once

#include <string>

#include "Simulation/Study/ZoneDrawing.hpp"

/// What the run log tells of a Zone's values. Portuguese; the fixed words have no accents.
namespace Merivane::Simulation {

/// A plane with its Em and U0: "Sala: Em 512 lx, U0 0,71".
std::string PlaneLogLine(const std::string& name, const PointStatistics& statistics);

/// All figures of a Zone's work plane, with the number of points and curves.
std::string ZoneFiguresLogLine(const ZoneDrawing& drawing);

/// The figures of a Zone against what its activity requires; empty for a Zone that is not verified.
std::string ZoneTaskLogLine(const ZoneDrawing& drawing);

} // namespace Merivane::Simulation
