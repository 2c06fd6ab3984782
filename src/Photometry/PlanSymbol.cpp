#include "Photometry/PlanSymbol.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Merivane::Photometry {

namespace {

constexpr double FullTurn = 360.0; // degrees
constexpr int ChordsOfACircle = 48;
constexpr double RadiansPerDegree = 0.017453292519943295;

SymbolPoint PointAt(const SymbolStroke& round, double degrees) {
    const double angle = degrees * RadiansPerDegree;
    return {round.points[0].x + round.radius * std::cos(angle),
            round.points[0].y + round.radius * std::sin(angle)};
}

std::vector<SymbolPoint> PointsOnArc(const SymbolStroke& round, double begin, double sweep) {
    constexpr double slack = 1e-9; // chords; a whole number of them is not one more
    const double chords = std::max(2.0, std::ceil(sweep * ChordsOfACircle / FullTurn - slack));
    // The last point of a full turn would be the first again.
    const int count = static_cast<int>(chords) + (sweep < FullTurn ? 1 : 0);
    std::vector<SymbolPoint> points;
    points.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        points.push_back(PointAt(round, begin + sweep * i / chords));
    }
    return points;
}

/// Degrees from the begin counter-clockwise to the end, above 0; a full turn where they agree.
double SweepOf(const SymbolStroke& arc) {
    const double sweep = std::fmod(arc.endAngle - arc.beginAngle, FullTurn);
    return sweep > 0.0 ? sweep : sweep + FullTurn;
}

bool HasItsPoints(const SymbolStroke& stroke) {
    switch (stroke.kind) {
    case SymbolStrokeKind::Line:
        return stroke.points.size() == 2;
    case SymbolStrokeKind::Circle:
    case SymbolStrokeKind::Arc:
        return stroke.points.size() == 1 && stroke.radius > 0.0;
    case SymbolStrokeKind::Polygon:
        return stroke.points.size() >= 3;
    }
    return false;
}

} // namespace

bool IsDrawable(const SymbolStroke& stroke) {
    return HasItsPoints(stroke) && std::isfinite(stroke.radius) &&
           std::isfinite(stroke.beginAngle) && std::isfinite(stroke.endAngle) &&
           std::all_of(stroke.points.begin(), stroke.points.end(), [](const SymbolPoint& point) {
               return std::isfinite(point.x) && std::isfinite(point.y);
           });
}

std::vector<SymbolPoint> OutlinePoints(const SymbolStroke& stroke) {
    switch (stroke.kind) {
    case SymbolStrokeKind::Line:
        break;
    case SymbolStrokeKind::Polygon:
        return stroke.points;
    case SymbolStrokeKind::Circle:
        return PointsOnArc(stroke, 0.0, FullTurn);
    case SymbolStrokeKind::Arc:
        return PointsOnArc(stroke, stroke.beginAngle, SweepOf(stroke));
    }
    return {};
}

} // namespace Merivane::Photometry
