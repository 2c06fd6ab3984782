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
    {"ARC", "a slice of a disc, flat", 3, false, SketchSector},
    {"ARMC", "a cylinder that grows out of another", 6, false, SketchCylinderArm},
    {"ARME", "a cylinder that grows out of an ellipsoid", 5, false, SketchEllipsoidArm},
    {"BLOCK", "a box from the origin", 3, false, SketchBlock},
    {"BPRISM_", "a prism bent about an axis, with a surface each for top, bottom and sides", 12,
     true, SketchBentPrism},
    {"BRICK", "the same as BLOCK", 3, false, SketchBlock},
    {"BWALL_", "refused", 0, true, RefuseShape},
    {"CIRCLE", "a disc, flat", 1, false, SketchDisc},
    {"CONE", "a cone or its stump, its ends at two angles", 5, false, SketchCone},
    {"COONS", "a patch between four curves", 27, true, SketchCoonsPatch},
    {"CPRISM_", "a prism with a surface each for top, bottom and sides", 11, true,
     SketchSurfacePrism},
    {"CPRISM_{2}", "the same, each side with an angle and a surface of its own", 15, true,
     SketchSlantedPrism},
    {"CPRISM_{3}", "the same with a mask", 16, true, SketchMaskedPrism},
    {"CPRISM_{4}", "the same as CPRISM_{3}", 16, true, SketchMaskedPrism},
    {"CSLAB_", "a slab with surfaces of its own", 13, true, SketchSurfaceSlab},
    {"CWALL_", "refused", 0, true, RefuseShape},
    {"CYLIND", "an upright cylinder", 2, false, SketchCylinder},
    {"ELBOW", "a bend of a pipe", 3, false, SketchElbow},
    {"ELLIPS", "half an ellipsoid", 2, false, SketchEllipsoid},
    {"EXTRUDE", "a profile drawn along a vector", 11, true, SketchExtrusion},
    {"FPRISM_", "a prism with a hill on its top", 14, true, SketchHillPrism},
    {"HPRISM_", "the same, the hill's look by its status", 15, true, SketchStatusHillPrism},
    {"MASS", "refused", 0, true, RefuseShape},
    {"MASS{2}", "refused", 0, true, RefuseShape},
    {"MESH", "a grid of heights", 9, true, SketchMesh},
    {"PLANE", "a polygon in space", 10, true, SketchPlane},
    {"PLANE_", "the same with statuses", 13, true, SketchStatusPlane},
    {"POLY", "a polygon in the plane", 7, true, SketchPolygon},
    {"POLY_", "the same with statuses", 7, true, SketchStatusPolygon},
    {"PRISM", "a prism", 8, true, SketchPlainPrism},
    {"PRISM_", "the same with statuses, holes and arcs", 8, true, SketchPrism},
    {"PYRAMID", "a pyramid over a polygon", 9, true, SketchPyramid},
    {"RECT", "a rectangle, flat", 2, false, SketchRectangle},
    {"REVOLVE", "a profile turned about the x axis", 9, true, SketchRevolved},
    {"REVOLVE{2}", "a closed profile turned about it", 13, true, SketchRevolvedPolygon},
    {"RULED", "faces between a polygon and a curve in space", 14, true, SketchRuled},
    {"RULED{2}", "the same", 14, true, SketchRuled},
    {"SLAB", "a polygon in space with a thickness", 11, true, SketchPlainSlab},
    {"SLAB_", "the same with statuses", 10, true, SketchSlab},
    {"SPHERE", "a ball", 1, false, SketchSphere},
    {"SPRISM_", "a prism under a slanting plane", 16, true, SketchSlopedPrism},
    {"SPRISM_{2}", "the same between two", 24, true, SketchTwiceSlopedPrism},
    {"SPRISM_{3}", "the same with surfaces and a mask", 25, true, SketchMaskedSlopedPrism},
    {"SPRISM_{4}", "the same as SPRISM_{3}", 25, true, SketchMaskedSlopedPrism},
    {"SWEEP", "a profile led along a path, turned and scaled", 17, true, SketchSweep},
    {"TUBE", "a profile led along a path, mitred", 21, true, SketchTube},
    {"TUBEA", "the same, upright at the path's places", 18, true, SketchUprightTube},
    {"XWALL_", "refused", 0, true, RefuseShape},
};

constexpr bool IsBefore(const ShapeStatement& a, const ShapeStatement& b) {
    return a.keyword < b.keyword;
}

static_assert(std::is_sorted(std::begin(Statements), std::end(Statements), IsBefore));

} // namespace

std::span<const ShapeStatement> ShapeStatements() {
    return Statements;
}

const ShapeStatement* FindShapeStatement(std::string_view keyword) {
    const auto* const found =
        std::lower_bound(std::begin(Statements), std::end(Statements), keyword,
                         [](const ShapeStatement& statement, std::string_view word) {
                             return statement.keyword < word;
                         });
    return found != std::end(Statements) && found->keyword == keyword ? found : nullptr;
}

} // namespace Merivane::Workbench
