#pragma once

#include <vector>

#include "Simulation/Geometry.hpp"

namespace Merivane::Archicad {

/// One ring around what the contours of a flat face cover: each hole is reached by a cut that the
/// ring walks there and back, so that no side crosses another and the area stays.
///
/// The first contour is the outline and keeps its direction; the others may turn either way and
/// may touch it or each other. What lies in a hole of a hole is covered again. The ring consists
/// of the contours' own vertices, some of them twice. Without an outline of some area the outline
/// alone comes back.
std::vector<Simulation::Point3D>
JoinHoles(const std::vector<std::vector<Simulation::Point3D>>& contours);

} // namespace Merivane::Archicad
