#include "ResultSample.hpp"

#include <cmath>
#include <limits>
#include <sstream>

#include "Simulation/ColorBands.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/Isolines.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/TaskOutline.hpp"
#include "Simulation/Verification/TaskSearch.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Tests {

namespace {

using Simulation::IsoCurve;
using Simulation::Point2D;
using Simulation::ZoneDrawing;

std::vector<Point2D> Ring(double x, double y, double width, double depth) {
    return {{x, y}, {x + width, y}, {x + width, y + depth}, {x, y + depth}};
}

/// A rectangle with the middles of its sides, closed.
IsoCurve ClosedCurve(double level, double x, double y, double width, double depth) {
    return {level,
            {{x, y},
             {x + width / 2, y},
             {x + width, y},
             {x + width, y + depth / 2},
             {x + width, y + depth},
             {x + width / 2, y + depth},
             {x, y + depth},
             {x, y}},
            true};
}

/// Three luminaires' light in a room, brightest at (x, y) = (0.3, 0.5) of its extent.
double SmoothValue(const Simulation::Bounds2D& bounds, Point2D place) {
    const double width = bounds.maximum.x - bounds.minimum.x;
    const double depth = bounds.maximum.y - bounds.minimum.y;
    double value = 120.0;
    for (const double along : {0.2, 0.5, 0.8}) {
        const double x = (place.x - bounds.minimum.x) - along * width;
        const double y = (place.y - bounds.minimum.y) - 0.5 * depth;
        value += (600.0 - 250.0 * along) * std::exp(-(x * x + y * y) / (0.05 * width * depth));
    }
    return value;
}

void AddVerification(ZoneDrawing& drawing, const std::string& taskId) {
    drawing.analysis.task = Simulation::FindTask(taskId);
    drawing.zone.task.requirement = Simulation::RequirementFromTask(taskId);
    Simulation::VerificationInput& input = drawing.analysis.verification.input;
    input.requirement = drawing.zone.task.requirement;
    input.statistics = drawing.analysis.statistics;
    input.hasUgr = true;
    input.ugr = 17.4;
    input.ugrLimit = drawing.analysis.task->ugrLimit;
    input.luminaireCount = 3;
    input.ceilingReflectance = 0.7;
    input.wallReflectance = 0.5;
    input.maintenanceFactor = 0.8;
    drawing.analysis.verification.rows = Simulation::VerifyZone(input);
    drawing.analysis.verification.passes =
        Simulation::VerificationPasses(drawing.analysis.verification.rows);
}

} // namespace

Simulation::Polygon2D PlanArea(double x, double y, double width, double depth) {
    return {Ring(x, y, width, depth), {}};
}

ZoneDrawing SmallDrawing() {
    ZoneDrawing drawing;
    drawing.zone.name = "Sala";
    drawing.zone.outline = PlanArea(0, 0, 4, 3);
    drawing.grid.originX = drawing.grid.originY = 0.5;
    drawing.grid.stepX = drawing.grid.stepY = 0.5;
    drawing.grid.columns = 7;
    drawing.grid.rows = 4;
    for (int j = 0; j < 4; ++j) {
        for (int i = 0; i < 7; ++i) {
            drawing.field.push_back(100.0 * i + j);
        }
    }
    drawing.field.back() = std::numeric_limits<double>::quiet_NaN();
    const std::vector<Point2D> hole = {{2, 1}, {2, 2}, {3, 2}, {3, 1}};
    drawing.bands = {{1, 100.0, 300.0, {{Ring(0.5, 0.5, 3, 2), {hole}}}}};
    drawing.curves = {ClosedCurve(100.0, 0.5, 0.5, 3, 2), ClosedCurve(300.0, 1, 1, 2, 1)};
    drawing.taskOutline = {ClosedCurve(0.0, 0.5, 0.5, 3, 2)};
    drawing.analysis.statistics = {28, 300.0, 100.0, 600.0, 1.0 / 3.0};
    return drawing;
}

ZoneDrawing SmoothDrawing(const std::string& name, const Simulation::Polygon2D& outline,
                          const Simulation::LevelList& levels, const std::string& taskId) {
    ZoneDrawing drawing;
    drawing.zone.name = name;
    drawing.zone.outline = outline;
    drawing.zone.height = 3.0;
    drawing.engine = "Radiance";
    drawing.grid = Simulation::BuildCalculationGrid(outline, 0.0, drawing.zone.grid);
    std::vector<double> values;
    for (const Point2D& place : Simulation::ActivePoints(drawing.grid)) {
        values.push_back(SmoothValue(Simulation::OuterBounds(outline), place));
    }
    const Simulation::GridField field = Simulation::MakeGridField(drawing.grid, values);
    drawing.field = field.values;
    drawing.curves = Simulation::ExtractIsolines(field, levels);
    drawing.bands = Simulation::BuildBands(field, levels);
    drawing.taskOutline = Simulation::BuildTaskOutline(outline, drawing.zone.grid.borderBand);
    drawing.analysis.statistics = Simulation::TaskStatistics(drawing.grid, values);
    if (!taskId.empty()) {
        AddVerification(drawing, taskId);
    }
    return drawing;
}

ResultTest::ResultTest() {
    Workbench::Project project = Open();
    Workbench::SessionOptions sessionOptions;
    sessionOptions.temporaryFolder = Text::WidePath(folder.Path());
    Workbench::OpenSession(sessionOptions);
    Workbench::OpenProject(std::move(project));
    options.levels = {100.0, 300.0};
    Prepare();
}

void ResultTest::Prepare() {
    ASSERT_EQ(Archicad::PrepareResultStructure(options, structure), Host::NoError);
}

void ResultTest::Draw(const std::function<void()>& draw) {
    const Host::ErrorCode code = Host::CallUndoable("Vantoro: resultados do calculo", [&draw] {
        draw();
        return Host::NoError;
    });
    EXPECT_EQ(code, Host::NoError);
}

std::vector<Workbench::ProjectElement> ResultTest::Elements(Host::ElementType type) {
    std::vector<Workbench::ProjectElement> found;
    for (const Workbench::ProjectElement& element : Open().elements) {
        if (element.element.header.type == type) {
            found.push_back(element);
        }
    }
    return found;
}

std::vector<Workbench::ProjectElement> ResultTest::ElementsOn(Host::AttributeIndex layer) {
    std::vector<Workbench::ProjectElement> found;
    for (const Workbench::ProjectElement& element : Open().elements) {
        if (element.element.header.layer == layer) {
            found.push_back(element);
        }
    }
    return found;
}

Lines ResultTest::TextsOn(Host::AttributeIndex layer) {
    Lines texts;
    for (const Workbench::ProjectElement& element : ElementsOn(layer)) {
        if (element.element.header.type == Host::ElementType::Text) {
            texts.push_back(element.memo.paragraphs.front().text);
        }
    }
    return texts;
}

Lines ResultTest::ProgressLines() const {
    constexpr std::size_t timeLength = 10; // "HH:MM:SS  "
    Lines lines;
    std::istringstream stream(ReadBytes(folder.Path() / "Vantoro" / "progresso.txt"));
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line.substr(timeLength));
    }
    return lines;
}

} // namespace Merivane::Tests
