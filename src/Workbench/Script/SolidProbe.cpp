#include "Workbench/Script/SolidProbe.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "Workbench/Script/ShapeSketch.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;
using Contour = std::vector<std::int32_t>;

/// The axis that a normal is most along: faces are looked at along it.
int MainAxis(const Coordinate3D& normal) {
    const double x = std::abs(normal.x);
    const double y = std::abs(normal.y);
    const double z = std::abs(normal.z);
    if (x >= y && x >= z) {
        return 0;
    }
    return y >= z ? 1 : 2;
}

Coordinate SeenAlong(int axis, const Coordinate3D& place) {
    if (axis == 0) {
        return {place.y, place.z};
    }
    return axis == 1 ? Coordinate{place.z, place.x} : Coordinate{place.x, place.y};
}

/// The place of a plane that is seen at `seen`.
Coordinate3D LiftToPlane(int axis, const Coordinate& seen, const CuttingPlane& plane) {
    const Coordinate3D& n = plane.normal;
    const Coordinate origin = SeenAlong(axis, plane.point);
    const double u = seen.x - origin.x;
    const double v = seen.y - origin.y;
    if (axis == 0) {
        return {plane.point.x - (n.y * u + n.z * v) / n.x, seen.x, seen.y};
    }
    if (axis == 1) {
        return {seen.y, plane.point.y - (n.z * u + n.x * v) / n.y, seen.x};
    }
    return {seen.x, seen.y, plane.point.z - (n.x * u + n.y * v) / n.z};
}

double DistanceFromSide(const Coordinate& point, const Coordinate& a, const Coordinate& b) {
    const Coordinate side = {b.x - a.x, b.y - a.y};
    const double squared = side.x * side.x + side.y * side.y;
    const double along = (point.x - a.x) * side.x + (point.y - a.y) * side.y;
    const double share = squared > 0.0 ? std::clamp(along / squared, 0.0, 1.0) : 0.0;
    return std::hypot(point.x - a.x - side.x * share, point.y - a.y - side.y * share);
}

struct FaceHit {
    bool inside = false;
    bool nearSide = false;
};

/// Where a place of the face's plane is in the face.
FaceHit HitFace(const FacedBody& body, const ContouredFace& face, int axis,
                const Coordinate3D& place) {
    FaceHit hit;
    const Coordinate point = SeenAlong(axis, place);
    for (const Contour& contour : face.contours) {
        Coordinate a = SeenAlong(axis, body.vertices[static_cast<std::size_t>(contour.back())]);
        for (const std::int32_t vertex : contour) {
            const Coordinate b = SeenAlong(axis, body.vertices[static_cast<std::size_t>(vertex)]);
            if ((a.y > point.y) != (b.y > point.y) &&
                point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) {
                hit.inside = !hit.inside;
            }
            hit.nearSide = hit.nearSide || DistanceFromSide(point, a, b) <= SamePlace;
            a = b;
        }
    }
    return hit;
}

/// The longest stretch of a level line inside a face: its middle and its length.
struct LevelStretch {
    double middle = 0.0;
    double length = 0.0;
};

LevelStretch LongestStretch(const std::vector<std::vector<Coordinate>>& rings, double level) {
    std::vector<double> crossings;
    for (const std::vector<Coordinate>& ring : rings) {
        Coordinate a = ring.back();
        for (const Coordinate& b : ring) {
            if ((a.y > level) != (b.y > level)) {
                crossings.push_back(a.x + (b.x - a.x) * (level - a.y) / (b.y - a.y));
            }
            a = b;
        }
    }
    std::sort(crossings.begin(), crossings.end());
    LevelStretch longest;
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
        const double length = crossings[i + 1] - crossings[i];
        if (length > longest.length) {
            longest = {(crossings[i] + crossings[i + 1]) / 2.0, length};
        }
    }
    return longest;
}

/// The highest steps between levels that follow each other, highest first.
std::vector<std::pair<double, double>> HighestSteps(std::vector<double> levels) {
    constexpr std::size_t tries = 4;
    std::sort(levels.begin(), levels.end());
    std::vector<std::pair<double, double>> steps;
    for (std::size_t i = 0; i + 1 < levels.size(); ++i) {
        if (levels[i + 1] > levels[i]) {
            steps.emplace_back(levels[i + 1] - levels[i], (levels[i] + levels[i + 1]) / 2.0);
        }
    }
    std::sort(steps.begin(), steps.end(), std::greater<>());
    steps.resize(std::min(steps.size(), tries));
    return steps;
}

std::size_t LooksAt(const SolidProbe& probe, std::int32_t face) {
    std::size_t looks = 0;
    for (const Contour& contour : probe.body->faces[static_cast<std::size_t>(face)].contours) {
        looks += contour.size();
    }
    return looks;
}

