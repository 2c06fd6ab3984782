#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/Glare/ZoneGlare.hpp"

/// Lines of the run log and notes of a Zone's sheet, Portuguese.
namespace Merivane::Simulation {

/// What the log tells of a model: its value and how the table was read, or why it has none. `room`
/// are the room's own reflectances.
std::string ModelLogLine(const ModelGlare& model, const ReflectanceSet& room);

/// The same for the sheet. With `several` models over the Zone it always says which.
std::string ModelNote(const ModelGlare& model, const ReflectanceSet& room, bool several);

/// The warning for a model that sends more than `MostUpwardFlux` up.
std::string UpwardFluxWarning(const ModelGlare& model);

/// What an observer of the real room sees; `floorLevel` [m] is that of the Zone.
std::string ObserverLogLine(const ObserverGlareRecord& record, double floorLevel);

/// All observers of the real room in one sentence; empty without any.
std::string PositionsNote(const std::vector<ObserverGlareRecord>& observers);

/// The Zone's value against the activity's UGRL, compared as printed.
std::string LimitLogLine(double ugr, std::int32_t ugrLimit);

/// Why the Zone's value is compared with nothing.
std::string NoLimitText(bool hasTask);

/// The note on a value that is compared with nothing.
std::string NoLimitNote(double ugr, bool hasTask);

/// The value by CIE 147 of a Zone with small sources; empty without one.
std::string SmallSourceNote(const ZoneGlare& glare);

} // namespace Merivane::Simulation
