#include "Workbench/Bodies/PolygonRings.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

/// Below this a ring has no area [m2].
constexpr double NoArea = 1e-12;

/// Appends what lies between the ends of an arc. A positive angle is an arc to the right of its
/// chord: it runs counter-clockwise around a centre on the left.
void AppendArcInside(PlanRing& ring, Coordinate from, Coordinate to, double angle) {
    const double half = std::tan(angle / 2.0);
    // Center of the arc: off the middle of the chord by half its length over tan(angle / 2).
    const double offset = 1.0 / (2.0 * half);
    const Coordinate chord{to.x - from.x, to.y - from.y};
    const Coordinate center{from.x + chord.x / 2.0 - chord.y * offset,
                            from.y + chord.y / 2.0 + chord.x * offset};
    const Coordinate spoke{from.x - center.x, from.y - center.y};
    const int count = ChordCount(angle);
    for (int i = 1; i < count; ++i) {
        const double turn = angle * i / count;
        const double cosine = std::cos(turn);
        const double sine = std::sin(turn);
        ring.push_back({center.x + spoke.x * cosine - spoke.y * sine,
                        center.y + spoke.x * sine + spoke.y * cosine});
    }
}

void DropRepeats(PlanRing& ring) {
    ring.erase(std::unique(ring.begin(), ring.end()), ring.end());
    while (ring.size() > 1 && ring.front() == ring.back()) {
        ring.pop_back();
    }
}

} // namespace

int ChordCount(double angle) {
    return std::max(1, static_cast<int>(std::ceil(std::abs(angle) / LargestChordAngle - 1e-9)));
}

PlanRing ContourRing(const Host::Contour& contour) {
    PlanRing ring;
    for (std::size_t i = 0; i < contour.vertices.size(); ++i) {
        ring.push_back(contour.vertices[i]);
        const auto arc =
            std::find_if(contour.arcs.begin(), contour.arcs.end(),
                         [&](const Host::PolygonArc& candidate) { return candidate.from == i; });
        const Coordinate next = contour.vertices[(i + 1) % contour.vertices.size()];
        if (arc != contour.arcs.end() && arc->angle != 0.0 && !(next == contour.vertices[i])) {
            AppendArcInside(ring, contour.vertices[i], next, arc->angle);
        }
    }
    DropRepeats(ring);
    return ring;
}

double SignedArea(const PlanRing& ring) {
    double doubled = 0.0;
    for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
        const Coordinate a{ring[i].x - ring[0].x, ring[i].y - ring[0].y};
        const Coordinate b{ring[i + 1].x - ring[0].x, ring[i + 1].y - ring[0].y};
        doubled += a.x * b.y - a.y * b.x;
    }
    return doubled / 2.0;
}

std::vector<PlanRing> PolygonRings(const Host::Polygon& polygon) {
    std::vector<PlanRing> rings;
    for (const Host::Contour& contour : polygon) {
        PlanRing ring = ContourRing(contour);
        const double area = SignedArea(ring);
        if (std::abs(area) <= NoArea) {
            if (rings.empty()) {
                return {};
            }
            continue;
        }
        if ((area > 0.0) != rings.empty()) {
            std::reverse(ring.begin(), ring.end());
        }
        rings.push_back(std::move(ring));
    }
    return rings;
}

} // namespace Merivane::Workbench
