#include "Document/ResultPlan.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Document/PlanFigures.hpp"
#include "Document/PlanLabels.hpp"
#include "Document/PlanLegend.hpp"
#include "Document/PlanSheet.hpp"
#include "Document/PlanSummary.hpp"
#include "Document/SheetText.hpp"
#include "Document/TextSpace.hpp"
#include "Simulation/ColorBands.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/Isolines.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/TaskOutline.hpp"

namespace Merivane::Document {
namespace {

using Drawing::Layer;

// What is drawn of one Zone.
struct ZoneFigures {
    const PlanZone* zone = nullptr;
    std::vector<Simulation::IsoCurve> curves;
    std::vector<Simulation::IsoCurve> taskOutline;
    std::vector<Simulation::ColorBand> bands;
};

std::vector<ZoneFigures> BuildFigures(const PlanContents& contents, const PlanStyle& style) {
    std::vector<ZoneFigures> figures;
    for (const PlanZone& zone : contents.zones) {
        const Simulation::GridField field = MakeGridField(zone.grid, zone.values);
        ZoneFigures& of = figures.emplace_back();
        of.zone = &zone;
        if (style.fills) {
            of.bands = BuildBands(field, contents.levels);
        }
        if (style.curves) {
            of.curves = ExtractIsolines(field, contents.levels);
        }
        if (!zone.grid.narrow) {
            of.taskOutline = Simulation::BuildTaskOutline(zone.polygon, zone.borderBand);
        }
    }
    return figures;
}

void Include(Drawing::Box& box, double x, double y) {
    if (std::isfinite(x) && std::isfinite(y)) {
        box = {std::min(box.left, x), std::min(box.bottom, y), std::max(box.right, x),
               std::max(box.top, y)};
    }
}

// Extent of everything on the plan [m]; a square metre when there is nothing.
Drawing::Box ContentBounds(const PlanContents& contents) {
    constexpr double far = std::numeric_limits<double>::infinity();
    Drawing::Box box{far, far, -far, -far};
    for (const PlanZone& zone : contents.zones) {
        for (const Simulation::Point2D& place : zone.polygon.outer) {
            Include(box, place.x, place.y);
        }
    }
    for (const PlanSegment& segment : contents.segments) {
        Include(box, segment.start.x, segment.start.y);
        Include(box, segment.end.x, segment.end.y);
    }
    for (const PlanLuminaire& luminaire : contents.luminaires) {
        const double reach = 0.5 * std::hypot(luminaire.length, luminaire.width);
        Include(box, luminaire.center.x - reach, luminaire.center.y - reach);
        Include(box, luminaire.center.x + reach, luminaire.center.y + reach);
    }
    return box.left <= box.right ? box : Drawing::Box{0.0, 0.0, 1.0, 1.0};
}

std::vector<SheetBlock> BuildBlocks(const PlanContents& contents, const PlanStyle& style) {
    std::vector<SheetBlock> blocks;
    if (style.legend) {
        blocks.push_back(BuildLegendBlock(contents.levels, style.colorScale));
    }
    for (const PlanZone& zone : contents.zones) {
        blocks.push_back(BuildSummaryBlock(zone));
    }
    for (const std::string& note : contents.notes) {
        blocks.push_back(BuildNoteBlock(note));
    }
    return blocks;
}

void AppendBlock(Layer& layer, const SheetBlock& block, const Drawing::Point& corner) {
    const auto move = [&corner](Drawing::Point& point) {
        point = {point.x + corner.x, point.y + corner.y};
    };
    for (Drawing::Element element : block.elements) {
        if (auto* area = std::get_if<Drawing::Area>(&element)) {
            for (auto& ring : area->rings) {
                std::for_each(ring.begin(), ring.end(), move);
            }
        } else if (auto* line = std::get_if<Drawing::Polyline>(&element)) {
            std::for_each(line->points.begin(), line->points.end(), move);
        } else if (auto* arc = std::get_if<Drawing::Arc>(&element)) {
            move(arc->center);
        } else if (auto* text = std::get_if<Drawing::TextRun>(&element)) {
            move(text->position);
        }
        layer.elements.push_back(std::move(element));
    }
}

Layer BuildBlockLayer(const PlanSheet& sheet, const std::vector<SheetBlock>& blocks) {
    Layer layer{"Vantoro - Legenda", {}};
    for (const PlacedBlock& placed : sheet.blocks) {
        AppendBlock(layer, blocks[placed.block], placed.corner);
    }
    return layer;
}

// Title, scale and frame of the sheet.
Layer BuildSheetLayer(const PlanContents& contents, const PlanSheet& sheet) {
    constexpr double frameEdge = 4.0;
    constexpr double titleHeight = 4.2;
    Layer layer{"Folha", {}};
    const double right = sheet.width - frameEdge;
    const double top = sheet.height - frameEdge;
    layer.elements.emplace_back(Drawing::Polyline{
        {{frameEdge, frameEdge}, {right, frameEdge}, {right, top}, {frameEdge, top}},
        true,
        {0.25, Drawing::Black, {}}});
    const Drawing::Box& area = sheet.titleArea;
    const double width = area.right - area.left;
    layer.elements.emplace_back(FittingText(contents.title, area.left, area.top - titleHeight,
                                            width, {titleHeight, 2.8}, Drawing::TextWeight::Bold));
    Drawing::TextRun floor =
        FittingText(contents.floor, area.left, area.top - titleHeight - 4.6, width, {2.4, 1.8});
    floor.color = Muted;
    layer.elements.emplace_back(floor);
    AppendScaleBar(layer, sheet, {sheet.footArea.left, sheet.footArea.bottom});
    Drawing::TextRun program =
        SheetText("Vantoro", sheet.footArea.right, sheet.footArea.bottom, 1.8);
    program.horizontal = Drawing::HorizontalAnchor::Right;
    program.color = Muted;
    layer.elements.emplace_back(program);
    return layer;
}

void ReserveFigures(TextSpace& space, const PlanSheet& sheet, const PlanContents& contents) {
    for (const PlanZone& zone : contents.zones) {
        for (const Simulation::Edge2D& edge : BoundaryEdges(zone.polygon)) {
            space.walls.push_back({OnPaper(sheet, edge.from), OnPaper(sheet, edge.to)});
        }
    }
    for (const PlanSegment& segment : contents.segments) {
        space.walls.push_back({OnPaper(sheet, segment.start), OnPaper(sheet, segment.end)});
    }
    for (const PlanLuminaire& luminaire : contents.luminaires) {
        space.symbols.push_back(LuminaireBox(sheet, luminaire));
    }
}

void ReserveOutlines(TextSpace& space, const PlanSheet& sheet,
                     const std::vector<ZoneFigures>& figures) {
    for (const ZoneFigures& of : figures) {
        for (const Simulation::IsoCurve& curve : of.taskOutline) {
            for (std::size_t k = 1; k < curve.points.size(); ++k) {
                space.limits.push_back(
                    {OnPaper(sheet, curve.points[k - 1]), OnPaper(sheet, curve.points[k])});
            }
        }
    }
}

// Texts in the order of their right to a place: values stand at their nodes, the others give way.
void AppendTexts(Drawing::DisplayList& list, const PlanSheet& sheet, const PlanContents& contents,
                 const PlanStyle& style, const std::vector<ZoneFigures>& figures) {
    Layer values{"Vantoro - Valores", {}};
    Layer labels{"Vantoro - Isolux - Textos", {}};
    TextSpace space;
    ReserveFigures(space, sheet, contents);
    for (const ZoneFigures& of : figures) {
        if (style.values) {
            AppendValues(values, space, sheet, *of.zone, style);
        }
    }
    ReserveOutlines(space, sheet, figures);
    for (const ZoneFigures& of : figures) {
        AppendOutlineLabel(labels, space, sheet, *of.zone, of.taskOutline);
    }
    for (const ZoneFigures& of : figures) {
        if (figures.size() > 1) {
            AppendZoneName(labels, space, sheet, *of.zone);
        }
    }
    for (const ZoneFigures& of : figures) {
        if (style.curveLabels) {
            AppendCurveLabels(labels, space, sheet, of.curves);
        }
    }
    list.layers.push_back(std::move(values));
    list.layers.push_back(std::move(labels));
}

void AppendPlan(Drawing::DisplayList& list, const PlanSheet& sheet, const PlanContents& contents,
                const PlanStyle& style, const std::vector<ZoneFigures>& figures) {
    Layer colors{"Vantoro - Cor falsa", {}};
    Layer isolux{"Vantoro - Isolux", {}};
    Layer building{"Planta", {}};
    Layer luminaires{"Luminárias", {}};
    for (const ZoneFigures& of : figures) {
        AppendBands(colors, sheet, of.bands, contents.levels, style.colorScale);
        AppendCurves(isolux, sheet, of.curves);
        AppendTaskOutline(isolux, sheet, of.taskOutline);
        AppendFootprint(building, sheet, of.zone->polygon, !contents.segments.empty());
    }
    AppendSegments(building, sheet, contents.segments);
    for (const PlanLuminaire& luminaire : contents.luminaires) {
        AppendLuminaire(luminaires, sheet, luminaire);
    }
    list.layers = {std::move(colors), std::move(isolux), std::move(building),
                   std::move(luminaires)};
    AppendTexts(list, sheet, contents, style, figures);
}

} // namespace

Drawing::DisplayList BuildResultPlan(const PlanContents& contents, const PlanStyle& style) {
    const std::vector<SheetBlock> blocks = BuildBlocks(contents, style);
    const PlanSheet sheet = ArrangeSheet(ContentBounds(contents), blocks, style.scale);
    Drawing::DisplayList list;
    list.title = contents.title;
    list.width = sheet.width;
    list.height = sheet.height;
    AppendPlan(list, sheet, contents, style, BuildFigures(contents, style));
    list.layers.push_back(BuildBlockLayer(sheet, blocks));
    list.layers.push_back(BuildSheetLayer(contents, sheet));
    return list;
}

} // namespace Merivane::Document
