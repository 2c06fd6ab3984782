#include "Workbench/Script/ScriptPolyline.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Merivane::Workbench {

namespace {

constexpr double Degree = std::numbers::pi / 180.0;
constexpr std::int32_t MostSegments = 3600;
constexpr std::int32_t FewRadiusSegments = 6;
constexpr std::int32_t ManyRadiusSegments = 36;
constexpr double SamePoint = 1e-9; // m

// What the hundreds of a status mean.
constexpr std::int32_t RelativePoint = 100;
constexpr std::int32_t LengthAndDirection = 200;
constexpr std::int32_t TangentLength = 300;
constexpr std::int32_t StartPoint = 600;
constexpr std::int32_t CloseRing = 700;
constexpr std::int32_t Tangent = 800;
constexpr std::int32_t Center = 900;
constexpr std::int32_t TangentArcToPoint = 1000;
constexpr std::int32_t TangentArc = 2000;
constexpr std::int32_t CenterArcToPoint = 3000;
constexpr std::int32_t CenterArc = 4000;

using Host::Coordinate;

/// The pen that follows the rows.
struct Walk {
    const CurveResolution& resolution;
    std::size_t pointLimit;
    std::vector<PolylineContour>& contours;
    PolylineContour open = {};
    std::size_t pointCount = 0;
    std::size_t row = 0; ///< that is being followed
    Coordinate tangent = {1.0, 0.0};
    Coordinate center = {};
};

double Length(const Coordinate& vector) {
    return std::hypot(vector.x, vector.y);
}

void SetTangent(Walk& walk, const Coordinate& direction) {
    const double length = Length(direction);
    if (length > 0.0) {
        walk.tangent = {direction.x / length, direction.y / length};
    }
}

void AddPoint(Walk& walk, const Coordinate& point, std::int32_t status, bool onArc) {
    walk.open.points.push_back(point);
    walk.open.status.push_back(status);
    walk.open.onArc.push_back(onArc);
    walk.open.rows.push_back(walk.row);
    ++walk.pointCount;
}

void LineTo(Walk& walk, const Coordinate& point, std::int32_t status) {
    if (!walk.open.points.empty()) {
        const Coordinate& last = walk.open.points.back();
        SetTangent(walk, {point.x - last.x, point.y - last.y});
    }
    AddPoint(walk, point, status, false);
}

void EndRing(Walk& walk, bool closed) {
    if (!walk.open.points.empty()) {
        walk.open.closed = closed;
        walk.contours.push_back(std::move(walk.open));
    }
    walk.open = {};
}

/// The ring ends with a row that repeats its first point; one that names another point keeps it.
void EndRingAt(Walk& walk, const Coordinate& point) {
    if (walk.open.points.empty()) {
        return;
    }
    const Coordinate& first = walk.open.points.front();
    if (Length({point.x - first.x, point.y - first.y}) > SamePoint) {
        AddPoint(walk, point, walk.open.status.back(), false);
    }
    EndRing(walk, true);
}

Coordinate OnCircle(const Coordinate& center, double radius, double angle) {
    return {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)};
}

/// From the last point around `center` through `angle` [degrees, counter-clockwise].
void ArcAround(Walk& walk, const Coordinate& center, double angle, std::int32_t status) {
    const Coordinate from = walk.open.points.back();
    const double radius = Length({from.x - center.x, from.y - center.y});
    const double begin = std::atan2(from.y - center.y, from.x - center.x);
    const std::int32_t segments = ArcSegments(walk.resolution, radius, angle);
    walk.open.status.back() = status;
    walk.open.rows.back() = walk.row;
    for (std::int32_t i = 1; i <= segments; ++i) {
        const double turned = angle * Degree * i / segments;
        AddPoint(walk, OnCircle(center, radius, begin + turned), status, i < segments);
    }
    const double end = begin + angle * Degree;
    const double way = angle < 0.0 ? -1.0 : 1.0;
    walk.tangent = {-way * std::sin(end), way * std::cos(end)};
}

