#pragma once

#include "Workbench/Bodies/FacedBody.hpp"

/// Sides of faces that a script gave in any order.
namespace Merivane::Workbench {

/// Turns faces so that neighbours walk the side that they share in opposite directions, and each
/// closed piece of the body so that it encloses a volume above 0. Of an open piece the first face
/// stays as it is; where more than two faces share a side they are not neighbours by it. A closed
/// body whose faces agree is only turned as a whole.
void AgreeOnOutside(FacedBody& body);

} // namespace Merivane::Workbench
