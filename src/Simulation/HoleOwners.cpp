// Noise makes thousands of holes and thousands of outer rings, most of them small and a few that
// wind through the whole field. So the boxes of the rings are sorted into rows, and where a point
// lies in the box of a large ring, that ring's edges are sorted into rows too, once.
#include "Simulation/HoleOwners.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Merivane::Simulation {

namespace {

/// Rings with more vertices get rows of their own.
constexpr std::size_t LargeRing = 24;

constexpr std::uint32_t NoEntry = 0xFFFFFFFF;

/// Things by number, in every row that they touch. Each row is a list, so that nothing need be
/// counted first.
struct RowLists {
    struct Entry {
        std::uint32_t thing;
        std::uint32_t next;
    };

    double bottom = 0.0;
    double rowsPerMetre = 1.0;
    double last = 0.0;                ///< number of the last row
    std::vector<std::uint32_t> heads; ///< by row, and one list more that is never read
    std::vector<Entry> entries;
};

RowLists LayRows(double bottom, double top, double height, std::size_t things) {
    constexpr double mostRows = 65536;
    RowLists rows;
    rows.bottom = bottom;
    rows.rowsPerMetre = 1.0 / std::max(height, (top - bottom) / mostRows);
    rows.last = std::trunc((top - bottom) * rows.rowsPerMetre);
    rows.heads.assign(static_cast<std::size_t>(rows.last) + 2, NoEntry);
    rows.entries.reserve(2 * things + rows.heads.size());
    return rows;
}

/// Never falls as y rises, so what passes the height of a point shares that point's row. Cut off,
/// not rounded down by `floor`, which is a call where the processor has no instruction.
std::uint32_t RowOf(const RowLists& rows, double y) {
    const double row = (y - rows.bottom) * rows.rowsPerMetre;
    return static_cast<std::uint32_t>(std::min(std::max(row, 0.0), rows.last));
}

void Put(RowLists& rows, std::uint32_t row, std::uint32_t thing) {
    const auto number = static_cast<std::uint32_t>(rows.entries.size());
    rows.entries.push_back({thing, rows.heads[row]});
    rows.heads[row] = number;
}

/// Puts a thing into the rows `low` to `high`. Most touch one or two, as good as at random, so two
/// are always written, into the list that is never read where there is only one.
void PutInto(RowLists& rows, std::uint32_t low, std::uint32_t high, std::uint32_t thing) {
    const auto unread = static_cast<std::uint32_t>(rows.heads.size() - 1);
    Put(rows, low, thing);
    Put(rows, high == low ? unread : high, thing);
    for (std::uint32_t row = low + 1; row < high; ++row) {
        Put(rows, row, thing);
    }
}

/// Edge n of a ring ends in vertex n.
RowLists SortEdges(const OuterRing& ring, double rowHeight) {
    const auto& [points, measure] = ring;
    RowLists rows = LayRows(measure.bottom, measure.top, rowHeight, points.size());
    std::uint32_t before = RowOf(rows, points.back().y);
    for (std::uint32_t n = 0; n < points.size(); ++n) {
        const std::uint32_t here = RowOf(rows, points[n].y);
        PutInto(rows, std::min(before, here), std::max(before, here), n);
        before = here;
    }
    return rows;
}

RowLists SortBoxes(std::span<const OuterRing> outers, double rowHeight) {
    double bottom = std::numeric_limits<double>::infinity();
    double top = -bottom;
    for (const OuterRing& outer : outers) {
        bottom = std::min(bottom, outer.measure.bottom);
        top = std::max(top, outer.measure.top);
    }
    RowLists rows = LayRows(bottom, top, rowHeight, outers.size());
    for (std::uint32_t o = 0; o < outers.size(); ++o) {
        const RingMeasure& box = outers[o].measure;
        PutInto(rows, RowOf(rows, box.bottom), RowOf(rows, box.top), o);
    }
    return rows;
}

/// True when a ray from `p` towards +x meets the edge. Only an edge beside whose ends `p` lies
/// needs the place where it is met.
bool RayMeets(Point2D a, Point2D b, Point2D p) {
    const bool passes = (a.y > p.y) != (b.y > p.y);
    bool right = a.x > p.x;
    if (right != (b.x > p.x)) {
        right = a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y) > p.x;
    }
    return passes & right;
}

bool Contains(std::span<const Point2D> ring, Point2D p) {
    bool odd = false;
    Point2D a = ring.back();
    for (const Point2D& b : ring) {
        odd ^= RayMeets(a, b, p);
        a = b;
    }
    return odd;
}

bool Contains(std::span<const Point2D> ring, const RowLists& rows, Point2D p) {
    bool odd = false;
    std::uint32_t e = rows.heads[RowOf(rows, p.y)];
    while (e != NoEntry) {
        const auto [n, next] = rows.entries[e];
        odd ^= RayMeets(ring[n > 0 ? n - 1 : ring.size() - 1], ring[n], p);
        e = next;
    }
    return odd;
}

bool InBox(const RingMeasure& box, Point2D p) {
    return (p.x >= box.left) & (p.x < box.right) & (p.y >= box.bottom) & (p.y < box.top);
}

/// True when outer ring `a` is to be preferred to `b`.
bool IsNearer(std::span<const OuterRing> outers, std::size_t a, std::size_t b) {
    const double areaA = outers[a].measure.area;
    const double areaB = outers[b].measure.area;
    return areaA < areaB || (areaA == areaB && a < b);
}

} // namespace

RingMeasure MeasureRing(std::span<const Point2D> ring) {
    const Point2D origin = ring.front();
    RingMeasure measure{0.0, origin.x, origin.x, origin.y, origin.y};
    Point2D a{0.0, 0.0};
    for (const Point2D& point : ring.subspan(1)) {
        measure.left = std::min(measure.left, point.x);
        measure.right = std::max(measure.right, point.x);
        measure.bottom = std::min(measure.bottom, point.y);
        measure.top = std::max(measure.top, point.y);
        const Point2D b{point.x - origin.x, point.y - origin.y};
        measure.area += a.x * b.y - b.x * a.y;
        a = b;
    }
    measure.area /= 2;
    return measure;
}

std::vector<std::size_t> FindOwners(std::span<const Point2D> points,
                                    std::span<const OuterRing> outers, double rowHeight) {
    std::vector<std::size_t> owners(points.size(), NoOwner);
    if (points.empty() || outers.empty()) {
        return owners;
    }
    const RowLists boxes = SortBoxes(outers, rowHeight);
    std::vector<RowLists> edges; // of the large rings that were asked for
    std::vector<std::uint32_t> edgesOf(outers.size(), NoEntry);
    for (std::size_t k = 0; k < points.size(); ++k) {
        const Point2D p = points[k];
        std::uint32_t e = boxes.heads[RowOf(boxes, p.y)];
        while (e != NoEntry) {
            const auto [o, next] = boxes.entries[e];
            e = next;
            const OuterRing& outer = outers[o];
            if (!InBox(outer.measure, p) ||
                (owners[k] != NoOwner && !IsNearer(outers, o, owners[k]))) {
                continue;
            }
            const bool large = outer.points.size() > LargeRing;
            if (large && edgesOf[o] == NoEntry) {
                edgesOf[o] = static_cast<std::uint32_t>(edges.size());
                edges.push_back(SortEdges(outer, rowHeight));
            }
            if (large ? Contains(outer.points, edges[edgesOf[o]], p) : Contains(outer.points, p)) {
                owners[k] = o;
            }
        }
    }
    return owners;
}

} // namespace Merivane::Simulation
