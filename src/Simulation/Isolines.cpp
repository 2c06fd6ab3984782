// Chains the crossings of the mesh. Order of the curves of a level: open ones by the key of the end
// that is met first, then closed ones by their smallest key, which is always that of an upright
// edge: below a horizontal one the curve would run on to a smaller key.
#include "Simulation/Isolines.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <tuple>

#include "Simulation/ContourMesh.hpp"

namespace Merivane::Simulation {

namespace {

/// Both ways out of a crossing that is in a curve already.
constexpr std::uint32_t UsedSlot = NoSlot - 1;

struct OpenEnd {
    std::uint32_t level;
    std::uint32_t key;
    std::uint32_t vertex;

    bool operator<(const OpenEnd& other) const {
        return std::tie(level, key) < std::tie(other.level, other.key);
    }
};

/// Both ends of every open curve, by level, then key. Every crossing is linked at least once.
std::vector<OpenEnd> FindOpenEnds(const ContourMesh& mesh) {
    std::vector<OpenEnd> ends;
    for (std::uint32_t v = 0; v < mesh.count; ++v) {
        const MeshLinks& next = mesh.links[v];
        if (next[HighOnLeft] == NoSlot || next[LowOnLeft] == NoSlot) {
            ends.push_back({mesh.vertices[v].level, mesh.vertices[v].key, v});
        }
    }
    std::sort(ends.begin(), ends.end());
    return ends;
}

/// Follows one way from `start` until it ends or comes back, and marks what it meets as used.
/// `points` is room to work in.
void Walk(ContourMesh& mesh, std::uint32_t start, MeshWay way, std::vector<Point2D>& points,
          IsoCurve& curve) {
    points.clear();
    std::uint32_t slot = 2 * start + way;
    do {
        const std::uint32_t at = slot >> 1U;
        points.push_back(mesh.vertices[at].Point());
        slot = mesh.links[at][way];
        mesh.links[at] = {UsedSlot, UsedSlot};
    } while (slot != NoSlot && slot >> 1U != start);
    curve.closed = slot != NoSlot;
    if (curve.closed) {
        points.push_back(points.front());
    }
    curve.points.assign(points.begin(), points.end());
}

/// The way that a closed curve takes from its smallest key: through the cell on the left of that
/// upright edge, which comes before the cell on its right.
MeshWay FirstWay(const ContourMesh& mesh, const MeshVertex& vertex) {
    const bool lowerEndAbove =
        mesh.reached[vertex.key / 2] > static_cast<std::int32_t>(vertex.level);
    return lowerEndAbove ? HighOnLeft : LowOnLeft;
}

} // namespace

std::vector<IsoCurve> ExtractIsolines(const GridField& field, const LevelList& levels) {
    std::vector<IsoCurve> curves;
    if (!HasCells(field) || levels.empty()) {
        return curves;
    }
    ContourMesh mesh = BuildContourMesh(field, levels, MeshBorder::None);
    std::vector<std::vector<IsoCurve>> byLevel(levels.size());
    std::vector<Point2D> points;
    for (const OpenEnd& end : FindOpenEnds(mesh)) {
        const MeshLinks& next = mesh.links[end.vertex];
        if (next[HighOnLeft] != UsedSlot) {
            const MeshWay way = next[HighOnLeft] != NoSlot ? HighOnLeft : LowOnLeft;
            IsoCurve& curve = byLevel[end.level].emplace_back();
            curve.level = levels[end.level];
            Walk(mesh, end.vertex, way, points, curve);
        }
    }
    for (std::uint32_t v = 0; v < mesh.count; ++v) {
        const MeshVertex& vertex = mesh.vertices[v];
        if (mesh.links[v][HighOnLeft] != UsedSlot && (vertex.key & 1U) != 0) {
            IsoCurve& curve = byLevel[vertex.level].emplace_back();
            curve.level = levels[vertex.level];
            Walk(mesh, v, FirstWay(mesh, vertex), points, curve);
        }
    }
    std::size_t count = 0;
    for (const auto& some : byLevel) {
        count += some.size();
    }
    curves.reserve(count);
    for (auto& some : byLevel) {
        std::move(some.begin(), some.end(), std::back_inserter(curves));
    }
    return curves;
}

} // namespace Merivane::Simulation
