#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Host/Stories.hpp"
#include "Host/Types.hpp"

/// Views of the lighting study in the View Map. No undo step may run; what is made stays when a
/// step is undone.
namespace Merivane::Archicad {

/// The view of the floor plan with this name, or else the first with one of `formerNames`, which
/// gets the name; made where there is none, at the plan's scale. It shows the floor with the
/// layer combination of this name, which must stand. What another story of the same name shows is
/// that story's own. `created` tells a new view from one that was brought up to date. On failure
/// the host's code, and `created` is false.
Host::ErrorCode EnsureFloorView(std::int16_t floorIndex, std::string_view name,
                                const std::vector<std::string>& formerNames,
                                std::string_view combinationName, bool& created);

/// The two views of a story: the simulation drawing, under whatever name earlier versions gave it,
/// and the project drawing.
Host::ErrorCode EnsureSimulationView(const Host::Story& story, bool& created);
Host::ErrorCode EnsureProjectView(const Host::Story& story, bool& created);

} // namespace Merivane::Archicad
