#include "Workbench/Display/PlanModel.hpp"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "Workbench/Display/BodyCut.hpp"
#include "Workbench/Display/CutStyle.hpp"
#include "Workbench/Display/DrawnElements.hpp"
#include "Workbench/Display/PlacedSymbol.hpp"
#include "Workbench/Display/SeenOutlines.hpp"
#include "Workbench/Display/ShownModel.hpp"
#include "Workbench/Display/WindowDrawing.hpp"
#include "Workbench/Model/ElementBodies.hpp"
#include "Workbench/Model/PartRuns.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::ElementType;

constexpr Drawing::Color Grey = {0.45, 0.45, 0.45};
constexpr double MarkText = 2.5;  // [mm]
constexpr double MarkArrow = 3.0; // [mm]

Drawing::Stroke BelowStroke() {
    return {0.13, Grey, {}};
}

Drawing::Stroke AboveStroke() {
    return {0.13, Grey, {2.0, 1.0}};
}

Drawing::Stroke ObjectStroke() {
    return {0.18, {0.30, 0.30, 0.30}, {}};
}

Drawing::Stroke LampStroke() {
    return {0.25, Drawing::Black, {}};
}

// What of an element that hangs over the cut is worth a dashed line.
bool ShowsAbove(ElementType type) {
    switch (type) {
    case ElementType::Beam:
    case ElementType::Slab:
    case ElementType::Roof:
    case ElementType::Shell:
    case ElementType::Skylight:
    case ElementType::Stair:
    case ElementType::Morph:
    case ElementType::Window:
    case ElementType::Door:
        return true;
    default:
        return false;
    }
}

CutLook LookInPlan(const Project& project, ElementType type, const ViewBody& body) {
    if (type == ElementType::Wall || type == ElementType::Column) {
        const CutLook& solid = type == ElementType::Wall ? WallCut : ColumnCut;
        return IsMostlyGlass(project, body) ? GlassCut : solid;
    }
    return HasGlass(project, body) ? GlassCut : LightCut;
}

void AddOutlines(const std::vector<ViewBody>& bodies, double nearest, const Drawing::Stroke& stroke,
                 const PaperDrawing& drawing, std::vector<Drawing::Element>& elements) {
    for (const auto& [from, to] : SeenOutlines(bodies, nearest)) {
        elements.emplace_back(
            Drawing::Polyline{{PaperPoint(drawing, from), PaperPoint(drawing, to)}, false, stroke});
    }
}

void AddBuildingElement(const Project& project, const ShownElement& shown, bool isOfFloor,
                        double cutHeight, CutLayers& layers, PaperDrawing& drawing) {
    const ElementType type = shown.element->element.header.type;
    std::vector<ViewBody> below;
    std::vector<ViewBody> above;
    for (const ViewBody& body : shown.bodies) {
        const BodyCut cut = CutBody(body, cutHeight);
        if (!cut.IsEmpty()) {
            AddCut(cut, LookInPlan(project, type, body), drawing, layers);
        }
        (LowestDepth(body) < cutHeight ? below : above).push_back(body);
    }
    if (isOfFloor) {
        AddOutlines(below, cutHeight, BelowStroke(), drawing, drawing.below);
    }
    if (isOfFloor && ShowsAbove(type)) {
        AddOutlines(above, HUGE_VAL, AboveStroke(), drawing, drawing.above);
    }
}

// What a part's plan script draws; where it asks for the model seen from above, that.
void AddScriptedObject(const Project& project, const ShownElement& shown, const ProjectPart& part,
                       const Drawing::Stroke& stroke, PaperDrawing& drawing,
                       std::vector<Drawing::Element>& elements) {
    const auto& object = std::get<Host::ObjectData>(shown.element->element.data);
    const PlanSymbolDrawing& symbol = SymbolOfObject(project, part, *shown.element, drawing.scale);
    const bool showsModel =
        std::any_of(symbol.shapes.begin(), symbol.shapes.end(), [](const PlanShape& shape) {
            return std::holds_alternative<PlanProjection>(shape);
        });
    if (showsModel) {
        AddOutlines(shown.bodies, HUGE_VAL, stroke, drawing, elements);
    }
    AddPlacedSymbol(project, symbol, PlaceOfObject(object), drawing, elements);
}

