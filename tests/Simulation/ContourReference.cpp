#include "ContourReference.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include "Simulation/CellSegments.hpp"

namespace Merivane::Tests {

using namespace Simulation;

namespace {

using Ring = std::vector<Point2D>;

struct Lattice {
    const CalculationGrid& grid;
    const std::vector<double>& values;

    Point2D PointOf(std::int64_t i, std::int64_t j) const {
        return {grid.originX + static_cast<double>(i) * grid.stepX,
                grid.originY + static_cast<double>(j) * grid.stepY};
    }
    double ValueOf(std::int64_t i, std::int64_t j) const {
        return values[static_cast<std::size_t>(j * grid.columns + i)];
    }
};

struct CellView {
    std::int64_t i;
    std::int64_t j;
    double c[4];
};

/// The cells with four values, rows ascending, columns ascending.
std::vector<CellView> CellsOf(const Lattice& lattice) {
    std::vector<CellView> cells;
    for (std::int64_t j = 0; j + 1 < lattice.grid.rows; ++j) {
        for (std::int64_t i = 0; i + 1 < lattice.grid.columns; ++i) {
            const CellView cell{i,
                                j,
                                {lattice.ValueOf(i, j), lattice.ValueOf(i + 1, j),
                                 lattice.ValueOf(i + 1, j + 1), lattice.ValueOf(i, j + 1)}};
            if (std::none_of(cell.c, cell.c + 4, [](double v) { return std::isnan(v); })) {
                cells.push_back(cell);
            }
        }
    }
    return cells;
}

std::uint64_t KeyOf(const Lattice& lattice, const CellView& cell, unsigned e) {
    const auto columns = static_cast<std::uint64_t>(lattice.grid.columns);
    const std::uint64_t n =
        static_cast<std::uint64_t>(cell.j) * columns + static_cast<std::uint64_t>(cell.i);
    const std::uint64_t keys[4] = {2 * n, 2 * (n + 1) + 1, 2 * (n + columns), 2 * n + 1};
    return keys[e];
}

struct EdgeEnds {
    Point2D a;
    Point2D b;
    double fa;
    double fb;
};

EdgeEnds EndsOf(const Lattice& lattice, const CellView& cell, unsigned e) {
    constexpr unsigned starts[4] = {0, 1, 3, 0};
    constexpr unsigned ends[4] = {1, 2, 2, 3};
    constexpr std::int64_t right[4] = {0, 1, 1, 0};
    constexpr std::int64_t up[4] = {0, 0, 1, 1};
    const unsigned s = starts[e];
    const unsigned t = ends[e];
    return {lattice.PointOf(cell.i + right[s], cell.j + up[s]),
            lattice.PointOf(cell.i + right[t], cell.j + up[t]), cell.c[s], cell.c[t]};
}

Point2D CrossingOn(const EdgeEnds& e, double level) {
    const double t = e.fa == e.fb ? 0.5 : (level - e.fa) / (e.fb - e.fa);
    return {e.a.x + t * (e.b.x - e.a.x), e.a.y + t * (e.b.y - e.a.y)};
}

struct Adjacent {
    std::uint64_t other;
    std::size_t segment;
};

struct LevelGraph {
    std::map<std::uint64_t, Point2D> points;
    std::multimap<std::uint64_t, Adjacent> adjacency;
    std::vector<bool> used;
};

LevelGraph GraphOf(const Lattice& lattice, double level) {
    LevelGraph graph;
    for (const CellView& cell : CellsOf(lattice)) {
        const auto list = CellSegments(cell.c[0], cell.c[1], cell.c[2], cell.c[3], level);
        for (std::size_t s = 0; s < list.count; ++s) {
            const unsigned edges[2] = {list.pairs[s].first, list.pairs[s].second};
            std::uint64_t keys[2];
            for (int k = 0; k < 2; ++k) {
                keys[k] = KeyOf(lattice, cell, edges[k]);
                graph.points.try_emplace(keys[k],
                                         CrossingOn(EndsOf(lattice, cell, edges[k]), level));
            }
            graph.adjacency.insert({keys[0], {keys[1], graph.used.size()}});
            graph.adjacency.insert({keys[1], {keys[0], graph.used.size()}});
            graph.used.push_back(false);
        }
    }
    return graph;
}

IsoCurve WalkFrom(LevelGraph& graph, std::uint64_t k0, double level) {
    IsoCurve curve;
    curve.level = level;
    curve.points.push_back(graph.points.at(k0));
    std::uint64_t key = k0;
    while (true) {
        auto [entry, end] = graph.adjacency.equal_range(key);
        while (entry != end && graph.used[entry->second.segment]) {
            ++entry;
        }
        if (entry == end) {
            break;
        }
        graph.used[entry->second.segment] = true;
        key = entry->second.other;
        curve.points.push_back(graph.points.at(key));
    }
    curve.closed = key == k0 && curve.points.size() > 2;
    return curve;
}

} // namespace

std::vector<IsoCurve> ReferenceIsolines(const GridField& field, const LevelList& levels) {
    std::vector<IsoCurve> curves;
    const Lattice lattice{*field.grid, field.values};
    for (const double level : levels) {
        LevelGraph graph = GraphOf(lattice, level);
        for (const auto& [key, point] : graph.points) {
            if (graph.adjacency.count(key) == 1 &&
                !graph.used[graph.adjacency.find(key)->second.segment]) {
                curves.push_back(WalkFrom(graph, key, level));
            }
        }
        for (const auto& [key, adjacent] : graph.adjacency) {
            if (!graph.used[adjacent.segment]) {
                curves.push_back(WalkFrom(graph, key, level));
            }
        }
    }
    return curves;
}

namespace {

using Vertex = std::uint32_t;
using VertexKey = std::tuple<std::int64_t, std::uint64_t, int>;
using EdgeSet = std::map<std::pair<Vertex, Vertex>, int>;

struct BandBuilder {
    std::vector<Point2D> vertices;
    std::map<VertexKey, Vertex> numbers;
    std::vector<EdgeSet> bands;
    BandTrouble trouble;

