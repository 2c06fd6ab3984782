#include "Workbench/Project/DrawnExtent.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

constexpr double WholeTurn = 2.0 * std::numbers::pi;

Coordinate OnCircle(const Coordinate& center, double radius, double angle) {
    return {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)};
}

// The ends, and each quarter point of the circle that the turn from `begin` by `sweep` passes.
void AddTurn(Extent& extent, const Coordinate& center, double radius, double begin, double sweep) {
    const double low = std::min(begin, begin + sweep);
    const double high = std::max(begin, begin + sweep);
    AddPlace(extent, OnCircle(center, radius, begin));
    AddPlace(extent, OnCircle(center, radius, begin + sweep));
    constexpr double quarter = WholeTurn / 4.0;
    const std::array<Coordinate, 4> quarters = {
        Coordinate{center.x + radius, center.y}, Coordinate{center.x, center.y + radius},
        Coordinate{center.x - radius, center.y}, Coordinate{center.x, center.y - radius}};
    const double last = std::floor(high / quarter);
    for (double turn = std::ceil(low / quarter); turn <= last; turn += 1.0) {
        const auto which = static_cast<std::size_t>(turn - 4.0 * std::floor(turn / 4.0));
        AddPlace(extent, quarters[which % 4]);
    }
}

// A side that bends by `angle`, positive where the arc lies to the right of its chord: then it
// turns counter-clockwise about a center to the left.
void AddBentSide(Extent& extent, const Coordinate& from, const Coordinate& to, double angle) {
    const double chord = std::hypot(to.x - from.x, to.y - from.y);
    const double toCenter = 0.5 / std::tan(angle / 2.0); // in chords, to the left
    const Coordinate center = {(from.x + to.x) / 2.0 - toCenter * (to.y - from.y),
                               (from.y + to.y) / 2.0 + toCenter * (to.x - from.x)};
    const double radius = std::abs(chord / 2.0 / std::sin(angle / 2.0));
    AddTurn(extent, center, radius, std::atan2(from.y - center.y, from.x - center.x), angle);
}

// Where the derivative of a cubic Bezier curve of one axis is 0, inside (0, 1).
void AddExtremes(Extent& extent, const std::array<Coordinate, 4>& p, double Coordinate::*axis) {
    const double a = p[3].*axis - 3.0 * p[2].*axis + 3.0 * p[1].*axis - p[0].*axis;
    const double b = 2.0 * (p[2].*axis - 2.0 * p[1].*axis + p[0].*axis);
    const double c = p[1].*axis - p[0].*axis;
    const double root = std::sqrt(std::max(b * b - 4.0 * a * c, 0.0));
    const std::array<double, 3> times = {(-b + root) / (2.0 * a), (-b - root) / (2.0 * a), -c / b};
    for (const double t : times) {
        if (t > 0.0 && t < 1.0) { // false for the quotients by 0 too
            const double s = 1.0 - t;
            const std::array<double, 4> share = {s * s * s, 3.0 * s * s * t, 3.0 * s * t * t,
                                                 t * t * t};
            Coordinate place;
            for (std::size_t i = 0; i < 4; ++i) {
                place.x += share[i] * p[i].x;
                place.y += share[i] * p[i].y;
            }
            AddPlace(extent, place);
        }
    }
}

Coordinate Along(const Coordinate& from, double angle, double length) {
    return OnCircle(from, length, angle);
}

} // namespace

void AddPlace(Extent& extent, const Coordinate& place) {
    if (extent.empty) {
        extent = {place, place, false};
        return;
    }
    extent.lowest = {std::min(extent.lowest.x, place.x), std::min(extent.lowest.y, place.y)};
    extent.highest = {std::max(extent.highest.x, place.x), std::max(extent.highest.y, place.y)};
}

void AddArc(Extent& extent, const Host::ArcData& arc) {
    double sweep = WholeTurn;
    if (!arc.whole) {
        sweep = std::fmod(arc.end - arc.begin, WholeTurn);
        sweep += sweep <= 0.0 ? WholeTurn : 0.0;
    }
    AddTurn(extent, arc.center, arc.radius, arc.begin, sweep);
}

void AddContour(Extent& extent, const Host::Contour& contour, bool closed) {
    for (const Coordinate& vertex : contour.vertices) {
        AddPlace(extent, vertex);
    }
    const std::size_t count = contour.vertices.size();
    for (const Host::PolygonArc& arc : contour.arcs) {
        const bool hasSide = arc.from < count && (closed || arc.from + 1 < count);
        if (hasSide && arc.angle != 0.0) {
            AddBentSide(extent, contour.vertices[arc.from],
                        contour.vertices[(arc.from + 1) % count], arc.angle);
        }
    }
}

void AddSpline(Extent& extent, const Host::ElementMemo& memo, bool closed) {
    const auto& points = memo.splinePoints;
    const auto& directions = memo.splineDirections;
    for (const Coordinate& point : points) {
        AddPlace(extent, point);
    }
    if (directions.size() != points.size()) {
        return;
    }
    for (std::size_t i = 0; i + (closed ? 0 : 1) < points.size(); ++i) {
        const std::size_t next = (i + 1) % points.size();
        const std::array<Coordinate, 4> curve = {
            points[i], Along(points[i], directions[i].angle, directions[i].lengthAfter),
            Along(points[next], directions[next].angle, -directions[next].lengthBefore),
            points[next]};
        AddExtremes(extent, curve, &Coordinate::x);
        AddExtremes(extent, curve, &Coordinate::y);
    }
}

} // namespace Merivane::Workbench