void AddObject(const Project& project, const ShownElement& shown, PaperDrawing& drawing) {
    const bool isLamp = shown.element->element.header.type == ElementType::Lamp;
    const Drawing::Stroke stroke = isLamp ? LampStroke() : ObjectStroke();
    std::vector<Drawing::Element>& elements = isLamp ? drawing.above : drawing.below;
    const auto* const object = std::get_if<Host::ObjectData>(&shown.element->element.data);
    const ProjectPart* const part = object ? FindObjectPart(project, *object) : nullptr;
    if (part && HasPlanScript(*part)) {
        AddScriptedObject(project, shown, *part, stroke, drawing, elements);
    } else {
        AddOutlines(shown.bodies, HUGE_VAL, stroke, drawing, elements);
    }
}

// A filled triangle that shows where the viewer looks, at an end of a section's line.
void AddArrow(const Drawing::Point& end, const Drawing::Point& along, PaperDrawing& drawing) {
    const Drawing::Point left = {-along.y, along.x};
    const double half = MarkArrow / 2.0;
    drawing.curves.emplace_back(Drawing::Area{{{{end.x - half * along.x, end.y - half * along.y},
                                                {end.x + half * along.x, end.y + half * along.y},
                                                {end.x + half * left.x, end.y + half * left.y}}},
                                              Drawing::Black,
                                              0.0});
}

void AddMarkText(const std::string& text, const Drawing::Point& place, PaperDrawing& drawing) {
    Drawing::TextRun run;
    run.text = text;
    run.position = place;
    run.height = MarkText;
    run.weight = Drawing::TextWeight::Bold;
    run.horizontal = Drawing::HorizontalAnchor::Center;
    run.vertical = Drawing::VerticalAnchor::Middle;
    drawing.texts.emplace_back(std::move(run));
}

} // namespace

void AddPlanModel(const Project& project, std::int16_t floorIndex, PaperDrawing& drawing) {
    const double cutHeight = StoryLevel(project, floorIndex) + PlanCutHeight;
    CutLayers layers;
    for (const ShownElement& shown : CollectShownElements(project, FrameFromAbove())) {
        const Host::ElementHeader& header = shown.element->element.header;
        const bool isOfFloor = header.floorIndex == floorIndex;
        if (header.type == ElementType::Object || header.type == ElementType::Lamp) {
            if (isOfFloor) {
                AddObject(project, shown, drawing);
            }
        } else {
            AddBuildingElement(project, shown, isOfFloor, cutHeight, layers, drawing);
        }
    }
    AddCutLayers(std::move(layers), drawing);
}

void AddSectionMarks(const Project& project, PaperDrawing& drawing) {
    for (const ProjectDatabase& database : project.databases) {
        const SectionLine& line = database.section;
        const double length = std::hypot(line.end.x - line.begin.x, line.end.y - line.begin.y);
        bool isShown = false;
        for (const ProjectElement& element : project.elements) {
            isShown = isShown || (element.element.header.guid == database.window.marker &&
                                  IsOnVisibleLayer(project, element));
        }
        if (!isShown || length <= 0.0) {
            continue;
        }
        const Drawing::Point along = {(line.end.x - line.begin.x) / length,
                                      (line.end.y - line.begin.y) / length};
        const Drawing::Point begin = PaperPoint(drawing, line.begin);
        const Drawing::Point end = PaperPoint(drawing, line.end);
        drawing.curves.emplace_back(
            Drawing::Polyline{{begin, end}, false, {0.18, Drawing::Black, {6.0, 1.5, 1.0, 1.5}}});
        AddArrow(begin, along, drawing);
        AddArrow(end, along, drawing);
        const std::string& text =
            database.window.reference.empty() ? database.window.name : database.window.reference;
        const double off = MarkArrow + MarkText;
        AddMarkText(text, {begin.x - off * along.x, begin.y - off * along.y}, drawing);
        AddMarkText(text, {end.x + off * along.x, end.y + off * along.y}, drawing);
    }
}

} // namespace Merivane::Workbench