/// How often a half line leaves the body, less how often it enters it. False where it passes so
/// near a side that it can't be told.
bool CountLeaving(const SolidProbe& probe, const Coordinate3D& place, const Coordinate3D& way,
                  int& leaving, std::size_t& looks) {
    constexpr double parallel = 1e-7;
    constexpr double nearPlane = 1e-6; // m
    leaving = 0;
    std::vector<std::int32_t> faces;
    FindBoxesAlong(probe.tree, place, way, SamePlace, faces);
    for (const std::int32_t at : faces) {
        looks += LooksAt(probe, at);
        const CuttingPlane& plane = probe.planes[static_cast<std::size_t>(at)];
        const double slope = Dot(way, plane.normal);
        const double distance = Dot(Difference(plane.point, place), plane.normal);
        if (std::abs(slope) < parallel) {
            if (std::abs(distance) < nearPlane && plane.normal != Coordinate3D{}) {
                return false;
            }
            continue;
        }
        if (distance / slope <= 0.0) {
            continue;
        }
        const ContouredFace& face = probe.body->faces[static_cast<std::size_t>(at)];
        const FaceHit hit = HitFace(*probe.body, face, MainAxis(plane.normal),
                                    Sum(place, Scaled(way, distance / slope)));
        if (hit.nearSide) {
            return false;
        }
        if (hit.inside) {
            leaving += slope > 0.0 ? 1 : -1;
        }
    }
    return true;
}

} // namespace

CuttingPlane FacePlane(const FacedBody& body, const ContouredFace& face) {
    const Contour& outline = face.contours.front();
    const Coordinate3D normal = DoubledNormal(body, outline);
    constexpr double none = 1e-30; // m2
    // The middle of the vertices: of a face that is plane only roughly it is off the least.
    Coordinate3D sum;
    for (const std::int32_t vertex : outline) {
        sum = Sum(sum, body.vertices[static_cast<std::size_t>(vertex)]);
    }
    return {Scaled(sum, 1.0 / static_cast<double>(outline.size())),
            Length(normal) > none ? Unit(normal) : Coordinate3D{}};
}

SolidProbe BuildProbe(const FacedBody& body) {
    SolidProbe probe;
    probe.body = &body;
    std::vector<SpaceBox> boxes;
    boxes.reserve(body.faces.size());
    probe.planes.reserve(body.faces.size());
    for (const ContouredFace& face : body.faces) {
        boxes.push_back(FaceBox(body, face));
        probe.planes.push_back(FacePlane(body, face));
        Enclose(probe.box, boxes.back());
    }
    probe.tree = BuildBoxTree(std::move(boxes));
    return probe;
}

std::optional<Coordinate3D> InnerPlace(const FacedBody& body, const ContouredFace& face,
                                       const CuttingPlane& plane) {
    const int axis = MainAxis(plane.normal);
    std::vector<std::vector<Coordinate>> rings;
    std::vector<double> levels;
    for (const Contour& contour : face.contours) {
        std::vector<Coordinate>& ring = rings.emplace_back();
        for (const std::int32_t vertex : contour) {
            ring.push_back(SeenAlong(axis, body.vertices[static_cast<std::size_t>(vertex)]));
            levels.push_back(ring.back().y);
        }
    }
    double best = 0.0;
    Coordinate inner;
    for (const auto& [step, level] : HighestSteps(std::move(levels))) {
        const LevelStretch stretch = LongestStretch(rings, level);
        if (std::min(step, stretch.length) > best) {
            best = std::min(step, stretch.length);
            inner = {stretch.middle, level};
        }
    }
    if (!(best > 0.0) || plane.normal == Coordinate3D{}) {
        return std::nullopt;
    }
    return LiftToPlane(axis, inner, plane);
}

SolidSide LocatePlace(const SolidProbe& probe, const Coordinate3D& place,
                      const Coordinate3D& normal, std::size_t& looks) {
    if (!BoxesMeet(probe.box, {place, place}, SamePlace)) {
        return SolidSide::Outside;
    }
    constexpr double parallel = 1.0 - 1e-6;
    std::vector<std::int32_t> faces;
    FindBoxes(probe.tree, {place, place}, SamePlace, faces);
    for (const std::int32_t at : faces) {
        looks += LooksAt(probe, at);
        const CuttingPlane& plane = probe.planes[static_cast<std::size_t>(at)];
        const double turn = Dot(plane.normal, normal);
        if (std::abs(turn) < parallel ||
            std::abs(Dot(Difference(place, plane.point), plane.normal)) > SamePlace) {
            continue;
        }
        const ContouredFace& face = probe.body->faces[static_cast<std::size_t>(at)];
        if (HitFace(*probe.body, face, MainAxis(plane.normal), place).inside) {
            return turn > 0.0 ? SolidSide::FaceAlong : SolidSide::FaceAgainst;
        }
    }
    // Directions that faces are seldom parallel to; the first that passes no side tells.
    constexpr Coordinate3D ways[] = {
        {0.5231, 0.6107, 0.5943},   {-0.7193, 0.2371, 0.6529}, {0.3317, -0.8513, 0.4057},
        {-0.2719, -0.4409, -0.855}, {0.8861, 0.1237, -0.4463}, {0.0973, 0.7331, -0.6731},
        {-0.6113, 0.7879, -0.0739}, {0.4871, -0.1049, 0.867},
    };
    int leaving = 0;
    for (const Coordinate3D& way : ways) {
        if (CountLeaving(probe, place, way, leaving, looks)) {
            break;
        }
    }
    return leaving > 0 ? SolidSide::Inside : SolidSide::Outside;
}

} // namespace Merivane::Workbench
