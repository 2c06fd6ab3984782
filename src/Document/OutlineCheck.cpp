#include "Document/OutlineCheck.hpp"

#include <cmath>
#include <cstddef>

#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Document {

namespace {

using Simulation::Edge2D;
using Simulation::Point2D;
using Simulation::Polygon2D;

constexpr double Touching = 1e-6;     // m: rounded coordinates of edges that share a line
constexpr double SmallestArea = 1e-6; // m2

struct RingEdge {
    Edge2D edge;
    int ring = -1;
};

double SignedArea(const std::vector<Point2D>& ring) {
    double twice = 0.0;
    // From the first vertex: far from the origin the products would swallow a small room.
    for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
        twice += (ring[i].x - ring[0].x) * (ring[i + 1].y - ring[0].y) -
                 (ring[i + 1].x - ring[0].x) * (ring[i].y - ring[0].y);
    }
    return twice / 2.0;
}

/// Which side of the edge's line the point lies on: 1 left, -1 right, 0 on it.
int SideOf(const Edge2D& edge, Point2D point) {
    const double x = edge.to.x - edge.from.x;
    const double y = edge.to.y - edge.from.y;
    const double cross = x * (point.y - edge.from.y) - y * (point.x - edge.from.x);
    const double tolerance = Touching * std::sqrt(x * x + y * y);
    if (std::abs(cross) <= tolerance) {
        return 0;
    }
    return cross > 0.0 ? 1 : -1;
}

bool BoxesMeet(const Edge2D& a, const Edge2D& b) {
    return std::max(a.from.x, a.to.x) >= std::min(b.from.x, b.to.x) &&
           std::max(b.from.x, b.to.x) >= std::min(a.from.x, a.to.x) &&
           std::max(a.from.y, a.to.y) >= std::min(b.from.y, b.to.y) &&
           std::max(b.from.y, b.to.y) >= std::min(a.from.y, a.to.y);
}

bool Cross(const Edge2D& a, const Edge2D& b) {
    return BoxesMeet(a, b) && SideOf(a, b.from) * SideOf(a, b.to) < 0 &&
           SideOf(b, a.from) * SideOf(b, a.to) < 0;
}

/// Where two edges that cross do so.
Point2D CrossingOf(const Edge2D& a, const Edge2D& b) {
    const double ax = a.to.x - a.from.x;
    const double ay = a.to.y - a.from.y;
    const double bx = b.to.x - b.from.x;
    const double by = b.to.y - b.from.y;
    const double along =
        ((b.from.x - a.from.x) * by - (b.from.y - a.from.y) * bx) / (ax * by - ay * bx);
    return {a.from.x + along * ax, a.from.y + along * ay};
}

void AppendEdges(const std::vector<Point2D>& ring, int number, std::vector<RingEdge>& edges) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
        edges.push_back({{ring[i], ring[(i + 1) % ring.size()]}, number});
    }
}

OutlineJudgement FindCrossing(const Polygon2D& polygon) {
    std::vector<RingEdge> edges;
    AppendEdges(polygon.outer, -1, edges);
    for (std::size_t i = 0; i < polygon.holes.size(); ++i) {
        AppendEdges(polygon.holes[i], static_cast<int>(i), edges);
    }
    for (std::size_t i = 0; i < edges.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (Cross(edges[i].edge, edges[j].edge)) {
                const bool same = edges[i].ring == edges[j].ring;
                return {same ? OutlineFault::SelfCrossing : OutlineFault::HoleCrossing,
                        edges[i].ring, CrossingOf(edges[i].edge, edges[j].edge)};
            }
        }
    }
    return {};
}

OutlineJudgement FindHoleOutside(const Polygon2D& polygon) {
    const Polygon2D outer{polygon.outer, {}};
    for (std::size_t i = 0; i < polygon.holes.size(); ++i) {
        for (const Point2D& point : polygon.holes[i]) {
            if (!IsInsidePolygon(outer, point) && DistanceToBoundary(outer, point) > Touching) {
                return {OutlineFault::HoleOutside, static_cast<int>(i), point};
            }
        }
    }
    return {};
}

} // namespace

std::vector<Point2D> WithoutRepeats(const std::vector<Point2D>& ring) {
    std::vector<Point2D> kept;
    for (const Point2D& point : ring) {
        if (kept.empty() || !(kept.back() == point)) {
            kept.push_back(point);
        }
    }
    while (kept.size() > 1 && kept.back() == kept.front()) {
        kept.pop_back();
    }
    return kept;
}

OutlineJudgement JudgeOutline(const Polygon2D& polygon) {
    OutlineJudgement judgement = FindCrossing(polygon);
    if (judgement.fault != OutlineFault::None) {
        return judgement;
    }
    // After the crossings: the two halves of a crossed ring can cancel to no area.
    if (std::abs(SignedArea(polygon.outer)) < SmallestArea) {
        return {OutlineFault::NoArea, -1, {}};
    }
    for (std::size_t i = 0; i < polygon.holes.size(); ++i) {
        if (std::abs(SignedArea(polygon.holes[i])) < SmallestArea) {
            return {OutlineFault::NoArea, static_cast<int>(i), {}};
        }
    }
    return FindHoleOutside(polygon);
}

} // namespace Merivane::Document
