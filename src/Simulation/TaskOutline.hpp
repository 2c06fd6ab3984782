#pragma once

#include <vector>

#include "Simulation/ContourRecords.hpp"
#include "Simulation/Geometry.hpp"

namespace Merivane::Simulation {

/// The outline of the task area: the places at distance `band` [m] inside the polygon, traced on a
/// fine grid and thinned where it runs straight. Several curves where the band cuts the Zone apart.
/// Empty for fewer than 3 outer vertices or a band that is not above 0. Not drawn for a Zone that
/// is `narrow`.
std::vector<IsoCurve> BuildTaskOutline(const Polygon2D& polygon, double band);

} // namespace Merivane::Simulation
