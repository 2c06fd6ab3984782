#include "Workbench/Display/WindowDrawing.hpp"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "Workbench/Display/BodyCut.hpp"
#include "Workbench/Display/CutStyle.hpp"
#include "Workbench/Display/DrawnElements.hpp"
#include "Workbench/Display/PaintedModel.hpp"
#include "Workbench/Display/PaperDrawing.hpp"
#include "Workbench/Display/PlanModel.hpp"
#include "Workbench/Display/ShownModel.hpp"
#include "Workbench/Model/ElementBodies.hpp"

namespace Merivane::Workbench {

namespace {

using Host::ElementType;

PaperDrawing AtScale(double scale, double own) {
    PaperDrawing drawing;
    drawing.scale = scale > 0.0 ? scale : own;
    return drawing;
}

// What is drawn in a window; on the plan that of one floor.
template <typename Condition>
void AddDrawnElements(const Project& project, const Condition& belongs, PaperDrawing& drawing) {
    for (const ProjectElement& element : project.elements) {
        if (belongs(element) && IsOnVisibleLayer(project, element)) {
            AddDrawnElement(project, element, drawing);
        }
    }
}

void AddDrawnIn(const Project& project, const ProjectDatabase& database, PaperDrawing& drawing) {
    AddDrawnElements(
        project,
        [&](const ProjectElement& element) { return element.database == database.window.database; },
        drawing);
}

std::string WindowTitle(const ProjectDatabase& database) {
    const Host::Window& window = database.window;
    return window.reference.empty() ? window.name : window.reference + " " + window.name;
}

std::string FloorTitle(const Project& project, std::int16_t floorIndex) {
    for (const Host::Story& story : project.stories) {
        if (story.index == floorIndex && !story.name.empty()) {
            return story.name;
        }
    }
    return "Pavimento " + std::to_string(floorIndex);
}

CutLook LookInSection(const Project& project, ElementType type, const ViewBody& body) {
    switch (type) {
    case ElementType::Wall:
    case ElementType::Slab:
    case ElementType::Roof:
    case ElementType::Shell:
        return IsMostlyGlass(project, body) ? GlassCut : WallCut;
    case ElementType::Column:
    case ElementType::Beam:
        return ColumnCut;
    case ElementType::Mesh:
        return GroundCut;
    default:
        return HasGlass(project, body) ? GlassCut : LightCut;
    }
}

void AddSectionModel(const Project& project, const SectionLine& line, PaperDrawing& drawing) {
    const auto shown = CollectShownElements(project, FrameAcrossLine(line.begin, line.end));
    PaintStyle style;
    style.nearest = 0.0;
    style.farthest = line.depth > 0.0 ? -line.depth : -HUGE_VAL;
    style.white = 0.72;
    style.shaded = false;
    PaintModel(project, shown, style, drawing);
    CutLayers layers;
    for (const ShownElement& element : shown) {
        for (const ViewBody& body : element.bodies) {
            AddCut(CutBody(body, 0.0),
                   LookInSection(project, element.element->element.header.type, body), drawing,
                   layers);
        }
    }
    AddCutLayers(std::move(layers), drawing);
}

// What closes rooms from above would hide all that is in them.
bool HangsOver(const ShownElement& shown, const ViewBody& fromAbove, double height) {
    switch (shown.element->element.header.type) {
    case ElementType::Slab:
    case ElementType::Roof:
    case ElementType::Shell:
    case ElementType::Skylight:
        return LowestDepth(fromAbove) >= height;
    default:
        return false;
    }
}

// The elements of one floor, without the bodies that hang over its rooms.
void KeepFloor(const Project& project, std::int16_t floorIndex, std::vector<ShownElement>& shown) {
    const double height = StoryLevel(project, floorIndex) + PlanCutHeight;
    const auto fromAbove = CollectShownElements(project, FrameFromAbove());
    std::vector<ShownElement> kept;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (shown[i].element->element.header.floorIndex != floorIndex) {
            continue;
        }
        ShownElement element{shown[i].element, {}};
        for (std::size_t b = 0; b < shown[i].bodies.size(); ++b) {
            if (!HangsOver(fromAbove[i], fromAbove[i].bodies[b], height)) {
                element.bodies.push_back(std::move(shown[i].bodies[b]));
            }
        }
        kept.push_back(std::move(element));
    }
    shown = std::move(kept);
}

} // namespace

Drawing::DisplayList DrawPlan(const Project& project, std::int16_t floorIndex, double scale) {
    PaperDrawing drawing = AtScale(scale, project.planScale);
    AddPlanModel(project, floorIndex, drawing);
    AddDrawnElements(
        project,
        [&](const ProjectElement& element) {
            return element.database == Host::Guid{} &&
                   element.element.header.floorIndex == floorIndex;
        },
        drawing);
    AddSectionMarks(project, drawing);
    return FinishSheet(std::move(drawing), FloorTitle(project, floorIndex));
}

Drawing::DisplayList DrawWorksheet(const Project& project, const ProjectDatabase& worksheet,
                                   double scale) {
    PaperDrawing drawing = AtScale(scale, worksheet.scale);
    AddDrawnIn(project, worksheet, drawing);
    return FinishSheet(std::move(drawing), WindowTitle(worksheet));
}

Drawing::DisplayList DrawSection(const Project& project, const ProjectDatabase& section,
                                 double scale) {
    PaperDrawing drawing = AtScale(scale, section.scale);
    const SectionLine& line = section.section;
    if (!(line.begin == line.end)) {
        AddSectionModel(project, line, drawing);
    }
    AddDrawnIn(project, section, drawing);
    return FinishSheet(std::move(drawing), WindowTitle(section));
}

Drawing::DisplayList DrawAxonometry(const Project& project, const AxonometryView& view,
                                    double scale) {
    PaperDrawing drawing = AtScale(scale, project.planScale);
    auto shown = CollectShownElements(project, FrameFromAround(view.azimuth, view.elevation));
    std::string title = "Axonometria";
    if (view.floorIndex) {
        KeepFloor(project, *view.floorIndex, shown);
        title += " – " + FloorTitle(project, *view.floorIndex);
    }
    PaintModel(project, shown, PaintStyle{}, drawing);
    return FinishSheet(std::move(drawing), title);
}

} // namespace Merivane::Workbench
