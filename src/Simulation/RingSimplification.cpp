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
};

Edge EdgeBetween(Point2D from, Point2D to) {
    return {to.x - from.x, to.y - from.y};
}

double SquaredLength(const Edge& edge) {
    return edge.x * edge.x + edge.y * edge.y;
}

/// Whether the vertex between the edges `a` and `b` carries nothing.
bool IsSpare(const Edge& a, const Edge& b) {
    const double cross = a.x * b.y - a.y * b.x;
    const double squaredA = SquaredLength(a);
    const double squaredB = SquaredLength(b);
    // Nearly all vertices are far from both limits, and need no root to see it.
    if (squaredA > 2 * ShortestEdge * ShortestEdge &&
        cross * cross > 2 * StraightSine * StraightSine * squaredA * squaredB) {
        return false;
    }
    const double lengthA = std::sqrt(squaredA);
    const double lengthB = std::sqrt(squaredB);
    return lengthA < ShortestEdge ||
           (lengthB > ShortestAhead && std::abs(cross) <= StraightSine * lengthA * lengthB &&
            a.x * b.x + a.y * b.y > 0);
}

/// Goes once round the ring, moving what stays to its front. Returns whether anything fell away.
bool SimplifyOnce(std::vector<Point2D>& ring) {
    const std::size_t count = ring.size();
    std::size_t kept = 0;
    std::size_t at = 0;
    Edge arriving = EdgeBetween(ring[count - 1], ring[0]);
    for (; at < count && kept + (count - at) >= 3; ++at) {
        // Vertex `at` is the last one: the ring goes on at the first that stayed.
        const Point2D next = at + 1 < count ? ring[at + 1] : ring[0];
        const Edge leaving = EdgeBetween(ring[at], next);
        if (IsSpare(arriving, leaving)) {
            const Point2D previous = kept > 0 ? ring[kept - 1] : ring[count - 1];
            arriving = EdgeBetween(previous, next);
        } else {
            ring[kept++] = ring[at];
            arriving = leaving;
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
