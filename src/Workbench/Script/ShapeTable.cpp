#include "Workbench/Script/ShapeTable.hpp"

#include <algorithm>
#include <iterator>

#include "Workbench/Script/HillPrisms.hpp"
#include "Workbench/Script/LatheShapes.hpp"
#include "Workbench/Script/PipeShapes.hpp"
#include "Workbench/Script/PrismShapes.hpp"
#include "Workbench/Script/SolidShapes.hpp"
#include "Workbench/Script/SurfaceShapes.hpp"
#include "Workbench/Script/SweptShapes.hpp"

namespace Merivane::Workbench {

namespace {

std::string RefuseShape(ShapeInput& /*input*/, ShapeSketch& /*sketch*/) {
    return "este corpo não é desenhado aqui";
}

/// In the order of their bytes.
constexpr ShapeStatement Statements[] = {
    {"ARC", 3, false, SketchSector},
    {"ARMC", 6, false, SketchCylinderArm},
    {"ARME", 5, false, SketchEllipsoidArm},
    {"BLOCK", 3, false, SketchBlock},
    {"BPRISM_", 12, true, SketchBentPrism},
    {"BRICK", 3, false, SketchBlock},
    {"BWALL_", 0, true, RefuseShape},
    {"CIRCLE", 1, false, SketchDisc},
    {"CONE", 5, false, SketchCone},
    {"COONS", 27, true, SketchCoonsPatch},
    {"CPRISM_", 11, true, SketchSurfacePrism},
    {"CPRISM_{2}", 15, true, SketchSlantedPrism},
    {"CPRISM_{3}", 16, true, SketchMaskedPrism},
    {"CPRISM_{4}", 16, true, SketchMaskedPrism},
    {"CSLAB_", 13, true, SketchSurfaceSlab},
    {"CWALL_", 0, true, RefuseShape},
    {"CYLIND", 2, false, SketchCylinder},
    {"ELBOW", 3, false, SketchElbow},
    {"ELLIPS", 2, false, SketchEllipsoid},
    {"EXTRUDE", 11, true, SketchExtrusion},
    {"FPRISM_", 14, true, SketchHillPrism},
    {"HPRISM_", 15, true, SketchStatusHillPrism},
    {"MASS", 0, true, RefuseShape},
    {"MASS{2}", 0, true, RefuseShape},
    {"MESH", 9, true, SketchMesh},
    {"PLANE", 10, true, SketchPlane},
    {"PLANE_", 13, true, SketchStatusPlane},
    {"POLY", 7, true, SketchPolygon},
    {"POLY_", 7, true, SketchStatusPolygon},
    {"PRISM", 8, true, SketchPlainPrism},
    {"PRISM_", 8, true, SketchPrism},
    {"PYRAMID", 9, true, SketchPyramid},
    {"RECT", 2, false, SketchRectangle},
    {"REVOLVE", 9, true, SketchRevolved},
    {"REVOLVE{2}", 13, true, SketchRevolvedPolygon},
    {"RULED", 14, true, SketchRuled},
    {"RULED{2}", 14, true, SketchRuled},
    {"SLAB", 11, true, SketchPlainSlab},
    {"SLAB_", 10, true, SketchSlab},
    {"SPHERE", 1, false, SketchSphere},
    {"SPRISM_", 16, true, SketchSlopedPrism},
    {"SPRISM_{2}", 24, true, SketchTwiceSlopedPrism},
    {"SPRISM_{3}", 25, true, SketchMaskedSlopedPrism},
    {"SPRISM_{4}", 25, true, SketchMaskedSlopedPrism},
    {"SWEEP", 17, true, SketchSweep},
    {"TUBE", 21, true, SketchTube},
    {"TUBEA", 18, true, SketchUprightTube},
    {"XWALL_", 0, true, RefuseShape},
};

constexpr bool IsBefore(const ShapeStatement& a, const ShapeStatement& b) {
    return a.keyword < b.keyword;
}

static_assert(std::is_sorted(std::begin(Statements), std::end(Statements), IsBefore));

} // namespace

const ShapeStatement* FindShapeStatement(std::string_view keyword) {
    const auto* const found =
        std::lower_bound(std::begin(Statements), std::end(Statements), keyword,
                         [](const ShapeStatement& statement, std::string_view word) {
                             return statement.keyword < word;
                         });
    return found != std::end(Statements) && found->keyword == keyword ? found : nullptr;
}

} // namespace Merivane::Workbench
