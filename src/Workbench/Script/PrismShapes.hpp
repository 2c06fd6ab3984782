#pragma once

#include <string>

#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// Prisms over a polygon in the x-y plane, upwards or, with a negative height, downwards; without
/// height the polygon alone. A polygon without area builds nothing. Each function carries out one
/// statement, whose first arguments have been checked, and returns an empty text or why it can't be
/// done, in Portuguese.
namespace Merivane::Workbench {

/// PRISM n, h, x, y...
std::string SketchPlainPrism(ShapeInput& input, ShapeSketch& sketch);

/// PRISM_ n, h, x, y, s...: without bit 8 of s the side is not there.
std::string SketchPrism(ShapeInput& input, ShapeSketch& sketch);

/// CPRISM_ top, bottom, side, n, h, x, y, s...
std::string SketchSurfacePrism(ShapeInput& input, ShapeSketch& sketch);

/// CPRISM_{2} top, bottom, side, n, h, x, y, alpha, s, side...: a side leans over the polygon by
/// its angle [degrees] and has a surface of its own.
std::string SketchSlantedPrism(ShapeInput& input, ShapeSketch& sketch);

/// CPRISM_{3}, CPRISM_{4}: the same with a mask, which faces don't depend on, in front of n.
std::string SketchMaskedPrism(ShapeInput& input, ShapeSketch& sketch);

/// SPRISM_ top, bottom, side, n, xb, yb, xe, ye, h, angle, x, y, s...: the top is h high along the
/// line from b to e and rises to its left by the angle [degrees].
std::string SketchSlopedPrism(ShapeInput& input, ShapeSketch& sketch);

/// SPRISM_{2} top, bottom, side, n, then line, height and angle of the top and of the bottom, x, y,
/// s, side...
std::string SketchTwiceSlopedPrism(ShapeInput& input, ShapeSketch& sketch);

/// SPRISM_{3}: the same with a mask in front of n.
std::string SketchMaskedSlopedPrism(ShapeInput& input, ShapeSketch& sketch);

/// SLAB n, h, x, y, z...: a prism whose bottom goes through the places; its sides are upright.
std::string SketchPlainSlab(ShapeInput& input, ShapeSketch& sketch);

/// SLAB_ n, h, x, y, z, s...
std::string SketchSlab(ShapeInput& input, ShapeSketch& sketch);

/// CSLAB_ top, bottom, side, n, h, x, y, z, s...
std::string SketchSurfaceSlab(ShapeInput& input, ShapeSketch& sketch);

} // namespace Merivane::Workbench
