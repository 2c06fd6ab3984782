#pragma once

#include <algorithm>
#include <vector>

#include "Simulation/Geometry.hpp"

namespace Merivane::Simulation {

/// Extent of a set of points [m].
struct Bounds2D {
    Point2D minimum;
    Point2D maximum;
};

/// One side of a ring [m].
struct Edge2D {
    Point2D from;
    Point2D to;
};

/// A stretch of a segment, as distances from its first point [m].
struct SegmentSpan {
    double start = 0.0;
    double end = 0.0;

    bool operator==(const SegmentSpan&) const = default;
};

/// Bounding box of the outer ring; holes do not enter it. All 0 without vertices.
Bounds2D OuterBounds(const Polygon2D& polygon);

/// The edges of every ring with at least 2 vertices, closing edges included, outer ring first.
std::vector<Edge2D> BoundaryEdges(const Polygon2D& polygon);

/// Squared distance of `point` to a segment [m2]; a segment without length is a point.
inline double SquaredDistance(const Edge2D& edge, Point2D point) {
    const double edgeX = edge.to.x - edge.from.x;
    const double edgeY = edge.to.y - edge.from.y;
    const double x = point.x - edge.from.x;
    const double y = point.y - edge.from.y;
    const double squaredLength = edgeX * edgeX + edgeY * edgeY;
    const double along =
        squaredLength > 0.0 ? std::clamp((x * edgeX + y * edgeY) / squaredLength, 0.0, 1.0) : 0.0;
    const double offX = x - along * edgeX;
    const double offY = y - along * edgeY;
    return offX * offX + offY * offY;
}

/// Distance of `point` to the nearest edge of any ring [m]; infinite without edges.
double DistanceToBoundary(const Polygon2D& polygon, Point2D point);

/// A point nearer to the boundary than this counts as lying on it [m].
inline constexpr double OnBoundary = 1e-9;

/// True for a point inside the outer ring and outside the holes, and for one on any ring, that of a
/// hole included. False when the outer ring has fewer than 3 vertices.
bool IsInsidePolygon(const Polygon2D& polygon, Point2D point);

/// True when a line from `point` towards +x is seen to cross the edge `from`-`to` of a ring at
/// height `y`: the lower end belongs to the edge, the upper one does not.
inline bool CrossesHeight(Point2D from, Point2D to, double y) {
    return (from.y > y) != (to.y > y);
}

/// Where an edge crosses the height `y`; only for edges that do.
inline double CrossingX(Point2D from, Point2D to, double y) {
    return from.x + (y - from.y) * (to.x - from.x) / (to.y - from.y);
}

/// The stretches of the segment from `a` to `b` that lie inside the polygon, ascending. Pieces
/// under 1e-6 m are left out. Empty for a segment without length.
std::vector<SegmentSpan> SpanInsidePolygon(const Polygon2D& polygon, Point2D a, Point2D b);

} // namespace Merivane::Simulation
