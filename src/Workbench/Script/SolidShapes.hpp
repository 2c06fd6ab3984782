#pragma once

#include <string>

#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// Solids that a few lengths tell. Each function carries out one statement, whose number of
/// arguments has been checked, and returns an empty text or why it can't be done, in Portuguese.
namespace Merivane::Workbench {

/// BLOCK a, b, c: from the origin along +x, +y, +z. With one length of 0 a rectangle.
std::string SketchBlock(ShapeInput& input, ShapeSketch& sketch);

/// CYLIND h, r: along z; h may be negative. With h = 0 a disc, with r = 0 a line.
std::string SketchCylinder(ShapeInput& input, ShapeSketch& sketch);

/// SPHERE r: around the origin.
std::string SketchSphere(ShapeInput& input, ShapeSketch& sketch);

/// ELLIPS h, r: half an ellipsoid on the x-y plane, h high.
std::string SketchEllipsoid(ShapeInput& input, ShapeSketch& sketch);

/// CONE h, r1, r2, alpha1, alpha2: a frustum along z between two planes that meet its axis at 0 and
/// h, inclined to it by the angles [degrees]: measured from +z towards +x. With h = 0 an annulus.
std::string SketchCone(ShapeInput& input, ShapeSketch& sketch);

} // namespace Merivane::Workbench
