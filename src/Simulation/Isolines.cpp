// Chains the crossings of the mesh. Order of the curves of a level: open ones by the key of the end
// that is met first, then closed ones by their smallest key, which is always that of an upright
// edge: below a horizontal one the curve would run on to a smaller key.
#include "Simulation/Isolines.hpp"

#include "Simulation/ContourMesh.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <tuple>

namespace Merivane::Simulation {

namespace {

/// The crossing is in a curve already.
constexpr std::uint32_t UsedLevel = 0xFFFFFFFF;

struct OpenEnd {
    std::uint32_t level;
    std::uint32_t key;
    std::uint32_t vertex;

    bool operator<(const OpenEnd& other) const {
        return std::tie(level, key) < std::tie(other.level, other.key);
    }
};

/// Both ends of every open curve, by level, then key. Every crossing is linked at least once.
std::vector<OpenEnd> FindOpenEnds(std::span<const MeshVertex> vertices) {
    std::vector<OpenEnd> ends;
    for (std::uint32_t v = 0; v < vertices.size(); ++v) {
        const auto& next = vertices[v].next;
        if (next[HighOnLeft] == NoSlot || next[LowOnLeft] == NoSlot) {
            ends.push_back({vertices[v].level, vertices[v].key, v});
        }
    }
    std::sort(ends.begin(), ends.end());
    return ends;
}

/// Follows one way from `start` until it ends or comes back, and marks what it meets as used.
IsoCurve Walk(std::span<MeshVertex> vertices, std::uint32_t start, MeshWay way, double level,
              std::vector<Point2D>& points) {
    points.clear();
    std::uint32_t slot = 2 * start + way;
    while (slot != NoSlot) {
        MeshVertex& vertex = vertices[slot >> 1U];
        points.push_back(vertex.Point());
        if (vertex.level == UsedLevel) {
            break;
        }
        vertex.level = UsedLevel;
        slot = vertex.next[way];
    }
    IsoCurve curve;
    curve.level = level;
    curve.closed = slot != NoSlot;
    curve.points.assign(points.begin(), points.end());
    return curve;
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
    const std::span<MeshVertex> vertices = mesh.All();
    std::vector<std::vector<IsoCurve>> byLevel(levels.size());
    std::vector<Point2D> points;
    for (const OpenEnd& end : FindOpenEnds(vertices)) {
        const MeshVertex& vertex = vertices[end.vertex];
        if (vertex.level != UsedLevel) {
            const MeshWay way = vertex.next[HighOnLeft] != NoSlot ? HighOnLeft : LowOnLeft;
            byLevel[end.level].push_back(
                Walk(vertices, end.vertex, way, levels[end.level], points));
        }
    }
    for (std::uint32_t v = 0; v < vertices.size(); ++v) {
        const std::uint32_t level = vertices[v].level;
        if (level != UsedLevel && (vertices[v].key & 1U) != 0) {
            byLevel[level].push_back(
                Walk(vertices, v, FirstWay(mesh, vertices[v]), levels[level], points));
        }
    }
    for (auto& some : byLevel) {
        std::move(some.begin(), some.end(), std::back_inserter(curves));
    }
    return curves;
}

} // namespace Merivane::Simulation
