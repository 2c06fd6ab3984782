#include "Workbench/Script/ShapeProfile.hpp"

#include <algorithm>
#include <cmath>

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

constexpr double NoArea = 1e-12; // m2

bool IsSamePlace(const Coordinate& a, const Coordinate& b) {
    return std::hypot(a.x - b.x, a.y - b.y) <= NoShapeLength;
}

void DropPoint(ShapeRing& ring, std::size_t at) {
    const auto place = static_cast<std::ptrdiff_t>(at);
    ring.points.erase(ring.points.begin() + place);
    ring.pointRows.erase(ring.pointRows.begin() + place);
    ring.status.erase(ring.status.begin() + place);
    ring.edgeRows.erase(ring.edgeRows.begin() + place);
}

/// Of points in one place the last stays: the edge that leaves it has a length.
ShapeRing WithoutRepeats(const PolylineContour& contour) {
    ShapeRing ring;
    ring.closed = contour.closed;
    for (std::size_t i = 0; i < contour.points.size(); ++i) {
        if (i + 1 < contour.points.size() &&
            IsSamePlace(contour.points[i], contour.points[i + 1])) {
            continue;
        }
        ring.points.push_back(contour.points[i]);
        ring.pointRows.push_back(contour.rows[i]);
        ring.status.push_back(contour.status[i]);
        ring.edgeRows.push_back(contour.rows[i]);
    }
    return ring;
}

void CloseRing(ShapeRing& ring) {
    while (ring.points.size() > 1 && IsSamePlace(ring.points.front(), ring.points.back())) {
        DropPoint(ring, ring.points.size() - 1);
    }
    ring.closed = true;
}

void TurnRing(ShapeRing& ring) {
    std::reverse(ring.points.begin(), ring.points.end());
    std::reverse(ring.pointRows.begin(), ring.pointRows.end());
    // The edge behind the last point closes the ring in both directions.
    std::reverse(ring.status.begin(), ring.status.end());
    std::rotate(ring.status.begin(), ring.status.begin() + 1, ring.status.end());
    std::reverse(ring.edgeRows.begin(), ring.edgeRows.end());
    std::rotate(ring.edgeRows.begin(), ring.edgeRows.begin() + 1, ring.edgeRows.end());
}

void TurnHolesAgainstOutline(ShapeProfile& profile) {
    const bool outlineTurnsLeft = SignedArea(profile.rings.front().points) > 0.0;
    for (std::size_t i = 1; i < profile.rings.size(); ++i) {
        if ((SignedArea(profile.rings[i].points) > 0.0) == outlineTurnsLeft) {
            TurnRing(profile.rings[i]);
        }
    }
}

} // namespace

std::string ReadProfile(ShapeInput& input, const ShapeSketch& sketch, std::size_t count,
                        const RowLayout& layout, ShapeProfile& profile) {
    if (std::string refusal = CheckRest(input, count * layout.columns); !refusal.empty()) {
        return refusal;
    }
    profile.firstRow = input.at;
    profile.columns = layout.columns;
    std::vector<PolylineRow> rows(count);
    for (PolylineRow& row : rows) {
        row.x = input.numbers[input.at];
        row.y = input.numbers[input.at + 1];
        row.status = WholeStatus;
        if (layout.status > 0) {
            row.status = WholeArgument(input.numbers[input.at + layout.status]);
        }
        input.at += layout.columns;
    }
    std::vector<PolylineContour> contours;
    if (std::string refusal = ExpandPolyline(rows, input.curves, sketch.vertexRoom, contours);
        !refusal.empty()) {
        return refusal;
    }
    for (const PolylineContour& contour : contours) {
        profile.rings.push_back(WithoutRepeats(contour));
    }
    return {};
}

bool CloseProfile(ShapeProfile& profile) {
    if (profile.rings.empty()) {
        return false;
    }
    for (ShapeRing& ring : profile.rings) {
        CloseRing(ring);
    }
    const auto isFlat = [](const ShapeRing& ring) {
        return std::abs(SignedArea(ring.points)) <= NoArea;
    };
    if (isFlat(profile.rings.front())) {
        return false;
    }
    std::erase_if(profile.rings, isFlat);
    if (SignedArea(profile.rings.front().points) < 0.0) {
        TurnRing(profile.rings.front());
    }
    TurnHolesAgainstOutline(profile);
    return true;
}

bool KeepProfileOpen(ShapeProfile& profile) {
    for (ShapeRing& ring : profile.rings) {
        if (ring.closed ||
            (ring.points.size() > 2 && IsSamePlace(ring.points.front(), ring.points.back()))) {
            CloseRing(ring);
        }
    }
    const auto isPoint = [](const ShapeRing& ring) { return ring.points.size() < 2; };
    if (profile.rings.empty() || isPoint(profile.rings.front())) {
        return false;
    }
    std::erase_if(profile.rings, isPoint);
    TurnHolesAgainstOutline(profile);
    return true;
}

double RowNumber(const ShapeInput& input, const ShapeProfile& profile, std::size_t row,
                 std::size_t column) {
    return input.numbers[profile.firstRow + row * profile.columns + column];
}

Loft ProfileLoft(const ShapeProfile& profile, std::int32_t surface, bool closing) {
    Loft loft;
    for (const ShapeRing& ring : profile.rings) {
        loft.edges.resize(loft.edges.size() + ring.points.size(), {surface, true});
        loft.edges.back().present = ring.closed || closing;
        loft.ringEnds.push_back(loft.edges.size());
    }
    return loft;
}

PlanRing ProfilePoints(const ShapeProfile& profile) {
    PlanRing points;
    for (const ShapeRing& ring : profile.rings) {
        points.insert(points.end(), ring.points.begin(), ring.points.end());
    }
    return points;
}

bool MoveSides(const PlanRing& ring, const std::vector<double>& distances, PlanRing& moved) {
    constexpr double parallel = 1e-9;
    const std::size_t count = ring.size();
    const auto along = [](const Coordinate& a, const Coordinate& b) {
        const double length = std::hypot(b.x - a.x, b.y - a.y);
        return Coordinate{(b.x - a.x) / length, (b.y - a.y) / length};
    };
    moved.clear();
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t before = (i + count - 1) % count;
        const Coordinate in = along(ring[before], ring[i]);
        const Coordinate out = along(ring[i], ring[(i + 1) % count]);
        const double turn = in.x * out.y - in.y * out.x;
        if (std::abs(turn) <= parallel) {
            // Straight on: sides that move differently would need a step between them.
            const double distance = (distances[before] + distances[i]) / 2.0;
            moved.push_back({ring[i].x - out.y * distance, ring[i].y + out.x * distance});
            continue;
        }
        // The point whose distances from both sides are theirs.
        const double a = distances[before];
        const double b = distances[i];
        moved.push_back(
            {ring[i].x + (out.x * a - in.x * b) / turn, ring[i].y + (out.y * a - in.y * b) / turn});
    }
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t next = (i + 1) % count;
        if (!((ring[next].x - ring[i].x) * (moved[next].x - moved[i].x) +
                  (ring[next].y - ring[i].y) * (moved[next].y - moved[i].y) >
              0.0)) {
            return false;
        }
    }
    return true;
}

} // namespace Merivane::Workbench
