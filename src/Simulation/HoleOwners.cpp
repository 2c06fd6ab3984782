// Noise makes thousands of holes and thousands of outer rings, most of them small and a few that
// wind through the whole field. So the boxes of the rings are sorted into rows, and where a point
// lies in the box of a large ring, that ring's edges are sorted into rows too, once.
#include "Simulation/HoleOwners.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>

namespace Merivane::Simulation {

namespace {

/// Rings with more vertices get their edges sorted.
constexpr std::size_t LargeRing = 24;

struct Edge {
    Point2D a;
    Point2D b;
};

/// Rows of equal height.
struct Rows {
    double bottom = 0.0;
    double perMetre = 1.0;
    double last = 0.0; ///< number of the last row
};

/// Things by row, each in every row that it touches: those of row r are `items[starts[r]]` up to
/// `items[starts[r + 1]]`.
template <typename Item> struct Sorted {
    Rows rows;
    std::vector<std::uint32_t> starts;
    std::vector<Item> items;
};

Rows LayRows(double bottom, double top, double height) {
    constexpr double mostRows = 65536;
    Rows rows;
    rows.bottom = bottom;
    rows.perMetre = 1.0 / std::max(height, (top - bottom) / mostRows);
    rows.last = std::trunc((top - bottom) * rows.perMetre);
    return rows;
}

/// Never falls as y rises, so what passes the height of a point shares that point's row. Cut off,
/// not rounded down by `floor`, which is a call where the processor has no instruction.
std::uint32_t RowOf(const Rows& rows, double y) {
    const double row = (y - rows.bottom) * rows.perMetre;
    return static_cast<std::uint32_t>(std::min(std::max(row, 0.0), rows.last));
}

/// Sorts things into rows. `forEach(take)` calls take(item, first row, last row) for each, the same
/// ones in the same order each time. Most touch one or two rows, as good as at random, so that two
/// are always taken; where there is one, the second is a row behind the last that nobody reads.
template <typename Item, typename ForEach>
Sorted<Item> SortIntoRows(const Rows& rows, ForEach forEach) {
    const auto unread = static_cast<std::uint32_t>(rows.last) + 1;
    Sorted<Item> sorted{rows, {}, {}};
    // Counted two places on, so that filling moves each start to where it belongs.
    sorted.starts.assign(unread + 3, 0);
    forEach([&](const Item&, std::uint32_t first, std::uint32_t last) {
        ++sorted.starts[first + 2];
        ++sorted.starts[(last == first ? unread : last) + 2];
        for (std::uint32_t row = first + 1; row < last; ++row) {
            ++sorted.starts[row + 2];
        }
    });
    for (std::size_t r = 2; r < sorted.starts.size(); ++r) {
        sorted.starts[r] += sorted.starts[r - 1];
    }
    sorted.items.resize(sorted.starts.back());
    forEach([&](const Item& item, std::uint32_t first, std::uint32_t last) {
        sorted.items[sorted.starts[first + 1]++] = item;
        sorted.items[sorted.starts[(last == first ? unread : last) + 1]++] = item;
        for (std::uint32_t row = first + 1; row < last; ++row) {
            sorted.items[sorted.starts[row + 1]++] = item;
        }
    });
    return sorted;
}

template <typename Item> std::span<const Item> RowAt(const Sorted<Item>& sorted, double y) {
    const std::uint32_t row = RowOf(sorted.rows, y);
    return {sorted.items.data() + sorted.starts[row], sorted.starts[row + 1] - sorted.starts[row]};
}

template <typename Take> void ForEachEdge(std::span<const Point2D> ring, Take take) {
    Point2D a = ring.back();
    for (const Point2D& b : ring) {
        take(Edge{a, b});
        a = b;
    }
}

Sorted<Edge> SortEdges(const OuterRing& ring, double rowHeight) {
    const Rows rows = LayRows(ring.measure.bottom, ring.measure.top, rowHeight);
    return SortIntoRows<Edge>(rows, [&](auto take) {
        std::uint32_t before = RowOf(rows, ring.points.back().y);
        ForEachEdge(ring.points, [&](const Edge& edge) {
            const std::uint32_t here = RowOf(rows, edge.b.y);
            take(edge, std::min(before, here), std::max(before, here));
            before = here;
        });
    });
}

/// An outer ring in a row of boxes.
struct BoxInRow {
    double left = 0.0;
    double right = 0.0;
    double bottom = 0.0;
    double top = 0.0;
    std::uint32_t outer = 0;

