#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "Workbench/Bodies/PolygonRings.hpp"

namespace Merivane::Workbench {

/// Cuts a counter-clockwise ring into triangles between its vertices, counter-clockwise too, two
/// fewer than it has vertices. Vertices on a straight side are kept. A ring that crosses itself
/// gives as many triangles, which then overlap. Empty under 3 vertices.
std::vector<std::array<std::int32_t, 3>> ClipEars(const PlanRing& ring);

} // namespace Merivane::Workbench
