#include "Workbench/Script/PipeShapes.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Workbench/Script/ShapeLoft.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate3D;

constexpr double Degree = std::numbers::pi / 180.0;
constexpr double WholeTurn = 360.0; // degrees

/// The band of an arm and the face at its end; where it begins it is open.
void AddArm(const ShapeInput& input, ShapeSketch& sketch, const LoftSection& from,
            const LoftSection& to) {
    const Loft loft = RingLoft(from.size(), input.surface);
    AddBand(sketch, loft, from, to);
    AddCap(sketch, loft, from, input.surface, false, true);
    AddCap(sketch, loft, to, input.surface, true, false);
}

} // namespace

std::string SketchElbow(ShapeInput& input, ShapeSketch& sketch) {
    const double bend = TakeNumber(input);
    const double angle = std::clamp(TakeNumber(input), -WholeTurn, WholeTurn);
    const double radius = TakeNumber(input);
    if (radius < 0.0 || bend < 0.0) {
        return NegativeLength;
    }
    if (bend < radius) {
        return "o raio da curva deve ser maior do que o do tubo";
    }
    if (radius <= NoShapeLength || angle == 0.0) {
        return {};
    }
    const std::size_t chords = ChordsOf(input, radius);
    const auto bands = static_cast<std::size_t>(ArcSegments(input.curves, bend, angle));
    if (std::string refusal = CheckLoftRoom(sketch, chords, bands); !refusal.empty()) {
        return refusal;
    }
    const Loft loft = RingLoft(chords, input.surface);
    const bool whole = std::abs(angle) == WholeTurn;
    LoftSection first;
    LoftSection before;
    for (std::size_t k = 0; k <= bands; ++k) {
        const double turned = angle * Degree * static_cast<double>(k) / static_cast<double>(bands);
        const auto place = [&](std::size_t i) {
            const double out = bend - radius * std::cos(AngleAt(i, chords));
            return Coordinate3D{bend - out * std::cos(turned),
                                radius * std::sin(AngleAt(i, chords)), out * std::sin(turned)};
        };
        const LoftSection here = whole && k == bands ? first : AddSection(sketch, chords, place);
        if (k == 0) {
            first = here;
        } else {
            AddBand(sketch, loft, before, here);
        }
        before = here;
    }
    if (!whole) {
        AddCap(sketch, loft, first, input.surface, true, true);
        AddCap(sketch, loft, before, input.surface, true, false);
    }
    return {};
}

std::string SketchCylinderArm(ShapeInput& input, ShapeSketch& sketch) {
    const double main = TakeNumber(input);
    const double radius = TakeNumber(input);
    const double length = TakeNumber(input);
    const double height = TakeNumber(input);
    const double aside = TakeNumber(input);
    const double angle = TakeNumber(input) * Degree;
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    if (!(radius > NoShapeLength && main >= radius + std::abs(aside) && sine > 0.0 &&
          main <= length * sine - radius * std::abs(cosine))) {
        return "as medidas do braço não o deixam sair do tubo";
    }
    const std::size_t chords = ChordsOf(input, radius);
    if (std::string refusal = CheckLoftRoom(sketch, chords, 1); !refusal.empty()) {
        return refusal;
    }
    // Across the arm run (cos alpha, 0, -sin alpha) and y, along it (sin alpha, 0, cos alpha).
    const auto place = [&](std::size_t i, bool end) {
        const double across = radius * std::cos(AngleAt(i, chords));
        const double y = aside + radius * std::sin(AngleAt(i, chords));
        const double wall = std::sqrt(std::max(0.0, main * main - y * y));
        const double along = end ? length : (wall - across * cosine) / sine;
        return Coordinate3D{across * cosine + along * sine, y,
                            height - across * sine + along * cosine};
    };
    const LoftSection from = AddSection(sketch, chords, [&](auto i) { return place(i, false); });
    const LoftSection to = AddSection(sketch, chords, [&](auto i) { return place(i, true); });
    AddArm(input, sketch, from, to);
    return {};
}

std::string SketchEllipsoidArm(ShapeInput& input, ShapeSketch& sketch) {
    const double length = TakeNumber(input);
    const double main = TakeNumber(input);
    const double radius = TakeNumber(input);
    const double height = TakeNumber(input);
    const double aside = TakeNumber(input);
    const double nearest = std::max(0.0, std::abs(aside) - radius);
    if (!(radius > NoShapeLength && main >= radius + std::abs(aside) && height >= 0.0 &&
          length >= height * std::sqrt(1.0 - nearest * nearest / (main * main)))) {
        return "as medidas do braço não o deixam sair do elipsoide";
    }
    const std::size_t chords = ChordsOf(input, radius);
    if (std::string refusal = CheckLoftRoom(sketch, chords, 1); !refusal.empty()) {
        return refusal;
    }
    const auto place = [&](std::size_t i, bool end) {
        const double x = radius * std::cos(AngleAt(i, chords));
        const double y = aside + radius * std::sin(AngleAt(i, chords));
        const double share = 1.0 - (x * x + y * y) / (main * main);
        return Coordinate3D{x, y, end ? length : height * std::sqrt(std::max(0.0, share))};
    };
    const LoftSection from = AddSection(sketch, chords, [&](auto i) { return place(i, false); });
    const LoftSection to = AddSection(sketch, chords, [&](auto i) { return place(i, true); });
    AddArm(input, sketch, from, to);
    return {};
}

} // namespace Merivane::Workbench
