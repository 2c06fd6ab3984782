#include "Workbench/Script/SolidShapes.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "Workbench/Script/ShapeLoft.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate3D;

constexpr double Degree = std::numbers::pi / 180.0;
constexpr double RightAngle = 90.0; // degrees
constexpr double HalfTurn = 180.0;  // degrees

/// The circle of chords around (0, 0, z).
LoftSection AddCircle(ShapeSketch& sketch, std::size_t chords, double radius, double z) {
    if (radius <= NoShapeLength) {
        return AddPeak(sketch, chords, {0.0, 0.0, z});
    }
    return AddSection(sketch, chords, [&](std::size_t i) {
        return Coordinate3D{radius * std::cos(AngleAt(i, chords)),
                            radius * std::sin(AngleAt(i, chords)), z};
    });
}

/// Rings of an ellipsoid between two of its latitudes [rad], closed below where it is open there.
std::string SketchDome(const ShapeInput& input, ShapeSketch& sketch, double height, double radius,
                       double lowest) {
    const std::size_t chords = ChordsOf(input, radius);
    const double span = std::numbers::pi / 2.0 - lowest;
    const auto bands =
        static_cast<std::size_t>(std::max(2, ArcSegments(input.curves, radius, span / Degree)));
    if (std::string refusal = CheckLoftRoom(sketch, chords, bands); !refusal.empty()) {
        return refusal;
    }
    const Loft loft = RingLoft(chords, input.surface);
    LoftSection below;
    for (std::size_t i = 0; i <= bands; ++i) {
        const double latitude = lowest + span * static_cast<double>(i) / static_cast<double>(bands);
        const bool pole = i == bands || (i == 0 && lowest < 0.0);
        const LoftSection here = AddCircle(sketch, chords, pole ? 0.0 : radius * std::cos(latitude),
                                           height * std::sin(latitude));
        if (i == 0) {
            AddCap(sketch, loft, here, input.surface, true, true);
        } else {
            AddBand(sketch, loft, below, here);
        }
        below = here;
    }
    return {};
}

std::string SketchFrustum(const ShapeInput& input, ShapeSketch& sketch, double height, double lower,
                          double upper) {
    if (lower < 0.0 || upper < 0.0) {
        return NegativeLength;
    }
    const std::size_t chords = ChordsOf(input, std::max(lower, upper));
    if (std::string refusal = CheckLoftRoom(sketch, chords, 1); !refusal.empty()) {
        return refusal;
    }
    const Loft loft = RingLoft(chords, input.surface);
    const LoftSection bottom = AddCircle(sketch, chords, lower, 0.0);
    const LoftSection top = AddCircle(sketch, chords, upper, height);
    AddBand(sketch, loft, bottom, top);
    AddCap(sketch, loft, bottom, input.surface, true, true);
    AddCap(sketch, loft, top, input.surface, true, false);
    return {};
}

/// A disc in the x-y plane, with a hole where the smaller radius is one.
std::string SketchAnnulus(const ShapeInput& input, ShapeSketch& sketch, double radius,
                          double hole) {
    const double outer = std::max(std::abs(radius), std::abs(hole));
    const double inner = std::min(std::abs(radius), std::abs(hole));
    const std::size_t chords = ChordsOf(input, outer);
    if (outer <= NoShapeLength || outer - inner <= NoShapeLength) {
        return {};
    }
    if (std::string refusal = CheckLoftRoom(sketch, chords, 1); !refusal.empty()) {
        return refusal;
    }
    std::vector<std::vector<std::int32_t>> contours = {AddCircle(sketch, chords, outer, 0.0)};
    if (inner > NoShapeLength) {
        LoftSection ring = AddCircle(sketch, chords, inner, 0.0);
        contours.emplace_back(ring.rbegin(), ring.rend());
    }
    AddFace(sketch, std::move(contours), input.surface);
    return {};
}

} // namespace

std::string SketchBlock(ShapeInput& input, ShapeSketch& sketch) {
    const Coordinate3D size = TakePlace(input);
    if (size.x < 0.0 || size.y < 0.0 || size.z < 0.0) {
        return NegativeLength;
    }
    const auto isFlat = [](double length) { return length <= NoShapeLength; };
    const int flat = isFlat(size.x) + isFlat(size.y) + isFlat(size.z);
    constexpr std::size_t faces = 6;
    constexpr std::size_t corners = 8;
    if (std::string refusal = CheckRoom(sketch, faces, corners); !refusal.empty() || flat > 1) {
        return refusal;
    }
    const std::int32_t surface = input.surface;
    if (flat == 1) {
        const Coordinate3D first =
            isFlat(size.x) ? Coordinate3D{0.0, size.y, 0.0} : Coordinate3D{size.x, 0.0, 0.0};
        const Coordinate3D second =
            isFlat(size.z) ? Coordinate3D{0.0, size.y, 0.0} : Coordinate3D{0.0, 0.0, size.z};
        sketch.body.vertices = {{}, first, Sum(first, second), second};
        AddFace(sketch, {{0, 1, 2, 3}}, surface);
        return {};
    }
    for (const double z : {0.0, size.z}) {
        sketch.body.vertices.insert(
            sketch.body.vertices.end(),
            {{0.0, 0.0, z}, {size.x, 0.0, z}, {size.x, size.y, z}, {0.0, size.y, z}});
    }
    for (const std::array<std::int32_t, 4>& face :
         std::initializer_list<std::array<std::int32_t, 4>>{
             {3, 2, 1, 0}, {4, 5, 6, 7}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}}) {
        AddFace(sketch, {{face[0], face[1], face[2], face[3]}}, surface);
    }
    return {};
}

