#include "AddOn/CalculationSession.hpp"

#include <algorithm>

#include "AddOn/AddOnState.hpp"
#include "Archicad/ModelSample.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Tests {

Workbench::Project CalculationSample() {
    Workbench::Project project = SampleProject();
    AddZone(project, RoomZone, "Sala", {PlanRectangle(0.0, 0.0, 2.0, 2.0)});
    AddZone(project, UpperZone, "Sala de cima", {PlanRectangle(0.0, 0.0, 2.0, 2.0)})
        .element.header.floorIndex = 1;
    AddSlab(project, 3, {PlanRectangle(-0.2, -0.2, 2.4, 2.4)}, 0.0, 0.2);
    AddSlab(project, 4, {PlanRectangle(-0.2, -0.2, 2.4, 2.4)}, 3.2, 0.2);
    AddWall(project, 10, {0.0, 0.0}, {2.0, 0.0});
    AddWall(project, 11, {2.0, 0.0}, {2.0, 2.0});
    AddWall(project, 12, {2.0, 2.0}, {0.0, 2.0});
    AddWall(project, 13, {0.0, 2.0}, {0.0, 0.0});
    const std::int32_t part = AddLampPart(project, "Plafon");
    AddLamp(project, FirstLamp, part, {0.5, 1.0});
    AddLamp(project, FirstLamp + 1, part, {1.5, 1.0});
    return project;
}

CalculationSession::CalculationSession() {
    OpenSample();
}

void CalculationSession::OpenSample(Workbench::Project project) {
    Open(false);
    CurrentAddOnState().calculation = {};
    Workbench::CurrentSession().options.ownLocation = Text::WidePath(BuildFolder() / "Vantoro.apx");
    Workbench::OpenProject(std::move(project));
    Simulation::EngineSettings engine = Simulation::ProfileSettings(0);
    engine.bounces = 1;
    engine.divisions = 16;
    engine.maxProcesses = 1;
    Archicad::SaveEngineSettings(engine);
}

std::string CalculationSession::DialogAnswer(const std::string& moreItems, int button) {
    return R"({"dialogo": 32620, "itens": [{"item": 19, "marcado": false},
        {"item": 20, "marcado": false})" +
           (moreItems.empty() ? "" : ", " + moreItems) + R"(], "botao": )" +
           std::to_string(button) + "}";
}

ElementCounts CountElements(const Workbench::Project& project) {
    ElementCounts counts;
    for (const Workbench::ProjectElement& element : project.elements) {
        const Host::ElementHeader& header = element.element.header;
        const auto layer =
            std::find_if(project.layers.begin(), project.layers.end(),
                         [&](const auto& row) { return row.first == header.layer.value; });
        ++counts[{layer == project.layers.end() ? "" : layer->second.name,
                  static_cast<std::int32_t>(header.type)}];
    }
    return counts;
}

::testing::AssertionResult HoldsLine(const std::vector<std::string>& lines,
                                     const std::string& line) {
    if (std::find(lines.begin(), lines.end(), line) != lines.end()) {
        return ::testing::AssertionSuccess();
    }
    ::testing::AssertionResult failure = ::testing::AssertionFailure() << line << " is not among";
    for (const std::string& told : lines) {
        failure << "\n" << told;
    }
    return failure;
}

} // namespace Merivane::Tests
