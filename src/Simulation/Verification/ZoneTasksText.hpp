#pragma once

#include <string>
#include <string_view>

#include "Simulation/Verification/ZoneRequirement.hpp"

namespace Merivane::Simulation {

/// Name under which a project stores its Zones' activities.
inline constexpr std::string_view ZoneTasksName = "MerivaneZoneTasks";

/// The requirements as the project stores them: lines of fields parted by tabs. An entry whose key
/// or activity holds a tab or a line break is left out.
std::string SerializeZoneTasks(const ZoneRequirementMap& map, ReferenceStandard standard);

/// Reads them back, also from the older form without standard and screens. Returns false at the
/// first bad line; `map` is then empty and `standard` the Brazilian one.
bool ParseZoneTasks(std::string_view text, ZoneRequirementMap& map, ReferenceStandard& standard);

} // namespace Merivane::Simulation