    Vertex NumberOf(const VertexKey& key, Point2D point) {
        const auto [entry, isNew] = numbers.try_emplace(key, static_cast<Vertex>(vertices.size()));
        if (isNew) {
            vertices.push_back(point);
        }
        return entry->second;
    }
};

struct Element {
    Vertex vertex = 0;
    std::int64_t level = -1;
    unsigned edge = 0;
    bool live = false;
    bool visited = false;
    std::optional<std::size_t> link;
};

/// The levels that bound a band.
struct Bounds {
    std::int64_t lower; ///< -1 for none
    std::int64_t upper; ///< -1 for none
};

bool InBand(double value, const Bounds& bounds, const LevelList& levels) {
    return (bounds.lower < 0 || value >= levels[static_cast<std::size_t>(bounds.lower)]) &&
           (bounds.upper < 0 || value < levels[static_cast<std::size_t>(bounds.upper)]);
}

std::vector<Element> PerimeterOf(BandBuilder& builder, const Lattice& lattice, const CellView& cell,
                                 const Bounds& bounds, const LevelList& levels) {
    constexpr std::int64_t right[4] = {0, 1, 1, 0};
    constexpr std::int64_t up[4] = {0, 0, 1, 1};
    std::vector<Element> ring;
    for (unsigned e = 0; e < 4; ++e) {
        const std::int64_t i = cell.i + right[e];
        const std::int64_t j = cell.j + up[e];
        const auto node = static_cast<std::uint64_t>(j * lattice.grid.columns + i);
        Element corner;
        corner.vertex = builder.NumberOf({-1, node, 0}, lattice.PointOf(i, j));
        corner.live = InBand(cell.c[e], bounds, levels);
        ring.push_back(corner);
        const double here = cell.c[e];
        const double there = cell.c[(e + 1) % 4];
        std::vector<std::int64_t> crossing;
        for (const std::int64_t k : {bounds.lower, bounds.upper}) {
            if (k >= 0 && (here >= levels[static_cast<std::size_t>(k)]) !=
                              (there >= levels[static_cast<std::size_t>(k)])) {
                crossing.push_back(k);
            }
        }
        if (crossing.size() == 2 && there < here) {
            std::swap(crossing[0], crossing[1]);
        }
        for (const std::int64_t k : crossing) {
            const double level = levels[static_cast<std::size_t>(k)];
            Element element;
            element.vertex = builder.NumberOf({k, KeyOf(lattice, cell, e), 1},
                                              CrossingOn(EndsOf(lattice, cell, e), level));
            element.level = k;
            element.edge = e;
            element.live = k == bounds.lower ? there >= level : there < level;
            ring.push_back(element);
        }
    }
    return ring;
}

std::optional<std::size_t> FindElement(const std::vector<Element>& ring, std::int64_t level,
                                       unsigned edge) {
    for (std::size_t k = 0; k < ring.size(); ++k) {
        if (ring[k].level == level && ring[k].edge == edge) {
            return k;
        }
    }
    return std::nullopt;
}

void LinkAcross(std::vector<Element>& ring, const CellView& cell, const Bounds& bounds,
                const LevelList& levels) {
    for (const std::int64_t k : {bounds.lower, bounds.upper}) {
        if (k < 0) {
            continue;
        }
        const auto list = CellSegments(cell.c[0], cell.c[1], cell.c[2], cell.c[3],
                                       levels[static_cast<std::size_t>(k)]);
        for (std::size_t s = 0; s < list.count; ++s) {
            const auto first = FindElement(ring, k, list.pairs[s].first);
            const auto second = FindElement(ring, k, list.pairs[s].second);
            if (first && second) {
                ring[*first].link = second;
                ring[*second].link = first;
            }
        }
    }
}

/// Empty when the loop was given up.
std::vector<Vertex> LoopFrom(std::vector<Element>& ring, std::size_t start) {
    std::vector<Vertex> loop;
    std::size_t current = start;
    for (std::size_t steps = 0; steps <= 4 * ring.size() + 4; ++steps) {
        loop.push_back(ring[current].vertex);
        ring[current].visited = true;
        current = (current + 1) % ring.size();
        if (!ring[current].live) {
            loop.push_back(ring[current].vertex);
            if (!ring[current].link || !ring[*ring[current].link].live) {
                return {};
            }
            current = *ring[current].link;
        }
        if (current == start) {
            return loop;
        }
    }
    return {};
}

void Feed(EdgeSet& edges, const std::vector<Vertex>& loop) {
    for (std::size_t k = 0; k < loop.size(); ++k) {
        const Vertex a = loop[k];
        const Vertex b = loop[(k + 1) % loop.size()];
        if (a == b) {
            continue;
        }
        const auto opposite = edges.find({b, a});
        if (opposite == edges.end()) {
            ++edges[{a, b}];
        } else if (--opposite->second == 0) {
            edges.erase(opposite);
        }
    }
}

void FeedCell(BandBuilder& builder, const Lattice& lattice, const CellView& cell,
              const LevelList& levels) {
    const auto n = static_cast<std::int64_t>(levels.size());
    const double lo = *std::min_element(cell.c, cell.c + 4);
    const double hi = *std::max_element(cell.c, cell.c + 4);
    for (std::int64_t k = 0; k <= n; ++k) {
        if ((k > 0 && levels[static_cast<std::size_t>(k - 1)] > hi) ||
            (k < n && lo >= levels[static_cast<std::size_t>(k)])) {
            continue;
        }
        const Bounds bounds{k - 1, k < n ? k : -1};
        std::vector<Element> ring = PerimeterOf(builder, lattice, cell, bounds, levels);
        LinkAcross(ring, cell, bounds, levels);
        for (std::size_t start = 0; start < ring.size(); ++start) {
            if (!ring[start].live || ring[start].visited) {
                continue;
            }
            const auto loop = LoopFrom(ring, start);
            if (loop.size() >= 3) {
                Feed(builder.bands[static_cast<std::size_t>(k)], loop);
            } else {
                ++builder.trouble.openLoops;
            }
        }
    }
}

using Successors = std::multimap<Vertex, Vertex>;

Successors::iterator LeftmostOf(const BandBuilder& builder, Successors& successors, Vertex previous,
                                Vertex current) {
    auto [entry, end] = successors.equal_range(current);
    auto best = entry;
    double largest = -1e9;
    const Point2D p = builder.vertices[previous];
    const Point2D c = builder.vertices[current];
    for (; entry != end; ++entry) {
        const Point2D q = builder.vertices[entry->second];
        const Point2D u{c.x - p.x, c.y - p.y};
        const Point2D v{q.x - c.x, q.y - c.y};
        const double angle = std::atan2(v.y * u.x - v.x * u.y, v.x * u.x + v.y * u.y);
        if (angle > largest) {
            largest = angle;
            best = entry;
        }
    }
    return best;
}

std::vector<Ring> StitchBand(BandBuilder& builder, const EdgeSet& edges) {
    Successors successors;
    for (const auto& [edge, count] : edges) {
        for (int k = 0; k < count; ++k) {
            successors.insert({edge.first, edge.second});
        }
    }
    std::vector<Ring> rings;
    while (!successors.empty()) {
        const auto [start, second] = *successors.begin();
        successors.erase(successors.begin());
        Ring ring{builder.vertices[start]};
        Vertex previous = start;
        Vertex current = second;
        bool abandoned = false;
        for (std::size_t steps = 0; current != start; ++steps) {
            ring.push_back(builder.vertices[current]);
            if (successors.count(current) == 0 || steps > edges.size() + 1) {
                abandoned = true;
                break;
            }
            const auto next = LeftmostOf(builder, successors, previous, current);
            previous = current;
            current = next->second;
            successors.erase(next);
        }
        if (abandoned) {
            ++builder.trouble.abandonedRings;
        } else {
            rings.push_back(ring);
        }
    }
    return rings;
}

double AreaOf(const Ring& ring) {
    double twice = 0.0;
    const Point2D o = ring[0];
    for (std::size_t k = 2; k < ring.size(); ++k) {
        twice +=
            (ring[k - 1].x - o.x) * (ring[k].y - o.y) - (ring[k].x - o.x) * (ring[k - 1].y - o.y);
    }
    return twice / 2;
}

bool Contains(const Ring& ring, Point2D p) {
    bool inside = false;
    for (std::size_t k = 0; k < ring.size(); ++k) {
        const Point2D a = ring[(k + ring.size() - 1) % ring.size()];
        const Point2D b = ring[k];
        if ((a.y > p.y) != (b.y > p.y) && a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y) > p.x) {
            inside = !inside;
        }
    }
    return inside;
}

void AssignHole(std::vector<BandPolygon>& polygons, const Ring& hole, double distance) {
    const double x = hole[1].x - hole[0].x;
    const double y = hole[1].y - hole[0].y;
    const double length = std::sqrt(x * x + y * y);
    const Point2D p{(hole[0].x + hole[1].x) * 0.5 - y / length * distance,
                    (hole[0].y + hole[1].y) * 0.5 + x / length * distance};
    BandPolygon* owner = nullptr;
    for (BandPolygon& polygon : polygons) {
        if (Contains(polygon.outer, p) &&
            (owner == nullptr || AreaOf(polygon.outer) < AreaOf(owner->outer))) {
            owner = &polygon;
        }
    }
    if (owner != nullptr) {
        owner->holes.push_back(hole);
    }
}

std::vector<BandPolygon> PolygonsOf(const std::vector<Ring>& rings, double distance) {
    std::vector<BandPolygon> polygons;
    std::vector<Ring> holes;
    for (const Ring& raw : rings) {
        const Ring ring = ReferenceSimplify(raw);
        if (ring.size() < 3) {
            continue;
        }
        if (AreaOf(ring) > 0) {
            polygons.push_back({ring, {}});
        } else if (AreaOf(ring) < 0) {
            holes.push_back(ring);
        }
    }
    for (const Ring& hole : holes) {
        AssignHole(polygons, hole, distance);
    }
    return polygons;
}

} // namespace

