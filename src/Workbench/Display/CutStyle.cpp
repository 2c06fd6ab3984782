#include "Workbench/Display/CutStyle.hpp"

#include <iterator>
#include <utility>

namespace Merivane::Workbench {

void AddCut(const BodyCut& cut, const CutLook& look, const PaperDrawing& drawing,
            CutLayers& layers) {
    Drawing::Area area;
    area.fill = look.fill;
    // Of a line under its fill only the outer half is seen.
    const Drawing::Stroke stroke = {
        look.merged ? 2.0 * look.outline : look.outline, Drawing::Black, {}};
    std::vector<Drawing::Element>& outlines = look.merged ? layers.mergedOutlines : layers.others;
    std::vector<Drawing::Element>& fills = look.merged ? layers.mergedFills : layers.others;
    for (const auto& ring : cut.rings) {
        area.rings.push_back(PaperPoints(drawing, ring));
    }
    const std::vector<std::vector<Drawing::Point>> rings = area.rings;
    if (!rings.empty()) {
        fills.emplace_back(std::move(area));
    }
    for (const std::vector<Drawing::Point>& ring : rings) {
        outlines.emplace_back(Drawing::Polyline{ring, true, stroke});
    }
    for (const auto& line : cut.lines) {
        layers.others.emplace_back(Drawing::Polyline{
            PaperPoints(drawing, line), false, {look.outline, Drawing::Black, {}}});
    }
}

void AddCutLayers(CutLayers layers, PaperDrawing& drawing) {
    for (std::vector<Drawing::Element>* elements :
         {&layers.mergedOutlines, &layers.mergedFills, &layers.others}) {
        std::move(elements->begin(), elements->end(), std::back_inserter(drawing.cut));
    }
}

} // namespace Merivane::Workbench
