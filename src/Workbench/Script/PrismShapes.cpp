#include "Workbench/Script/PrismShapes.hpp"

#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include "Workbench/Script/PrismParts.hpp"
#include "Workbench/Script/ShapeProfile.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr double Degree = std::numbers::pi / 180.0;
constexpr double RightAngle = 90.0; // degrees

constexpr RowLayout PlainRows = {2, 0};
constexpr RowLayout StatusRows = {3, 2};
constexpr RowLayout SlantedRows = {5, 3}; // x, y, alpha, s, side
constexpr RowLayout SurfaceRows = {4, 2}; // x, y, s, side
constexpr RowLayout SlabRows = {4, 3};    // x, y, z, s
constexpr RowLayout PlainSlabRows = {3, 0};

/// A plane over a line in plan, `level` high along it, that rises to its left.
struct SlopedPlane {
    Coordinate begin;
    Coordinate end;
    double level = 0.0;
    double angle = 0.0; // degrees

    double At(const Coordinate& place) const {
        const double length = std::hypot(end.x - begin.x, end.y - begin.y);
        const double left =
            (end.x - begin.x) * (place.y - begin.y) - (end.y - begin.y) * (place.x - begin.x);
        return level + left / length * std::tan(angle * Degree);
    }
};

std::string TakeSlope(ShapeInput& input, SlopedPlane& plane) {
    plane.begin.x = TakeNumber(input);
    plane.begin.y = TakeNumber(input);
    plane.end.x = TakeNumber(input);
    plane.end.y = TakeNumber(input);
    plane.level = TakeNumber(input);
    plane.angle = TakeNumber(input);
    if (std::hypot(plane.end.x - plane.begin.x, plane.end.y - plane.begin.y) <= NoShapeLength) {
        return "a linha de referência não tem comprimento";
    }
    if (!(std::abs(plane.angle) < RightAngle)) {
        return "a inclinação deve ficar entre -90 e 90 graus";
    }
    return {};
}

PrismEnds StraightEnds(const ShapeProfile& profile, double height) {
    PrismEnds ends;
    for (const Coordinate& point : ProfilePoints(profile)) {
        ends.bottom.push_back({point.x, point.y, 0.0});
        ends.top.push_back({point.x, point.y, height});
    }
    return ends;
}

/// From n on: n, h and the rows.
std::string SketchStraight(ShapeInput& input, ShapeSketch& sketch, const PrismSurfaces& surfaces,
                           const RowLayout& layout) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, FewestRows(layout), count); !refusal.empty()) {
        return refusal;
    }
    const double height = TakeNumber(input);
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, layout, profile);
        !refusal.empty() || !CloseProfile(profile)) {
        return refusal;
    }
    return AddPrism(sketch, PrismLoft(profile, surfaces.side), StraightEnds(profile, height),
                    surfaces);
}

std::string SketchSlanted(ShapeInput& input, ShapeSketch& sketch, const PrismSurfaces& surfaces) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, FewestRows(SlantedRows), count); !refusal.empty()) {
        return refusal;
    }
    const double height = TakeNumber(input);
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, SlantedRows, profile);
        !refusal.empty() || !CloseProfile(profile)) {
        return refusal;
    }
    PrismEnds ends = StraightEnds(profile, height);
    ends.top.clear();
    for (const ShapeRing& ring : profile.rings) {
        std::vector<double> distances;
        for (const std::size_t row : ring.edgeRows) {
            const double angle = RowNumber(input, profile, row, 2);
            if (!(std::abs(angle) < RightAngle)) {
                return "a inclinação deve ficar entre -90 e 90 graus";
            }
            distances.push_back(std::abs(height) * std::tan(angle * Degree));
        }
        PlanRing moved;
        if (!MoveSides(ring.points, distances, moved)) {
            return "as faces inclinadas se cruzam";
        }
        for (const Coordinate& point : moved) {
            ends.top.push_back({point.x, point.y, height});
        }
    }
    Loft loft = PrismLoft(profile, surfaces.side);
    SetSideSurfaces(input, profile, 4, loft);
    return AddPrism(sketch, loft, ends, surfaces);
}

/// Both planes over a profile; the top must not be below the bottom anywhere.
std::string AddSloped(ShapeInput& input, ShapeSketch& sketch, const ShapeProfile& profile,
                      const SlopedPlane& top, const SlopedPlane& bottom,
                      const PrismSurfaces& surfaces) {
    PrismEnds ends;
    for (const Coordinate& point : ProfilePoints(profile)) {
        const double low = bottom.At(point);
        const double high = top.At(point);
        if (!(high >= low - NoShapeLength)) {
            return "o topo do prisma fica abaixo da base";
        }
        ends.bottom.push_back({point.x, point.y, low});
        ends.top.push_back({point.x, point.y, high});
    }
    Loft loft = PrismLoft(profile, surfaces.side);
    if (profile.columns == SurfaceRows.columns) {
        SetSideSurfaces(input, profile, 3, loft);
    }
    return AddPrism(sketch, loft, ends, surfaces);
}