    /// Beside a box a ray meets nothing of its ring or, as that is closed, an even number of edges.
    bool Has(Point2D p) const {
        return (p.x >= left) & (p.x < right) & (p.y >= bottom) & (p.y < top);
    }
};

Sorted<BoxInRow> SortBoxes(std::span<const OuterRing> outers, double rowHeight) {
    double bottom = std::numeric_limits<double>::infinity();
    double top = -bottom;
    for (const OuterRing& outer : outers) {
        bottom = std::min(bottom, outer.measure.bottom);
        top = std::max(top, outer.measure.top);
    }
    const Rows rows = LayRows(bottom, top, rowHeight);
    return SortIntoRows<BoxInRow>(rows, [&](auto take) {
        for (std::uint32_t o = 0; o < outers.size(); ++o) {
            const RingMeasure& box = outers[o].measure;
            take(BoxInRow{box.left, box.right, box.bottom, box.top, o}, RowOf(rows, box.bottom),
                 RowOf(rows, box.top));
        }
    });
}

/// Counts the edges that a ray from a point towards +x meets.
struct RayCount {
    Point2D p;
    unsigned met = 0;    ///< edges that pass the point's height on its right
    unsigned beside = 0; ///< edges that pass it between their ends: right or left remains open

    /// Without a branch: which edges pass is as good as random.
    void Add(const Edge& edge) {
        const unsigned passes = (edge.a.y > p.y) ^ (edge.b.y > p.y) ? 1 : 0;
        const unsigned aRight = edge.a.x > p.x ? 1 : 0;
        const unsigned bRight = edge.b.x > p.x ? 1 : 0;
        met += passes & aRight & bRight;
        beside += passes & (aRight ^ bRight);
    }

    /// For the edges that `Add` left open.
    void AddOpen(const Edge& edge) {
        const auto& [a, b] = edge;
        if ((a.y > p.y) != (b.y > p.y) && (a.x > p.x) != (b.x > p.x)) {
            met += a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y) > p.x ? 1 : 0;
        }
    }
};

/// Even-odd rule over the edges that `forEach` hands out.
template <typename ForEach> bool IsInside(Point2D p, ForEach forEach) {
    RayCount count{p};
    forEach([&](const Edge& edge) { count.Add(edge); });
    if (count.beside > 0) {
        forEach([&](const Edge& edge) { count.AddOpen(edge); });
    }
    return count.met % 2 != 0;
}

/// `edges` keeps the sorted edges of a large ring, from the first time that it is asked for.
bool Contains(const OuterRing& ring, std::unique_ptr<Sorted<Edge>>& edges, Point2D p,
              double rowHeight) {
    if (ring.points.size() <= LargeRing) {
        return IsInside(p, [&](auto take) { ForEachEdge(ring.points, take); });
    }
    if (edges == nullptr) {
        edges = std::make_unique<Sorted<Edge>>(SortEdges(ring, rowHeight));
    }
    const std::span<const Edge> row = RowAt(*edges, p.y);
    return IsInside(p, [&](auto take) { std::for_each(row.begin(), row.end(), take); });
}

/// True when outer ring `a` is to be preferred to `b`, which may be none.
bool IsNearer(std::span<const OuterRing> outers, std::size_t a, std::size_t b) {
    return b == NoOwner || outers[a].measure.area < outers[b].measure.area;
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
    const Sorted<BoxInRow> boxes = SortBoxes(outers, rowHeight);
    std::vector<std::unique_ptr<Sorted<Edge>>> edges(outers.size());
    for (std::size_t k = 0; k < points.size(); ++k) {
        const Point2D p = points[k];
        for (const BoxInRow& box : RowAt(boxes, p.y)) {
            const std::uint32_t o = box.outer;
            if (!box.Has(p) || !IsNearer(outers, o, owners[k])) {
                continue;
            }
            if (Contains(outers[o], edges[o], p, rowHeight)) {
                owners[k] = o;
            }
        }
    }
    return owners;
}

} // namespace Merivane::Simulation
