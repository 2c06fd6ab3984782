#pragma once

#include <string>

#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// Shapes that enclose nothing, and grids. Plane ones in the x-y plane look up. Each function
/// carries out one statement, whose first arguments have been checked, and returns an empty text or
/// why it can't be done, in Portuguese.
namespace Merivane::Workbench {

/// RECT a, b: from the origin.
std::string SketchRectangle(ShapeInput& input, ShapeSketch& sketch);

/// CIRCLE r: a disc around the origin.
std::string SketchDisc(ShapeInput& input, ShapeSketch& sketch);

/// ARC r, alpha, beta: a sector counter-clockwise from alpha to beta [degrees]; in a wire model the
/// arc alone.
std::string SketchSector(ShapeInput& input, ShapeSketch& sketch);

/// POLY n, x, y...
std::string SketchPolygon(ShapeInput& input, ShapeSketch& sketch);

/// POLY_ n, x, y, s...
std::string SketchStatusPolygon(ShapeInput& input, ShapeSketch& sketch);

/// PLANE n, x, y, z...: a polygon in space. One that is not plane becomes triangles.
std::string SketchPlane(ShapeInput& input, ShapeSketch& sketch);

/// PLANE_ n, x, y, z, s...: -1 ends a contour with a row that repeats its first place.
std::string SketchStatusPlane(ShapeInput& input, ShapeSketch& sketch);

/// COONS n, m, mask, then x, y, z of four lines: two of n places, and two of m that join their
/// begins and their ends.
std::string SketchCoonsPatch(ShapeInput& input, ShapeSketch& sketch);

/// MESH a, b, m, n, mask, z...: heights over a grid of m places along x, n along y. Bits 1 and 4
/// of the mask keep the base at z = 0 and the sides.
std::string SketchMesh(ShapeInput& input, ShapeSketch& sketch);

} // namespace Merivane::Workbench
