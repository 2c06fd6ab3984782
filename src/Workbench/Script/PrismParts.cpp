#include "Workbench/Script/PrismParts.hpp"

#include <cstddef>

#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

PrismSurfaces CommonSurfaces(const ShapeInput& input) {
    return {input.surface, input.surface, input.surface};
}

PrismSurfaces TakeSurfaces(ShapeInput& input) {
    const std::int32_t top = TakeSurface(input);
    const std::int32_t bottom = TakeSurface(input);
    const std::int32_t side = TakeSurface(input);
    return {top, bottom, side};
}

Loft PrismLoft(const ShapeProfile& profile, std::int32_t surface) {
    Loft loft = ProfileLoft(profile, surface, true);
    std::size_t at = 0;
    for (const ShapeRing& ring : profile.rings) {
        for (const std::int32_t status : ring.status) {
            loft.edges[at++].present = HasBits(status, SideFaceBit);
        }
    }
    return loft;
}

void SetSideSurfaces(const ShapeInput& input, const ShapeProfile& profile, std::size_t column,
                     Loft& loft) {
    std::size_t at = 0;
    for (const ShapeRing& ring : profile.rings) {
        for (const std::size_t row : ring.edgeRows) {
            loft.edges[at++].surface = SurfaceNumber(input, RowNumber(input, profile, row, column));
        }
    }
}

std::string AddPrism(ShapeSketch& sketch, const Loft& loft, const PrismEnds& ends,
                     const PrismSurfaces& surfaces) {
    if (std::string refusal = CheckLoftRoom(sketch, ends.bottom.size(), 1); !refusal.empty()) {
        return refusal;
    }
    const LoftSection bottom =
        AddSection(sketch, ends.bottom.size(), [&](std::size_t i) { return ends.bottom[i]; });
    LoftSection top;
    for (std::size_t i = 0; i < bottom.size(); ++i) {
        const bool apart = Length(Difference(ends.top[i], ends.bottom[i])) > NoShapeLength;
        top.push_back(apart ? AddVertex(sketch, ends.top[i]) : bottom[i]);
    }
    AddCap(sketch, loft, top, surfaces.top, true, false);
    if (top == bottom) {
        sketch.oriented = true;
        return {};
    }
    AddCap(sketch, loft, bottom, surfaces.bottom, true, true);
    AddBand(sketch, loft, bottom, top);
    return {};
}

} // namespace Merivane::Workbench
