#include "Simulation/RingSimplification.hpp"

#include <cmath>
#include <cstddef>

namespace Merivane::Simulation {

namespace {

constexpr double ShortestEdge = 1e-4;   // m
constexpr double ShortestAhead = 1e-12; // m, below it an edge has no direction
constexpr double StraightSine = 1e-9;

struct Edge {
    double x;
    double y;
    double squared; ///< length
};

Edge EdgeBetween(Point2D from, Point2D to) {
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    return {x, y, x * x + y * y};
}

/// Whether the vertex between the edges `a` and `b` carries nothing.
bool IsSpare(const Edge& a, const Edge& b) {
    const double cross = a.x * b.y - a.y * b.x;
    // Nearly all vertices are far from both limits, and need no root to see it.
    if (a.squared > 2 * ShortestEdge * ShortestEdge &&
        cross * cross > 2 * StraightSine * StraightSine * a.squared * b.squared) {
        return false;
    }
    const double lengthA = std::sqrt(a.squared);
    const double lengthB = std::sqrt(b.squared);
    return lengthA < ShortestEdge ||
           (lengthB > ShortestAhead && std::abs(cross) <= StraightSine * lengthA * lengthB &&
            a.x * b.x + a.y * b.y > 0);
}

/// Number of the first vertex that is spare; their count when none is.
std::size_t FirstSpare(const Point2D* ring, std::size_t count) {
    Edge arriving = EdgeBetween(ring[count - 1], ring[0]);
    for (std::size_t at = 0; at + 1 < count; ++at) {
        const Edge leaving = EdgeBetween(ring[at], ring[at + 1]);
        if (IsSpare(arriving, leaving)) {
            return at;
        }
        arriving = leaving;
    }
    return IsSpare(arriving, EdgeBetween(ring[count - 1], ring[0])) ? count - 1 : count;
}

/// Goes once round the ring, moving what stays to its front. Returns whether anything fell away.
bool SimplifyOnce(std::vector<Point2D>& ring) {
    const std::size_t count = ring.size();
    std::size_t at = FirstSpare(ring.data(), count);
    std::size_t kept = at;
    for (; at < count && kept + (count - at) >= 3; ++at) {
        // Behind the last vertex the ring goes on at the first that stayed.
        const Point2D next = at + 1 < count ? ring[at + 1] : ring[0];
        const Point2D previous = kept > 0 ? ring[kept - 1] : ring[count - 1];
        if (!IsSpare(EdgeBetween(previous, ring[at]), EdgeBetween(ring[at], next))) {
            ring[kept++] = ring[at];
        }
    }
    for (; at < count; ++at) {
        ring[kept++] = ring[at];
    }
    ring.resize(kept);
    return kept < count;
}

} // namespace

void SimplifyRingInPlace(std::vector<Point2D>& ring) {
    while (ring.size() >= 3 && SimplifyOnce(ring)) {
    }
}

std::vector<Point2D> SimplifyRing(std::vector<Point2D> ring) {
    SimplifyRingInPlace(ring);
    return ring;
}

} // namespace Merivane::Simulation
