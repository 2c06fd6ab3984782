#include "Simulation/BandRings.hpp"

#include <cmath>
#include <utility>

namespace Merivane::Simulation {

namespace {

/// Turn to the left at `at` on the way from `previous` to `next` [rad]; -pi to pi.
double TurnAngle(Point2D previous, Point2D at, Point2D next) {
    const Point2D u{at.x - previous.x, at.y - previous.y};
    const Point2D v{next.x - at.x, next.y - at.y};
    return std::atan2(v.y * u.x - v.x * u.y, v.x * u.x + v.y * u.y);
}

/// Which way goes on at a node with two ways out. Of equal turns, and where neither is a number,
/// the first.
std::uint32_t LeftmostWay(const ContourMesh& mesh, std::uint32_t previous, std::uint32_t at) {
    const MeshLinks& next = mesh.links[at];
    if (next[0] == NoSlot || next[1] == NoSlot) {
        return next[0] == NoSlot ? 1 : 0;
    }
    double best = -1e9;
    std::uint32_t chosen = 0;
    for (std::uint32_t way = 0; way < 2; ++way) {
        const Point2D to = mesh.vertices[(next[way] & ~PinchFlag) >> 1U].Point();
        const double angle =
            TurnAngle(mesh.vertices[previous].Point(), mesh.vertices[at].Point(), to);
        if (angle > best) {
            best = angle;
            chosen = way;
        }
    }
    return chosen;
}

/// Follows the boundary that leaves `start` by `way`. Every way that is taken is taken away, so no
/// boundary is found twice.
void TraceRing(ContourMesh& mesh, std::uint32_t start, std::uint32_t way,
               std::vector<Point2D>& points) {
    std::uint32_t at = start;
    do {
        points.push_back(mesh.vertices[at].Point());
        const std::uint32_t slot = std::exchange(mesh.links[at][way], NoSlot);
        const std::uint32_t previous = at;
        at = (slot & ~PinchFlag) >> 1U;
        way = slot & 1U;
        if ((slot & PinchFlag) != 0 && at != start) {
            way = LeftmostWay(mesh, previous, at);
        }
    } while (at != start);
}

} // namespace

void ForEachBandRing(ContourMesh mesh, const BandRingVisitor& visit) {
    std::vector<Point2D> ring;
    for (std::uint32_t v = 0; v < mesh.count; ++v) {
        for (std::uint32_t way = 0; way < 2; ++way) {
            if (mesh.links[v][way] == NoSlot) {
                continue;
            }
            const MeshVertex& vertex = mesh.vertices[v];
            const bool aboveLevel = vertex.key != NoKey && way == HighOnLeft;
            ring.clear();
            TraceRing(mesh, v, way, ring);
            visit(vertex.level + (aboveLevel ? 1U : 0U), ring);
        }
    }
}

} // namespace Merivane::Simulation
