#include "Workbench/Display/CurvePoints.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

constexpr int MostChords = 2000; // of one arc or curve piece, whatever its size

// A chord over the angle a lies r (1 - cos(a / 2)) off its arc at most.
int ArcChords(double radius, double angle, double tolerance) {
    const double largest = 2.0 * std::acos(std::max(1.0 - tolerance / radius, 0.0));
    const double count = std::ceil(std::abs(angle) / largest);
    return static_cast<int>(std::clamp(count, 1.0, static_cast<double>(MostChords)));
}

// What lies between the ends of a side that bends: a positive angle runs counter-clockwise about a
// center to the left of the chord.
void AppendBend(std::vector<Coordinate>& points, const Coordinate& from, const Coordinate& to,
                double angle, double tolerance) {
    const double toCenter = 0.5 / std::tan(angle / 2.0); // in chords, to the left
    const Coordinate center = {(from.x + to.x) / 2.0 - toCenter * (to.y - from.y),
                               (from.y + to.y) / 2.0 + toCenter * (to.x - from.x)};
    const Coordinate spoke = {from.x - center.x, from.y - center.y};
    const int count = ArcChords(std::hypot(spoke.x, spoke.y), angle, tolerance);
    for (int i = 1; i < count; ++i) {
        const double turn = angle * i / count;
        points.push_back({center.x + spoke.x * std::cos(turn) - spoke.y * std::sin(turn),
                          center.y + spoke.x * std::sin(turn) + spoke.y * std::cos(turn)});
    }
}

// n chords of a cubic Bezier curve lie at most max|B''| / (8 n^2) off it, and B'' is at most six
// times the larger second difference of its poles.
int BezierChords(const std::array<Coordinate, 4>& pole, double tolerance) {
    const auto bend = [&](std::size_t i) {
        return std::hypot(pole[i].x - 2.0 * pole[i + 1].x + pole[i + 2].x,
                          pole[i].y - 2.0 * pole[i + 1].y + pole[i + 2].y);
    };
    const double count = std::ceil(std::sqrt(0.75 * std::max(bend(0), bend(1)) / tolerance));
    return static_cast<int>(std::clamp(count, 1.0, static_cast<double>(MostChords)));
}

Coordinate OnBezier(const std::array<Coordinate, 4>& pole, double t) {
    const double s = 1.0 - t;
    const std::array<double, 4> share = {s * s * s, 3.0 * s * s * t, 3.0 * s * t * t, t * t * t};
    Coordinate place;
    for (std::size_t i = 0; i < share.size(); ++i) {
        place.x += share[i] * pole[i].x;
        place.y += share[i] * pole[i].y;
    }
    return place;
}

Coordinate Along(const Coordinate& from, double angle, double length) {
    return {from.x + length * std::cos(angle), from.y + length * std::sin(angle)};
}

} // namespace

std::vector<Coordinate> ContourPoints(const Host::Contour& contour, bool closed, double tolerance) {
    std::vector<Coordinate> points;
    const std::size_t count = contour.vertices.size();
    for (std::size_t i = 0; i < count; ++i) {
        points.push_back(contour.vertices[i]);
        const bool hasSide = closed || i + 1 < count;
        const Coordinate& next = contour.vertices[(i + 1) % count];
        for (const Host::PolygonArc& arc : contour.arcs) {
            if (hasSide && arc.from == i && arc.angle != 0.0 && next != contour.vertices[i]) {
                AppendBend(points, contour.vertices[i], next, arc.angle, tolerance);
            }
        }
    }
    return points;
}

std::vector<Coordinate> SplinePoints(const std::vector<Coordinate>& points,
                                     const std::vector<Host::SplineDirection>& directions,
                                     bool closed, double tolerance) {
    if (directions.size() != points.size() || points.size() < 2) {
        return points;
    }
    std::vector<Coordinate> curve = {points.front()};
    for (std::size_t i = 0; i + (closed ? 0 : 1) < points.size(); ++i) {
        const std::size_t next = (i + 1) % points.size();
        const std::array<Coordinate, 4> pole = {
            points[i], Along(points[i], directions[i].angle, directions[i].lengthAfter),
            Along(points[next], directions[next].angle, -directions[next].lengthBefore),
            points[next]};
        const int chords = BezierChords(pole, tolerance);
        for (int step = 1; step < chords; ++step) {
            curve.push_back(OnBezier(pole, static_cast<double>(step) / chords));
        }
        curve.push_back(points[next]);
    }
    return curve;
}

} // namespace Merivane::Workbench
