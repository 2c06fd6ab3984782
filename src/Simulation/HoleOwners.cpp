// Noise makes thousands of holes and thousands of outer rings, so the edges of all outer rings are
// sorted into rows once, and a point looks at the edges of its own row only.
#include "Simulation/HoleOwners.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace Merivane::Simulation {

namespace {

struct Edge {
    Point2D a;
    Point2D b;
};

/// The edges of one outer ring in one row: `edges[first]` up to the first of the next group. The
/// last group of all belongs to no ring.
struct EdgeGroup {
    std::uint32_t outer = 0;
    std::uint32_t first = 0;
    double left = 0.0;
    double right = 0.0;
};

/// The groups of row r are `groups[starts[r]]` up to `groups[starts[r + 1]]`.
struct EdgeRows {
    double bottom = 0.0;
    double rowsPerMetre = 1.0;
    double last = 0.0;
    std::vector<std::uint32_t> starts;
    std::vector<EdgeGroup> groups;
    std::vector<Edge> edges;
};

/// Never falls as y rises, so an edge that passes the height of a point shares that point's row.
/// Cut off, not rounded down by `floor`, which is a call where the processor has no instruction.
std::uint32_t RowOf(const EdgeRows& rows, double y) {
    return static_cast<std::uint32_t>(
        std::clamp((y - rows.bottom) * rows.rowsPerMetre, 0.0, rows.last));
}

/// Hands out every edge that is not level, with its lowest and highest row.
template <typename Visit>
void ForEachEdge(const EdgeRows& rows, std::span<const OuterRing> outers, Visit visit) {
    for (std::uint32_t o = 0; o < outers.size(); ++o) {
        Point2D a = outers[o].points.back();
        std::uint32_t rowA = RowOf(rows, a.y);
        for (const Point2D& b : outers[o].points) {
            const std::uint32_t rowB = RowOf(rows, b.y);
            if (a.y != b.y) {
                visit(Edge{a, b}, o, std::min(rowA, rowB), std::max(rowA, rowB));
            }
            a = b;
            rowA = rowB;
        }
    }
}

EdgeRows LayRows(std::span<const OuterRing> outers, double rowHeight) {
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
    rows.rowsPerMetre = 1.0 / std::max(rowHeight, (top - bottom) / mostRows);
    rows.last = std::trunc((top - bottom) * rows.rowsPerMetre);
    rows.starts.assign(static_cast<std::size_t>(rows.last) + 2, 0);
    return rows;
}

/// Sorts the edges into rows, ring after ring within a row, and gathers them into groups.
EdgeRows SortIntoRows(std::span<const OuterRing> outers, double rowHeight) {
    EdgeRows rows = LayRows(outers, rowHeight);
    struct Count {
        std::uint32_t edges = 0;
        std::uint32_t groups = 0;
        std::uint32_t lastOuter = 0xFFFFFFFF;
    };
    std::vector<Count> counts(rows.starts.size());
    ForEachEdge(rows, outers,
                [&](const Edge&, std::uint32_t outer, std::uint32_t first, std::uint32_t last) {
                    for (std::uint32_t r = first; r <= last; ++r) {
                        ++counts[r].edges;
                        counts[r].groups += counts[r].lastOuter != outer ? 1 : 0;
                        counts[r].lastOuter = outer;
                    }
                });
    Count total;
    for (std::size_t r = 0; r < counts.size(); ++r) {
        rows.starts[r] = total.groups;
        total.edges += std::exchange(counts[r].edges, total.edges);
        total.groups += std::exchange(counts[r].groups, total.groups);
        counts[r].lastOuter = 0xFFFFFFFF;
    }
    rows.edges.resize(total.edges);
    rows.groups.resize(total.groups + 1);
    rows.groups.back().first = total.edges;
    ForEachEdge(
        rows, outers,
        [&](const Edge& edge, std::uint32_t outer, std::uint32_t first, std::uint32_t last) {
            const double left = std::min(edge.a.x, edge.b.x);
            const double right = std::max(edge.a.x, edge.b.x);
            for (std::uint32_t r = first; r <= last; ++r) {
                Count& count = counts[r];
                if (count.lastOuter != outer) {
                    rows.groups[count.groups++] = {outer, count.edges, left, right};
                    count.lastOuter = outer;
                }
                EdgeGroup& group = rows.groups[count.groups - 1];
                group.left = std::min(group.left, left);
                group.right = std::max(group.right, right);
                rows.edges[count.edges++] = edge;
            }
        });
    return rows;
}

/// True when a ray from `p` towards +x meets the edges an odd number of times. Only an edge above,
/// below or at `p` needs the place where it is met.
bool IsOdd(std::span<const Edge> edges, Point2D p) {
    bool odd = false;
    for (const auto& [a, b] : edges) {
        const bool passes = (a.y > p.y) != (b.y > p.y);
        const bool aRight = a.x > p.x;
        bool right = aRight;
        if (aRight != (b.x > p.x)) {
            right = a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y) > p.x;
        }
        odd ^= passes & right;
    }
    return odd;
}

} // namespace

std::vector<std::size_t> FindOwners(std::span<const Point2D> points,
                                    std::span<const OuterRing> outers, double rowHeight) {
    std::vector<std::size_t> owners(points.size(), NoOwner);
    if (points.empty() || outers.empty()) {
        return owners;
    }
    const EdgeRows rows = SortIntoRows(outers, rowHeight);
    for (std::size_t k = 0; k < points.size(); ++k) {
        const Point2D p = points[k];
        const std::uint32_t row = RowOf(rows, p.y);
        for (std::uint32_t g = rows.starts[row]; g < rows.starts[row + 1]; ++g) {
            const EdgeGroup& group = rows.groups[g];
            // Beside them all, a ray meets none of them or, as a ring is closed, an even number.
            if (p.x < group.left || p.x >= group.right) {
                continue;
            }
            const std::size_t best = owners[k];
            const std::uint32_t next = rows.groups[g + 1].first;
            if ((best == NoOwner || outers[group.outer].area < outers[best].area) &&
                IsOdd({&rows.edges[group.first], next - group.first}, p)) {
                owners[k] = group.outer;
            }
        }
    }
    return owners;
}

} // namespace Merivane::Simulation
