#pragma once

#include "Simulation/Geometry.hpp"

#include <cstddef>
#include <limits>
#include <span>
#include <vector>

namespace Merivane::Simulation {

/// A hole that lies in no outer ring.
inline constexpr std::size_t NoOwner = std::numeric_limits<std::size_t>::max();

/// An outer ring with its area [m2, above 0].
struct OuterRing {
    std::span<const Point2D> points;
    double area = 0.0;
};

/// For each point (even-odd rule): the index of the outer ring of the smallest area that contains
/// it, the first of equals, or `NoOwner`. `rowHeight` [m, above 0] is how finely the rings are
/// sorted into rows; it decides the speed alone.
std::vector<std::size_t> FindOwners(std::span<const Point2D> points,
                                    std::span<const OuterRing> outers, double rowHeight);

} // namespace Merivane::Simulation
