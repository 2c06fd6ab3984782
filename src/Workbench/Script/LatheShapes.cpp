#include "Workbench/Script/LatheShapes.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include "Workbench/Script/ShapeLoft.hpp"
#include "Workbench/Script/ShapeProfile.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr double Degree = std::numbers::pi / 180.0;
constexpr double WholeTurn = 360.0; // degrees
constexpr RowLayout StatusRows = {3, 2};
constexpr RowLayout SurfaceRows = {4, 2};

constexpr std::int32_t FirstDiscBit = 1;
constexpr std::int32_t LastDiscBit = 2;
constexpr std::int32_t BeginBit = 4;
constexpr std::int32_t EndBit = 8;

/// A closed profile, and how far it turns [degrees].
struct Lathe {
    Loft loft;
    PlanRing points;
    double begin = 0.0;
    double angle = 0.0;
    std::int32_t mask = 0;
    std::int32_t side = -1;
};

bool IsOnAxis(const Coordinate& point) {
    return point.y <= NoShapeLength;
}

std::string AddTurned(const ShapeInput& input, ShapeSketch& sketch, const Lathe& lathe) {
    double widest = 0.0;
    for (const Coordinate& point : lathe.points) {
        if (point.y < -NoShapeLength) {
            return "os pontos devem ficar no eixo x ou acima dele";
        }
        widest = std::max(widest, point.y);
    }
    const double angle = std::clamp(lathe.angle, -WholeTurn, WholeTurn);
    if (angle == 0.0 || widest <= NoShapeLength) {
        return {};
    }
    const auto bands = static_cast<std::size_t>(ArcSegments(input.curves, widest, angle));
    if (std::string refusal = CheckLoftRoom(sketch, lathe.points.size(), bands); !refusal.empty()) {
        return refusal;
    }
    const bool whole = std::abs(angle) == WholeTurn;
    LoftSection first;
    LoftSection before;
    for (std::size_t k = 0; k <= bands; ++k) {
        const double turned =
            Degree * (lathe.begin + angle * static_cast<double>(k) / static_cast<double>(bands));
        LoftSection here;
        for (std::size_t i = 0; i < lathe.points.size(); ++i) {
            const Coordinate& point = lathe.points[i];
            const bool shared = k > 0 && IsOnAxis(point);
            here.push_back(shared ? first[i]
                                  : AddVertex(sketch, {point.x, point.y * std::cos(turned),
                                                       point.y * std::sin(turned)}));
        }
        if (k == 0) {
            first = here;
        } else {
            if (whole && k == bands) {
                here = first;
            }
            AddBand(sketch, lathe.loft, before, here);
        }
        before = here;
    }
    if (!whole) {
        AddCap(sketch, lathe.loft, first, lathe.side, HasBits(lathe.mask, BeginBit), true);
        AddCap(sketch, lathe.loft, before, lathe.side, HasBits(lathe.mask, EndBit), false);
    }
    return {};
}

/// Joins the ends of an open line over the axis; the discs that this makes are there by the mask.
void CloseOverAxis(const ShapeInput& input, Lathe& lathe) {
    const Coordinate first = lathe.points.front();
    const Coordinate last = lathe.points.back();
    lathe.loft.edges.back() = {input.surface, HasBits(lathe.mask, LastDiscBit)};
    if (!IsOnAxis(last)) {
        lathe.points.push_back({last.x, 0.0});
        lathe.loft.edges.push_back({input.surface, false});
    }
    if (!IsOnAxis(first)) {
        lathe.points.push_back({first.x, 0.0});
        lathe.loft.edges.push_back({input.surface, HasBits(lathe.mask, FirstDiscBit)});
    }
    lathe.loft.ringEnds = {lathe.points.size()};
}

} // namespace

std::string SketchRevolved(ShapeInput& input, ShapeSketch& sketch) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, 2, count); !refusal.empty()) {
        return refusal;
    }
    Lathe lathe;
    lathe.angle = TakeNumber(input);
    lathe.mask = TakeBits(input);
    lathe.side = input.surface;
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, StatusRows, profile);
        !refusal.empty() || profile.rings.empty()) {
        return refusal;
    }
    if (profile.rings.size() > 1) {
        return "o perfil não pode ter furos";
    }
    if (!KeepProfileOpen(profile)) {
        return {};
    }
    lathe.loft = ProfileLoft(profile, input.surface, false);
    lathe.points = profile.rings.front().points;
    if (!profile.rings.front().closed) {
        CloseOverAxis(input, lathe);
    }
    return AddTurned(input, sketch, lathe);
}

std::string SketchRevolvedPolygon(ShapeInput& input, ShapeSketch& sketch) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, 2, count); !refusal.empty()) {
        return refusal;
    }
    Lathe lathe;
    lathe.begin = TakeNumber(input);
    lathe.angle = TakeNumber(input);
    lathe.mask = TakeBits(input);
    lathe.side = TakeSurface(input);
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, SurfaceRows, profile);
        !refusal.empty() || !CloseProfile(profile)) {
        return refusal;
    }
    lathe.loft = ProfileLoft(profile, input.surface, true);
    lathe.points = ProfilePoints(profile);
    std::size_t at = 0;
    for (const ShapeRing& ring : profile.rings) {
        for (const std::size_t row : ring.edgeRows) {
            lathe.loft.edges[at++].surface =
                SurfaceNumber(input, RowNumber(input, profile, row, 3));
        }
    }
    return AddTurned(input, sketch, lathe);
}

} // namespace Merivane::Workbench