/// From n on.
std::string SketchTwiceSloped(ShapeInput& input, ShapeSketch& sketch,
                              const PrismSurfaces& surfaces) {
    std::size_t count = 0;
    SlopedPlane top;
    SlopedPlane bottom;
    if (std::string refusal = TakeCount(input, FewestRows(SurfaceRows), count); !refusal.empty()) {
        return refusal;
    }
    for (SlopedPlane* const plane : {&top, &bottom}) {
        if (std::string refusal = TakeSlope(input, *plane); !refusal.empty()) {
            return refusal;
        }
    }
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, SurfaceRows, profile);
        !refusal.empty() || !CloseProfile(profile)) {
        return refusal;
    }
    return AddSloped(input, sketch, profile, top, bottom, surfaces);
}

std::string SketchAnySlab(ShapeInput& input, ShapeSketch& sketch, const PrismSurfaces& surfaces,
                          const RowLayout& layout) {
    std::size_t count = 0;
    if (std::string refusal = TakeCount(input, FewestRows(layout), count); !refusal.empty()) {
        return refusal;
    }
    const double height = TakeNumber(input);
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, layout, profile);
        !refusal.empty() || !CloseProfile(profile)) {
        return refusal;
    }
    PrismEnds ends;
    for (const ShapeRing& ring : profile.rings) {
        for (std::size_t i = 0; i < ring.points.size(); ++i) {
            const double z = RowNumber(input, profile, ring.pointRows[i], 2);
            ends.bottom.push_back({ring.points[i].x, ring.points[i].y, z});
            ends.top.push_back({ring.points[i].x, ring.points[i].y, z + height});
        }
    }
    return AddPrism(sketch, PrismLoft(profile, surfaces.side), ends, surfaces);
}

} // namespace

std::string SketchPlainPrism(ShapeInput& input, ShapeSketch& sketch) {
    return SketchStraight(input, sketch, CommonSurfaces(input), PlainRows);
}

std::string SketchPrism(ShapeInput& input, ShapeSketch& sketch) {
    return SketchStraight(input, sketch, CommonSurfaces(input), StatusRows);
}

std::string SketchSurfacePrism(ShapeInput& input, ShapeSketch& sketch) {
    const PrismSurfaces surfaces = TakeSurfaces(input);
    return SketchStraight(input, sketch, surfaces, StatusRows);
}

std::string SketchSlantedPrism(ShapeInput& input, ShapeSketch& sketch) {
    const PrismSurfaces surfaces = TakeSurfaces(input);
    return SketchSlanted(input, sketch, surfaces);
}

std::string SketchMaskedPrism(ShapeInput& input, ShapeSketch& sketch) {
    const PrismSurfaces surfaces = TakeSurfaces(input);
    TakeNumber(input); // the mask tells how edges are drawn
    return SketchSlanted(input, sketch, surfaces);
}

std::string SketchSlopedPrism(ShapeInput& input, ShapeSketch& sketch) {
    const PrismSurfaces surfaces = TakeSurfaces(input);
    std::size_t count = 0;
    SlopedPlane top;
    if (std::string refusal = TakeCount(input, FewestRows(StatusRows), count); !refusal.empty()) {
        return refusal;
    }
    if (std::string refusal = TakeSlope(input, top); !refusal.empty()) {
        return refusal;
    }
    ShapeProfile profile;
    if (std::string refusal = ReadProfile(input, sketch, count, StatusRows, profile);
        !refusal.empty() || !CloseProfile(profile)) {
        return refusal;
    }
    const SlopedPlane ground = {{0.0, 0.0}, {1.0, 0.0}, 0.0, 0.0};
    return AddSloped(input, sketch, profile, top, ground, surfaces);
}

std::string SketchTwiceSlopedPrism(ShapeInput& input, ShapeSketch& sketch) {
    const PrismSurfaces surfaces = TakeSurfaces(input);
    return SketchTwiceSloped(input, sketch, surfaces);
}

std::string SketchMaskedSlopedPrism(ShapeInput& input, ShapeSketch& sketch) {
    const PrismSurfaces surfaces = TakeSurfaces(input);
    TakeNumber(input); // the mask tells how edges are drawn
    return SketchTwiceSloped(input, sketch, surfaces);
}

std::string SketchPlainSlab(ShapeInput& input, ShapeSketch& sketch) {
    return SketchAnySlab(input, sketch, CommonSurfaces(input), PlainSlabRows);
}

std::string SketchSlab(ShapeInput& input, ShapeSketch& sketch) {
    return SketchAnySlab(input, sketch, CommonSurfaces(input), SlabRows);
}

std::string SketchSurfaceSlab(ShapeInput& input, ShapeSketch& sketch) {
    const PrismSurfaces surfaces = TakeSurfaces(input);
    return SketchAnySlab(input, sketch, surfaces, SlabRows);
}

} // namespace Merivane::Workbench
