#pragma once

#include <string>

#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// Bodies that a line in the x-y plane leaves behind when it turns around the x axis, from y
/// towards z. Each function carries out one statement, whose first arguments have been checked,
/// and returns an empty text or why it can't be done, in Portuguese.
namespace Merivane::Workbench {

/// REVOLVE n, alpha, mask, x, y, s...: bits 1 and 2 of the mask keep the discs at the first and at
/// the last point, 4 and 8 the sides at the begin and the end of the turn.
std::string SketchRevolved(ShapeInput& input, ShapeSketch& sketch);

/// REVOLVE{2} n, alphaOffset, alpha, mask, side, x, y, s, surface...: begins turned by the offset;
/// the line is closed and may have holes. `side` is the surface where the turn begins and ends.
std::string SketchRevolvedPolygon(ShapeInput& input, ShapeSketch& sketch);

} // namespace Merivane::Workbench
