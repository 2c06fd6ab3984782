#include <vector>

#include "Archicad/ResultDrawing.hpp"
#include "Host/Attributes.hpp"
#include "Host/Stories.hpp"

// What a drawing of results needs of the project before its undo step.
namespace Merivane::Archicad {

namespace {

using Host::AttributeIndex;
using Host::ErrorCode;

constexpr double UsualScale = 100.0;

// The first solid fill in the project's order; none when there is none.
AttributeIndex FindSolidFill() {
    std::vector<AttributeIndex> fills;
    if (Host::ListAttributes(Host::AttributeType::Fill, fills) != Host::NoError) {
        return {};
    }
    for (const AttributeIndex index : fills) {
        Host::Fill fill;
        if (Host::GetFill(index, fill) == Host::NoError && fill.kind == Host::FillKind::Solid) {
            return index;
        }
    }
    return {};
}

double FindScale(double asked) {
    if (asked > 0.0) {
        return asked;
    }
    double scale = 0.0;
    return Host::GetDrawingScale(scale) == Host::NoError && scale > 0.0 ? scale : UsualScale;
}

} // namespace

DrawingOptions DrawingOptionsOf(const Simulation::CalculationSettings& settings) {
    DrawingOptions options;
    options.scale = settings.drawingScale;
    options.fills = settings.fills;
    options.model3D = settings.model3D;
    options.colorScale = settings.colorScale;
    options.legend = settings.legend;
    options.curves = settings.curves;
    options.curveLabels = settings.curveLabels;
    options.values = settings.values;
    options.valueSpacingX = settings.valueSpacing;
    options.valueSpacingY = settings.valueSpacing;
    options.levels = settings.levels;
    return options;
}

ErrorCode PrepareResultStructure(const DrawingOptions& options, ResultStructure& structure) {
    structure = {};
    if (const ErrorCode code = EnsureResultLayers(structure.layers)) {
        return code;
    }
    structure.solidFill = FindSolidFill();
    if (EnsureLineType(DashedLineType(), structure.dashedLine) != Host::NoError) {
        structure.dashedLine = {};
    }
    AttributeIndex dashDot; // of no curve, but at hand beside the other
    EnsureLineType(DashDotLineType(), dashDot);
    structure.scale = FindScale(options.scale);
    return Host::NoError;
}

} // namespace Merivane::Archicad
