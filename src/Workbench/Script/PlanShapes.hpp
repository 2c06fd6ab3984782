#pragma once

#include <vector>

#include "Workbench/Script/ScriptMachine.hpp"

/// What the statements of plan scripts share: shapes into the drawing, in the part's frame.
namespace Merivane::Workbench {

/// Adds a shape of so many vertices. False with `failure` set where there are too many.
bool AddPlanShape(ScriptMachine& machine, PlanShape shape, std::size_t vertices);

/// The statement's argument, which must be a number; see `AllNumbers`.
double PlanNumber(const ScriptMachine& machine, std::size_t place);

/// A place of the script's frame in the part's. False where it is too far to count with.
bool PlanPlace(ScriptMachine& machine, double x, double y, Host::Coordinate& place);

/// Moves a ring of the script's frame into the part's.
bool PlaceRing(ScriptMachine& machine, std::vector<Host::Coordinate>& points);

/// Chords for curves in plan: a plan shows them round where the script asks for more than 8.
CurveResolution PlanCurves(const ScriptMachine& machine);

} // namespace Merivane::Workbench