std::vector<ColorBand> ReferenceBands(const GridField& field, const LevelList& levels,
                                      BandTrouble& trouble, std::vector<double>* signedAreas) {
    const Lattice lattice{*field.grid, field.values};
    BandBuilder builder;
    builder.bands.resize(levels.size() + 1);
    for (const CellView& cell : CellsOf(lattice)) {
        FeedCell(builder, lattice, cell, levels);
    }
    std::vector<ColorBand> bands;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (std::size_t k = 0; k < builder.bands.size(); ++k) {
        const std::vector<Ring> rings = StitchBand(builder, builder.bands[k]);
        if (signedAreas != nullptr) {
            signedAreas->push_back(0.0);
            for (const Ring& ring : rings) {
                signedAreas->back() += AreaOf(ring);
            }
        }
        ColorBand band{k, k > 0 ? levels[k - 1] : -infinity,
                       k < levels.size() ? levels[k] : infinity,
                       PolygonsOf(rings, std::min(field.grid->stepX, field.grid->stepY) * 1e-6)};
        if (!band.polygons.empty()) {
            bands.push_back(band);
        }
    }
    trouble = builder.trouble;
    return bands;
}

std::vector<Point2D> ReferenceSimplify(std::vector<Point2D> ring) {
    bool removed = true;
    while (removed && ring.size() >= 3) {
        removed = false;
        std::size_t i = 0;
        while (i < ring.size() && ring.size() >= 3) {
            const std::size_t n = ring.size();
            const Point2D before = ring[(i + n - 1) % n];
            const Point2D after = ring[(i + 1) % n];
            const Point2D a{ring[i].x - before.x, ring[i].y - before.y};
            const Point2D b{after.x - ring[i].x, after.y - ring[i].y};
            const double lengthA = std::sqrt(a.x * a.x + a.y * a.y);
            const double lengthB = std::sqrt(b.x * b.x + b.y * b.y);
            const double cross = a.x * b.y - a.y * b.x;
            const bool straight = lengthB > 1e-12 && std::abs(cross) <= 1e-9 * lengthA * lengthB &&
                                  a.x * b.x + a.y * b.y > 0;
            if (lengthA < 1e-4 || straight) {
                ring.erase(ring.begin() + static_cast<std::ptrdiff_t>(i));
                removed = true;
            } else {
                ++i;
            }
        }
    }
    return ring;
}

} // namespace Merivane::Tests
