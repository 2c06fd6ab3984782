#pragma once

#include <string>

#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// Prisms that are not straight up to their top. Each function carries out one statement, whose
/// first arguments have been checked, and returns an empty text or why it can't be done, in
/// Portuguese.
namespace Merivane::Workbench {

/// FPRISM_ top, bottom, side, hill, n, thickness, angle, height, x, y, s...: the highest part of
/// the thickness, `height` of it, leans inwards under an angle [degrees]; with 0 it is a quarter of
/// a circle.
std::string SketchHillPrism(ShapeInput& input, ShapeSketch& sketch);

/// HPRISM_: the same with a status, of how edges are drawn, in front of the rows.
std::string SketchStatusHillPrism(ShapeInput& input, ShapeSketch& sketch);

/// BPRISM_ top, bottom, side, n, h, radius, x, y, s...: the x-y plane lies around a cylinder along
/// y that it touches at x = 0, below it, or above for a negative radius.
std::string SketchBentPrism(ShapeInput& input, ShapeSketch& sketch);

} // namespace Merivane::Workbench