void WholeCircle(Walk& walk, double radius, std::int32_t status) {
    const std::int32_t segments = CircleSegments(walk.resolution, radius);
    for (std::int32_t i = 0; i < segments; ++i) {
        AddPoint(walk, OnCircle(walk.center, radius, 2.0 * std::numbers::pi * i / segments), status,
                 i > 0);
    }
    EndRing(walk, true);
}

/// Along the tangent into a circle that goes through `point`; straight where that lies ahead.
void ArcToPoint(Walk& walk, const Coordinate& point, std::int32_t status) {
    const Coordinate from = walk.open.points.back();
    const Coordinate chord = {point.x - from.x, point.y - from.y};
    const Coordinate normal = {-walk.tangent.y, walk.tangent.x};
    const double ahead = chord.x * walk.tangent.x + chord.y * walk.tangent.y;
    const double aside = chord.x * normal.x + chord.y * normal.y;
    if (std::abs(aside) <= SamePoint * Length(chord) || Length(chord) <= SamePoint) {
        LineTo(walk, point, status);
        return;
    }
    const double offset = (chord.x * chord.x + chord.y * chord.y) / (2.0 * aside);
    const double angle = 2.0 * std::atan2(std::abs(aside), ahead) / Degree;
    ArcAround(walk, {from.x + normal.x * offset, from.y + normal.y * offset},
              aside < 0.0 ? -angle : angle, status);
    walk.open.points.back() = point;
}

void ArcByRadius(Walk& walk, double radius, double angle, std::int32_t status) {
    const Coordinate from = walk.open.points.back();
    const double offset = angle < 0.0 ? -std::abs(radius) : std::abs(radius);
    ArcAround(walk, {from.x - walk.tangent.y * offset, from.y + walk.tangent.x * offset}, angle,
              status);
}

void ArcToDirection(Walk& walk, const Coordinate& point, std::int32_t status) {
    const Coordinate from = walk.open.points.back();
    const double begin = std::atan2(from.y - walk.center.y, from.x - walk.center.x);
    const double end = std::atan2(point.y - walk.center.y, point.x - walk.center.x);
    ArcAround(walk, walk.center, std::remainder(end - begin, 2.0 * std::numbers::pi) / Degree,
              status);
}

/// Codes that take no open ring. Returns false for the others.
bool FollowPlacing(Walk& walk, const PolylineRow& row, std::int32_t code, std::int32_t status) {
    switch (code) {
    case 0:
        LineTo(walk, {row.x, row.y}, status);
        return true;
    case StartPoint:
        EndRing(walk, false);
        LineTo(walk, {row.x, row.y}, status);
        return true;
    case CloseRing:
        EndRing(walk, true);
        return true;
    case Tangent:
        SetTangent(walk, {row.x, row.y});
        return true;
    case Center:
        walk.center = {row.x, row.y};
        return true;
    case CenterArc:
        if (walk.open.points.empty()) {
            WholeCircle(walk, std::abs(row.x), status);
            return true;
        }
        return false;
    default:
        return false;
    }
}

/// Codes that go on from the ring's last point. Returns false for one that does not exist.
bool FollowOn(Walk& walk, const PolylineRow& row, std::int32_t code, std::int32_t status) {
    const Coordinate from = walk.open.points.back();
    switch (code) {
    case RelativePoint:
        LineTo(walk, {from.x + row.x, from.y + row.y}, status);
        return true;
    case LengthAndDirection:
        LineTo(walk, OnCircle(from, row.x, row.y * Degree), status);
        return true;
    case TangentLength:
        LineTo(walk, {from.x + row.x * walk.tangent.x, from.y + row.x * walk.tangent.y}, status);
        return true;
    case TangentArcToPoint:
        ArcToPoint(walk, {row.x, row.y}, status);
        return true;
    case TangentArc:
        ArcByRadius(walk, row.x, row.y, status);
        return true;
    case CenterArcToPoint:
        ArcToDirection(walk, {row.x, row.y}, status);
        return true;
    case CenterArc:
        ArcAround(walk, walk.center, row.y, status);
        return true;
    default:
        return false;
    }
}

