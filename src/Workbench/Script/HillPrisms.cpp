#include "Workbench/Script/HillPrisms.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include "Workbench/Script/BodyClipping.hpp"
#include "Workbench/Script/PrismParts.hpp"
#include "Workbench/Script/ShapeProfile.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr double Degree = std::numbers::pi / 180.0;
constexpr double RightAngle = 90.0; // degrees
constexpr double Turn = 2.0 * std::numbers::pi;
constexpr RowLayout StatusRows = {3, 2};

struct Hill {
    double thickness = 0.0; // of the whole prism
    double angle = 0.0;     // degrees
    double height = 0.0;
};

std::string CheckHill(const Hill& hill) {
    if (!(hill.thickness > 0.0 && hill.height >= 0.0 && hill.height < hill.thickness)) {
        return "a altura da borda deve ser menor do que a espessura";
    }
    if (!(hill.angle >= 0.0 && hill.angle < RightAngle)) {
        return "a inclinação da borda deve ficar entre 0 e 90 graus";
    }
    return {};
}

/// How far inside and how high the hill's edges are, from its foot up.
std::vector<Coordinate> HillSteps(const ShapeInput& input, const Hill& hill) {
    const double foot = hill.thickness - hill.height;
    if (hill.angle > 0.0) {
        return {{hill.height / std::tan(hill.angle * Degree), hill.thickness}};
    }
    const int count = ArcSegments(input.curves, hill.height, RightAngle);
    std::vector<Coordinate> steps;
    for (int i = 1; i <= count; ++i) {
        const double turned = RightAngle * Degree * i / count;
        steps.push_back(
            {hill.height * (1.0 - std::cos(turned)), foot + hill.height * std::sin(turned)});
    }
    return steps;
}

std::string AddHill(ShapeSketch& sketch, const ShapeProfile& profile,
                    const std::vector<Coordinate>& steps, const LoftSection& foot,
                    const PrismSurfaces& surfaces, std::int32_t hillSurface) {
    const char* const tooWide = "a borda inclinada é mais larga do que o polígono";
    const Loft loft = ProfileLoft(profile, hillSurface, true);
    LoftSection below = foot;
    for (const Coordinate& step : steps) {
        LoftSection here;
        double area = 0.0;
        for (const ShapeRing& ring : profile.rings) {
            PlanRing moved;
            if (!MoveSides(ring.points, std::vector<double>(ring.points.size(), step.x), moved)) {
                return tooWide;
            }
            area += SignedArea(moved);
            for (const Coordinate& point : moved) {
                here.push_back(AddVertex(sketch, {point.x, point.y, step.y}));
            }
        }
        if (!(area > 0.0)) {
            return tooWide;
        }
        AddBand(sketch, loft, below, here);
        below = here;
    }
    AddCap(sketch, loft, below, surfaces.top, true, false);
    return {};
}

std::string SketchHill(ShapeInput& input, ShapeSketch& sketch, bool hasStatus) {
    const PrismSurfaces surfaces = TakeSurfaces(input);
    const std::int32_t hillSurface = TakeSurface(input);
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, FewestRows(StatusRows), count); !refusal.empty()) {
        return refusal;
    }
    Hill hill;
    hill.thickness = TakeNumber(input);
    hill.angle = TakeNumber(input);
    hill.height = TakeNumber(input);
    if (hasStatus) {
        TakeNumber(input);
    }
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, StatusRows, profile);
        !refusal.empty()) {
        return refusal;
    }
    if (std::string refusal = CheckHill(hill); !refusal.empty() || !CloseProfile(profile)) {
        return refusal;
    }
    const std::vector<Coordinate> steps =
        hill.height > NoShapeLength ? HillSteps(input, hill) : std::vector<Coordinate>{};
    const PlanRing points = ProfilePoints(profile);
    if (std::string refusal = CheckLoftRoom(sketch, points.size(), steps.size() + 1);
        !refusal.empty()) {
        return refusal;
    }
    const auto sectionAt = [&](double z) {
        return AddSection(sketch, points.size(), [&](std::size_t i) {
            return Coordinate3D{points[i].x, points[i].y, z};
        });
    };
    const Loft loft = PrismLoft(profile, surfaces.side);
    const LoftSection bottom = sectionAt(0.0);
    const LoftSection foot = sectionAt(hill.thickness - hill.height);
    AddCap(sketch, loft, bottom, surfaces.bottom, true, true);
    AddBand(sketch, loft, bottom, foot);
    return AddHill(sketch, profile, steps, foot, surfaces, hillSurface);
}

/// Parts the faces where the bent plane has its edges.
std::string SplitAlongX(const ShapeInput& input, ShapeSketch& sketch, double radius) {
    const auto [lowest, highest] =
        std::minmax_element(sketch.body.vertices.begin(), sketch.body.vertices.end(),
                            [](const auto& a, const auto& b) { return a.x < b.x; });
    const double size = std::abs(radius);
    const double begin = lowest->x;
    const double end = highest->x;
    if (end - begin > Turn * size) {
        return "o prisma dá mais de uma volta no cilindro";
    }
    const double step = Turn * size / CircleSegments(input.curves, radius);
    const auto planes = static_cast<std::size_t>((end - begin) / step) + 1;
    if (std::string refusal = CheckRoom(sketch, sketch.body.faces.size() * planes,
                                        sketch.body.vertices.size() * planes);
        !refusal.empty()) {
        return refusal;
    }
    for (double k = std::ceil(begin / step); k * step < end; ++k) {
        SplitFaces(sketch.body, {{k * step, 0.0, 0.0}, {1.0, 0.0, 0.0}});
    }
    return {};
}

} // namespace

std::string SketchHillPrism(ShapeInput& input, ShapeSketch& sketch) {
    return SketchHill(input, sketch, false);
}

std::string SketchStatusHillPrism(ShapeInput& input, ShapeSketch& sketch) {
    return SketchHill(input, sketch, true);
}

std::string SketchBentPrism(ShapeInput& input, ShapeSketch& sketch) {
    const PrismSurfaces surfaces = TakeSurfaces(input);
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, FewestRows(StatusRows), count); !refusal.empty()) {
        return refusal;
    }
    const double height = TakeNumber(input);
    const double radius = TakeNumber(input);
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, StatusRows, profile);
        !refusal.empty()) {
        return refusal;
    }
    if (!(std::abs(radius) > NoShapeLength && (radius + height) * radius > 0.0)) {
        return "a altura do prisma passa do raio da curva";
    }
    if (!CloseProfile(profile)) {
        return {};
    }
    PrismEnds ends;
    for (const Coordinate& point : ProfilePoints(profile)) {
        ends.bottom.push_back({point.x, point.y, 0.0});
        ends.top.push_back({point.x, point.y, height});
    }
    if (std::string refusal = AddPrism(sketch, PrismLoft(profile, surfaces.side), ends, surfaces);
        !refusal.empty()) {
        return refusal;
    }
    // Bending keeps the sides; pieces of faces are not told apart any more afterwards.
    OrientOutwards(sketch);
    LeaveOutAbsent(sketch);
    sketch.oriented = true;
    if (std::string refusal = SplitAlongX(input, sketch, radius); !refusal.empty()) {
        return refusal;
    }
    sketch.present.assign(sketch.body.faces.size(), true);
    for (Coordinate3D& vertex : sketch.body.vertices) {
        const double angle = vertex.x / radius;
        const double out = radius + vertex.z;
        vertex = {out * std::sin(angle), vertex.y, out * std::cos(angle) - radius};
    }
    return {};
}

} // namespace Merivane::Workbench
