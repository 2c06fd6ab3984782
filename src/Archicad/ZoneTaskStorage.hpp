#pragma once

#include <string>

#include "Host/Types.hpp"
#include "Simulation/Verification/ZoneRequirement.hpp"

/// The activities of the Zones, as the open project keeps them.
namespace Merivane::Archicad {

/// By what a Zone is known there: the text form of its element's GUID.
std::string ZoneKey(const Host::Guid& guid);

/// What the project holds, and the standard it is verified against. A project without them, or with
/// a text that can't be read, gives an empty map and the Brazilian standard.
Simulation::ZoneRequirementMap LoadZoneTasks(Simulation::ReferenceStandard& standard);

/// Stores all in the project; no undo step may run. The host's code, `OutOfMemory` among them.
Host::ErrorCode SaveZoneTasks(const Simulation::ZoneRequirementMap& map,
                              Simulation::ReferenceStandard standard);

} // namespace Merivane::Archicad
