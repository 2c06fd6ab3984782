#pragma once

#include <vector>

#include "Simulation/Geometry.hpp"

namespace Merivane::Simulation {

/// Takes out of a closed ring the vertices that carry nothing: those nearer than 0.0001 m to the
/// one before, and those that a straight edge runs through (the sine of the turn at most 1e-9). A
/// spike that folds back stays. The order and the place of the others do not change. Stops when
/// fewer than 3 vertices are left.
std::vector<Point2D> SimplifyRing(std::vector<Point2D> ring);

/// The same in place, for thousands of rings.
void SimplifyRingInPlace(std::vector<Point2D>& ring);

} // namespace Merivane::Simulation