bool IsCode(std::int32_t code) {
    constexpr std::int32_t codes[] = {
        0,       RelativePoint, LengthAndDirection, StartPoint, TangentLength,    CloseRing,
        Tangent, Center,        TangentArcToPoint,  TangentArc, CenterArcToPoint, CenterArc};
    return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

std::string FollowRow(Walk& walk, const PolylineRow& row) {
    if (row.status < 0) {
        EndRingAt(walk, {row.x, row.y});
        return {};
    }
    constexpr std::int32_t hundred = 100;
    constexpr std::int32_t thousand = 1000;
    const std::int32_t step = row.status < thousand ? hundred : thousand;
    const std::int32_t code = row.status / step * step;
    const std::int32_t status = row.status - code;
    if (!IsCode(code) || status >= hundred) {
        return "o código de estado " + std::to_string(row.status) + " não existe";
    }
    if (FollowPlacing(walk, row, code, status)) {
        return {};
    }
    if (walk.open.points.empty()) {
        return "o código de estado " + std::to_string(row.status) +
               " precisa de um ponto antes dele";
    }
    FollowOn(walk, row, code, status);
    return {};
}

} // namespace

std::int32_t CircleSegments(const CurveResolution& resolution, double radius) {
    const double size = std::abs(radius);
    double segments = resolution.segments;
    if (resolution.tolerance > 0.0) {
        segments = resolution.tolerance < size
                       ? std::ceil(std::numbers::pi / std::acos(1.0 - resolution.tolerance / size))
                       : 3.0;
    } else if (resolution.radiusHighest > 0.0) {
        const double range = resolution.radiusHighest - resolution.radiusLowest;
        const double share = range > 0.0
                                 ? std::clamp((size - resolution.radiusLowest) / range, 0.0, 1.0)
                                 : (size > resolution.radiusLowest ? 1.0 : 0.0);
        segments = std::round(FewRadiusSegments + (ManyRadiusSegments - FewRadiusSegments) * share);
    }
    if (!(segments < MostSegments)) {
        return MostSegments;
    }
    return std::max<std::int32_t>(3, static_cast<std::int32_t>(segments));
}

std::int32_t ArcSegments(const CurveResolution& resolution, double radius, double degrees) {
    constexpr double turn = 360.0;
    constexpr double rounding = 1e-9;
    constexpr double mostTurns = 10.0;
    const double turns = std::min(std::abs(degrees) / turn, mostTurns);
    const double segments = CircleSegments(resolution, radius) * turns;
    return std::isfinite(segments)
               ? std::max<std::int32_t>(1,
                                        static_cast<std::int32_t>(std::ceil(segments - rounding)))
               : 1;
}

std::string ExpandPolyline(const std::vector<PolylineRow>& rows, const CurveResolution& resolution,
                           std::size_t pointLimit, std::vector<PolylineContour>& contours) {
    contours.clear();
    Walk walk{resolution, pointLimit, contours};
    for (const PolylineRow& row : rows) {
        if (std::string refusal = FollowRow(walk, row); !refusal.empty()) {
            return refusal;
        }
        ++walk.row;
        if (walk.pointCount > walk.pointLimit) {
            return "pontos demais em um contorno";
        }
    }
    EndRing(walk, false);
    return {};
}

void CloseContours(std::vector<PolylineContour>& contours) {
    for (PolylineContour& ring : contours) {
        const Coordinate& first = ring.points.front();
        const Coordinate& last = ring.points.back();
        if (ring.points.size() > 1 && Length({last.x - first.x, last.y - first.y}) <= SamePoint) {
            ring.points.pop_back();
            ring.status.pop_back();
            ring.onArc.pop_back();
            ring.rows.pop_back();
        }
        ring.closed = true;
    }
}

} // namespace Merivane::Workbench
