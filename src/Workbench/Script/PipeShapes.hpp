#pragma once

#include <string>

#include "Workbench/Script/ShapeInput.hpp"
#include "Workbench/Script/ShapeSketch.hpp"

/// Pieces of tubes. Each function carries out one statement, whose number of arguments has been
/// checked, and returns an empty text or why it can't be done, in Portuguese.
namespace Merivane::Workbench {

/// ELBOW r1, alpha, r2: a piece of a torus from the origin, where it leaves along +z and bends
/// towards +x.
std::string SketchElbow(ShapeInput& input, ShapeSketch& sketch);

/// ARMC r1, r2, l, h, d, alpha: a tube of radius r2 that leaves one of radius r1 along z: from its
/// axis at height h, d beside it along y, at the angle alpha to +z [degrees], l long from the axis.
std::string SketchCylinderArm(ShapeInput& input, ShapeSketch& sketch);

/// ARME l, r1, r2, h, d: a tube of radius r2 along z, d beside it along y, from the half ellipsoid
/// of height h and radius r1 up to z = l.
std::string SketchEllipsoidArm(ShapeInput& input, ShapeSketch& sketch);

} // namespace Merivane::Workbench
