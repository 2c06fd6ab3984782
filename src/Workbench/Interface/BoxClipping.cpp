#include "Workbench/Interface/BoxClipping.hpp"

#include <cmath>
#include <cstddef>
#include <utility>

// Liang-Barsky for segments, Sutherland-Hodgman for polygons.
namespace Merivane::Workbench {

namespace {

using Drawing::Point;
using Points = std::vector<Point>;

Point Between(const Point& a, const Point& b, double fraction) {
    return {a.x + (b.x - a.x) * fraction, a.y + (b.y - a.y) * fraction};
}

/// The part of a segment that is inside, as fractions of it; false when none is.
bool FindInside(const Point& a, const Point& b, const ClipBox& box, double& begin, double& end) {
    begin = 0.0;
    end = 1.0;
    const std::pair<double, double> edges[] = {{a.x - b.x, a.x - box.left},
                                               {b.x - a.x, box.right - a.x},
                                               {a.y - b.y, a.y - box.top},
                                               {b.y - a.y, box.bottom - a.y}};
    for (const auto& [outwards, room] : edges) {
        if (outwards == 0.0) {
            if (room < 0.0) {
                return false;
            }
        } else if (outwards < 0.0) {
            begin = std::max(begin, room / outwards);
        } else {
            end = std::min(end, room / outwards);
        }
    }
    return begin <= end;
}

/// Distance of a point from one of the four edges, above 0 inside.
double Depth(const Point& point, const ClipBox& box, int edge) {
    switch (edge) {
    case 0:
        return point.x - box.left;
    case 1:
        return box.right - point.x;
    case 2:
        return point.y - box.top;
    default:
        return box.bottom - point.y;
    }
}

Points CutAtEdge(const Points& points, const ClipBox& box, int edge) {
    Points kept;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point& from = points[i];
        const Point& to = points[(i + 1) % points.size()];
        const double before = Depth(from, box, edge);
        const double behind = Depth(to, box, edge);
        if (before >= 0.0) {
            kept.push_back(from);
        }
        if ((before >= 0.0) != (behind >= 0.0)) {
            kept.push_back(Between(from, to, before / (before - behind)));
        }
    }
    return kept;
}

} // namespace

std::vector<Points> ClipLine(const Points& points, const ClipBox& box) {
    std::vector<Points> pieces;
    bool running = false; // the last piece ends where the next segment begins
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        double begin = 0.0;
        double end = 1.0;
        if (!FindInside(points[i], points[i + 1], box, begin, end)) {
            running = false;
            continue;
        }
        if (!running || begin > 0.0) {
            pieces.push_back({Between(points[i], points[i + 1], begin)});
        }
        pieces.back().push_back(Between(points[i], points[i + 1], end));
        running = end == 1.0;
    }
    return pieces;
}

Points ClipPolygon(const Points& points, const ClipBox& box) {
    constexpr int edges = 4;
    Points kept = points;
    for (int edge = 0; edge < edges; ++edge) {
        kept = CutAtEdge(kept, box, edge);
    }
    return kept;
}

} // namespace Merivane::Workbench
