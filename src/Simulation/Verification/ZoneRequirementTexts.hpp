#pragma once

#include <string>

#include "Simulation/Verification/TaskTable.hpp"
#include "Simulation/Verification/ZoneRequirement.hpp"

/// The texts of the dialog that chooses the Zones' activities. Portuguese, UTF-8.
namespace Merivane::Simulation {

/// A standard as the dialog offers it: its name and where it holds.
std::string StandardEntry(ReferenceStandard standard);

/// A section of the table: number and name.
std::string SectionEntry(std::int32_t number, const std::string& name);

/// An activity, with the illuminance that it requires.
std::string ActivityEntry(const TaskRow& task);

/// The first of the activities: none.
inline constexpr const char* NoActivityEntry = "Não verificar esta Zona";

/// The activity of a Zone as the list shows it, also that it is only suggested; that the Zone is
/// not verified where the table has no such activity.
std::string ActivityCell(const ZoneRequirementRow& row);

/// What is required of a Zone as the list shows it: "500 lx" and "0.70".
std::string IlluminanceCell(const ZoneRequirement& requirement);
std::string UniformityCell(const ZoneRequirement& requirement);

/// What the choice of screens by the activity itself comes to.
std::string AutomaticScreensEntry(const ZoneRequirement& requirement);

/// What the table tells of the Zone's activity; empty where it has none.
std::string ActivityNote(const ZoneRequirement& requirement);

} // namespace Merivane::Simulation
