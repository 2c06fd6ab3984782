// Noise makes thousands of holes and thousands of outer rings, so the edges of all outer rings are
// sorted into rows once, and a point looks at the edges of its own row only.
#include "Simulation/HoleOwners.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Merivane::Simulation {

namespace {

struct OwnedEdge {
    Point2D a;
    Point2D b;
    std::uint32_t outer = 0;
};

/// The edges of row r are `edges[starts[r]]` up to `edges[starts[r + 1]]`.
struct EdgeRows {
    double bottom = 0.0;
    double height = 1.0;
    std::vector<std::size_t> starts;
    std::vector<OwnedEdge> edges;
};

/// Rising with y, so an edge that passes the height of a point shares that point's row.
std::size_t RowOf(const EdgeRows& rows, double y) {
    const double row = std::floor((y - rows.bottom) / rows.height);
    const auto last = static_cast<double>(rows.starts.size() - 2);
    return static_cast<std::size_t>(std::clamp(row, 0.0, last));
}

template <typename Visit> void ForEachEdge(std::span<const OuterRing> outers, Visit visit) {
    for (std::uint32_t o = 0; o < outers.size(); ++o) {
        const auto& points = outers[o].points;
        Point2D a = points.back();
        for (const Point2D& b : points) {
            if (a.y != b.y) {
                visit(OwnedEdge{a, b, o});
            }
            a = b;
        }
    }
}

EdgeRows SortIntoRows(std::span<const OuterRing> outers, double rowHeight) {
    constexpr double mostRows = 65536;
    double bottom = std::numeric_limits<double>::infinity();
    double top = -bottom;
    for (const OuterRing& outer : outers) {
        for (const Point2D& point : outer.points) {
            bottom = std::min(bottom, point.y);
            top = std::max(top, point.y);
        }
    }
    EdgeRows rows;
    rows.bottom = bottom;
    rows.height = std::max(rowHeight, (top - bottom) / mostRows);
    const double count = std::floor((top - bottom) / rows.height) + 1;
    rows.starts.assign(static_cast<std::size_t>(count) + 1, 0);
    ForEachEdge(outers, [&](const OwnedEdge& edge) {
        const std::size_t last = RowOf(rows, std::max(edge.a.y, edge.b.y));
        for (std::size_t r = RowOf(rows, std::min(edge.a.y, edge.b.y)); r <= last; ++r) {
            ++rows.starts[r + 1];
        }
    });
    for (std::size_t r = 1; r < rows.starts.size(); ++r) {
        rows.starts[r] += rows.starts[r - 1];
    }
    rows.edges.resize(rows.starts.back());
    std::vector<std::size_t> fill = rows.starts;
    ForEachEdge(outers, [&](const OwnedEdge& edge) {
        const std::size_t last = RowOf(rows, std::max(edge.a.y, edge.b.y));
        for (std::size_t r = RowOf(rows, std::min(edge.a.y, edge.b.y)); r <= last; ++r) {
            rows.edges[fill[r]++] = edge;
        }
    });
    return rows;
}

/// True when a ray from `p` towards +x meets the edge.
bool RayMeets(const OwnedEdge& edge, Point2D p) {
    const auto& [a, b, outer] = edge;
    return (a.y > p.y) != (b.y > p.y) && a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y) > p.x;
}

} // namespace

std::vector<std::size_t> FindOwners(std::span<const Point2D> points,
                                    std::span<const OuterRing> outers, double rowHeight) {
    std::vector<std::size_t> owners(points.size(), NoOwner);
    if (points.empty() || outers.empty()) {
        return owners;
    }
    const EdgeRows rows = SortIntoRows(outers, rowHeight);
    std::vector<std::uint8_t> odd(outers.size(), 0);
    std::vector<std::uint32_t> met;
    for (std::size_t k = 0; k < points.size(); ++k) {
        const std::size_t row = RowOf(rows, points[k].y);
        met.clear();
        for (std::size_t e = rows.starts[row]; e < rows.starts[row + 1]; ++e) {
            if (RayMeets(rows.edges[e], points[k])) {
                odd[rows.edges[e].outer] ^= 1U;
                met.push_back(rows.edges[e].outer);
            }
        }
        for (const std::uint32_t outer : met) {
            const std::size_t best = owners[k];
            if (odd[outer] != 0 && (best == NoOwner || outers[outer].area < outers[best].area ||
                                    (outers[outer].area == outers[best].area && outer < best))) {
                owners[k] = outer;
            }
            odd[outer] = 0;
        }
    }
    return owners;
}

} // namespace Merivane::Simulation
