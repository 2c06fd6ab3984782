#include "Simulation/PolygonGeometry.hpp"

#include <cmath>
#include <cstddef>
#include <limits>

namespace Merivane::Simulation {

namespace {

using Ring = std::vector<Point2D>;

void AppendEdges(const Ring& ring, std::vector<Edge2D>& edges) {
    if (ring.size() < 2) {
        return;
    }
    for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
        edges.push_back({ring[i], ring[i + 1]});
    }
    edges.push_back({ring.back(), ring.front()});
}

double NearestSquared(const Ring& ring, Point2D point, double nearest) {
    if (ring.size() < 2) {
        return nearest;
    }
    Point2D previous = ring.back();
    for (const Point2D& vertex : ring) {
        const double squared = SquaredDistance({previous, vertex}, point);
        previous = vertex;
        // Never std::min: a distance that is no number must not become the nearest.
        if (squared < nearest) {
            nearest = squared;
        }
    }
    return nearest;
}

// Even-odd rule, casting towards +x.
bool IsInsideRing(const Ring& ring, Point2D point) {
    bool inside = false;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point2D& from = ring[i];
        const Point2D& to = ring[i + 1 < ring.size() ? i + 1 : 0];
        if (CrossesHeight(from, to, point.y) && CrossingX(from, to, point.y) > point.x) {
            inside = !inside;
        }
    }
    return inside;
}

double Cross(Point2D a, Point2D b) {
    return a.x * b.y - a.y * b.x;
}

// A line that meets a ring at a vertex must meet at least one of its two edges there.
constexpr double VertexTolerance = 1e-9;

// Appends where the segment from `a` along the unit vector `direction` meets an edge. An edge that
// lies along the segment gives its first end; the other one is that of the next edge.
void AppendCrossings(const Edge2D& edge, Point2D a, Point2D direction, double length,
                     std::vector<double>& distances) {
    const auto append = [&](double distance) {
        if (distance > 0.0 && distance < length) {
            distances.push_back(distance);
        }
    };
    const Point2D span{edge.to.x - edge.from.x, edge.to.y - edge.from.y};
    const Point2D toStart{edge.from.x - a.x, edge.from.y - a.y};
    const double edgeLength = std::hypot(span.x, span.y);
    const double slope = Cross(direction, span);

    if (std::abs(slope) <= 1e-12 * edgeLength) {
        if (std::abs(Cross(direction, toStart)) <= VertexTolerance) {
            append(toStart.x * direction.x + toStart.y * direction.y);
        }
        return;
    }
    const double alongEdge = Cross(toStart, direction) / slope * edgeLength;
    if (alongEdge >= -VertexTolerance && alongEdge <= edgeLength + VertexTolerance) {
        append(Cross(toStart, span) / slope);
    }
}

} // namespace

Bounds2D OuterBounds(const Polygon2D& polygon) {
    if (polygon.outer.empty()) {
        return {};
    }
    Bounds2D bounds{polygon.outer.front(), polygon.outer.front()};
    for (const Point2D& vertex : polygon.outer) {
        bounds.minimum.x = std::min(bounds.minimum.x, vertex.x);
        bounds.minimum.y = std::min(bounds.minimum.y, vertex.y);
        bounds.maximum.x = std::max(bounds.maximum.x, vertex.x);
        bounds.maximum.y = std::max(bounds.maximum.y, vertex.y);
    }
    return bounds;
}

std::vector<Edge2D> BoundaryEdges(const Polygon2D& polygon) {
    std::vector<Edge2D> edges;
    AppendEdges(polygon.outer, edges);
    for (const Ring& hole : polygon.holes) {
        AppendEdges(hole, edges);
    }
    return edges;
}

double DistanceToBoundary(const Polygon2D& polygon, Point2D point) {
    double nearest = NearestSquared(polygon.outer, point, std::numeric_limits<double>::infinity());
    for (const Ring& hole : polygon.holes) {
        nearest = NearestSquared(hole, point, nearest);
    }
    return std::sqrt(nearest);
}

bool IsInsidePolygon(const Polygon2D& polygon, Point2D point) {
    if (polygon.outer.size() < 3) {
        return false;
    }
    if (DistanceToBoundary(polygon, point) <= OnBoundary) {
        return true;
    }
    if (!IsInsideRing(polygon.outer, point)) {
        return false;
    }
    return std::none_of(polygon.holes.begin(), polygon.holes.end(), [&](const Ring& hole) {
        return hole.size() >= 3 && IsInsideRing(hole, point);
    });
}

std::vector<SegmentSpan> SpanInsidePolygon(const Polygon2D& polygon, Point2D a, Point2D b) {
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    if (!(length > 0.0) || !std::isfinite(length) || polygon.outer.size() < 3) {
        return {};
    }
    const Point2D direction{(b.x - a.x) / length, (b.y - a.y) / length};

    std::vector<Edge2D> edges;
    AppendEdges(polygon.outer, edges);
    for (const Ring& hole : polygon.holes) {
        if (hole.size() >= 3) {
            AppendEdges(hole, edges);
        }
    }
    std::vector<double> distances{0.0, length};
    for (const Edge2D& edge : edges) {
        AppendCrossings(edge, a, direction, length, distances);
    }
    std::sort(distances.begin(), distances.end());

    std::vector<SegmentSpan> spans;
    for (std::size_t i = 0; i + 1 < distances.size(); ++i) {
        const double start = distances[i];
        const double end = distances[i + 1];
        const double middle = 0.5 * (start + end);
        if (end - start < 1e-6 ||
            !IsInsidePolygon(polygon, {a.x + direction.x * middle, a.y + direction.y * middle})) {
            continue;
        }
        if (!spans.empty() && start - spans.back().end <= 1e-9) {
            spans.back().end = end;
        } else {
            spans.push_back({start, end});
        }
    }
    return spans;
}

} // namespace Merivane::Simulation