std::string SketchCylinder(ShapeInput& input, ShapeSketch& sketch) {
    const double height = TakeNumber(input);
    const double radius = TakeNumber(input);
    if (radius < 0.0) {
        return NegativeLength;
    }
    if (std::abs(height) <= NoShapeLength) {
        return SketchAnnulus(input, sketch, radius, 0.0);
    }
    if (radius <= NoShapeLength) {
        sketch.wires.push_back({Coordinate3D{}, Coordinate3D{0.0, 0.0, height}});
        return CheckRoom(sketch, 1, 0);
    }
    return SketchFrustum(input, sketch, height, radius, radius);
}

std::string SketchSphere(ShapeInput& input, ShapeSketch& sketch) {
    const double radius = TakeNumber(input);
    if (radius < 0.0) {
        return NegativeLength;
    }
    if (radius <= NoShapeLength) {
        return {};
    }
    return SketchDome(input, sketch, radius, radius, -std::numbers::pi / 2.0);
}

std::string SketchEllipsoid(ShapeInput& input, ShapeSketch& sketch) {
    const double height = TakeNumber(input);
    const double radius = TakeNumber(input);
    if (radius < 0.0) {
        return NegativeLength;
    }
    if (radius <= NoShapeLength) {
        return {};
    }
    if (std::abs(height) <= NoShapeLength) {
        return SketchAnnulus(input, sketch, radius, 0.0);
    }
    return SketchDome(input, sketch, height, radius, 0.0);
}

std::string SketchCone(ShapeInput& input, ShapeSketch& sketch) {
    const double height = TakeNumber(input);
    const double radii[] = {TakeNumber(input), TakeNumber(input)};
    const double angles[] = {TakeNumber(input), TakeNumber(input)};
    if (radii[0] < 0.0 || radii[1] < 0.0) {
        return NegativeLength;
    }
    if (std::abs(height) <= NoShapeLength) {
        return SketchAnnulus(input, sketch, radii[0], radii[1]);
    }
    for (const double angle : angles) {
        if (!(angle > 0.0 && angle < HalfTurn)) {
            return "pede ângulos entre 0 e 180 graus";
        }
    }
    if (angles[0] == RightAngle && angles[1] == RightAngle) {
        return SketchFrustum(input, sketch, height, radii[0], radii[1]);
    }
    const std::size_t chords = ChordsOf(input, std::max(radii[0], radii[1]));
    if (std::string refusal = CheckLoftRoom(sketch, chords, 1); !refusal.empty()) {
        return refusal;
    }
    // On the generator at angle a: distance from the axis r + k z, and z = level + x cot(alpha).
    const double growth = (radii[1] - radii[0]) / height;
    LoftSection sections[2];
    for (const int end : {0, 1}) {
        const double rise = 1.0 / std::tan(angles[end] * Degree);
        if (std::abs(growth * rise) >= 1.0) {
            return "a base inclinada não corta todo o cone";
        }
        const auto place = [&](std::size_t i) {
            const double angle = AngleAt(i, chords);
            const double distance = radii[end] / (1.0 - growth * std::cos(angle) * rise);
            const double x = distance * std::cos(angle);
            return Coordinate3D{x, distance * std::sin(angle),
                                (end == 0 ? 0.0 : height) + x * rise};
        };
        sections[end] = radii[end] <= NoShapeLength ? AddPeak(sketch, chords, place(0))
                                                    : AddSection(sketch, chords, place);
    }
    for (std::size_t i = 0; i < chords; ++i) {
        const auto levelOf = [&](int end) {
            return sketch.body.vertices[static_cast<std::size_t>(sections[end][i])].z;
        };
        if (!((levelOf(1) - levelOf(0)) * height > 0.0)) {
            return "as bases inclinadas do cone se cruzam";
        }
    }
    const Loft loft = RingLoft(chords, input.surface);
    AddBand(sketch, loft, sections[0], sections[1]);
    AddCap(sketch, loft, sections[0], input.surface, true, true);
    AddCap(sketch, loft, sections[1], input.surface, true, false);
    return {};
}

} // namespace Merivane::Workbench
