#pragma once

#include <string>

#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// Bodies that a line or polygon in the x-y plane leaves behind when it moves. Of an open line the
/// side from its last point to its first is there only where the mask has bit 4; bits 1 and 2 keep
/// the faces at the begin and at the end. Each function carries out one statement, whose first
/// arguments have been checked, and returns an empty text or why it can't be done, in Portuguese.
namespace Merivane::Workbench {

/// EXTRUDE n, dx, dy, dz, mask, x, y, s...
std::string SketchExtrusion(ShapeInput& input, ShapeSketch& sketch);

/// PYRAMID n, h, mask, x, y, s...: the peak is at (0, 0, h).
std::string SketchPyramid(ShapeInput& input, ShapeSketch& sketch);

/// RULED n, mask, u, v, s..., x, y, z...: from a line in the x-y plane to one in space with as many
/// points. RULED{2} takes the same.
std::string SketchRuled(ShapeInput& input, ShapeSketch& sketch);

/// SWEEP n, m, alpha, scale, mask, u, v, s..., x, y, z...: the line moves along a path of m places,
/// square to the way that it came; from place to place it is turned by alpha [degrees] and scaled.
/// At the first place it lies in the x-y plane.
std::string SketchSweep(ShapeInput& input, ShapeSketch& sketch);

/// TUBE n, m, mask, u, w, s..., x, y, z, angle...: the line moves along a path, of which the first
/// and the last place only give the directions of the ends. It keeps its size: in each place it
/// lies in the plane half way between the directions. w points up, u to the left; the angle
/// [degrees] turns the line.
std::string SketchTube(ShapeInput& input, ShapeSketch& sketch);

/// TUBEA n, m, mask, u, w, s..., x, y, z...: the same without angles.
std::string SketchUprightTube(ShapeInput& input, ShapeSketch& sketch);

} // namespace Merivane::Workbench
