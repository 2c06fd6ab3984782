#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <vector>

#include "Simulation/Geometry.hpp"

namespace Merivane::Simulation {

/// A hole that lies in no outer ring.
inline constexpr std::size_t NoOwner = std::numeric_limits<std::size_t>::max();

/// Area and bounding box of a ring.
struct RingMeasure {
    double area = 0.0; ///< [m2], above 0 when counter-clockwise
    double left = 0.0; ///< [m]
    double right = 0.0;
    double bottom = 0.0;
    double top = 0.0;
};

/// Measures a ring of at least one vertex. The area is reckoned from the first vertex, which keeps
/// the digits of a small ring far from the origin.
RingMeasure MeasureRing(std::span<const Point2D> ring);

/// An outer ring of at least 3 vertices; its area is above 0.
struct OuterRing {
    std::span<const Point2D> points;
    RingMeasure measure;
};

/// For each point (even-odd rule): the index of the outer ring of the smallest area that contains
/// it, the first of equals, or `NoOwner`. `rowHeight` [m, above 0] is how finely the rings are
/// sorted into rows; it decides the speed alone.
std::vector<std::size_t> FindOwners(std::span<const Point2D> points,
                                    std::span<const OuterRing> outers, double rowHeight);

} // namespace Merivane::Simulation
