#include "exemplos/OfficeProject.hpp"

#include <string>
#include <utility>

#include "Host/GuidText.hpp"
#include "Simulation/Verification/ZoneTasksText.hpp"
#include "exemplos/OfficePlan.hpp"

namespace Merivane::Examples {

namespace {

using Host::ElementType;

constexpr std::uint64_t GuidSeed = 2025;

void AddAttributes(ProjectBuilder& builder) {
    Workbench::Project& project = builder.project;
    for (const char* name :
         {"Paredes", "Lajes", "Forros", "Estrutura", "Esquadrias", "Escadas e guarda-corpos",
          "Cobertura", "Terreno", "Mobiliário", "Luminárias", "Zonas", "Eixos", "Merivane - Isolux",
          "Merivane - Cor falsa", "Vantoro - Legenda",
          "Vantoro - Cor falsa 3D plano de trabalho"}) {
        LayerOf(builder, name);
    }
    project.layers[LayerOf(builder, "Estudo anterior").value].hidden = true;
    project.layers[LayerOf(builder, "Levantamento").value].locked = true;
    project.surfaces[8] = {"Forro mineral", {0.91, 0.91, 0.88}, 0.86, 0.0};
    project.surfaces[9] = {"Carpete", {0.42, 0.44, 0.48}, 0.22, 0.0};
    project.surfaces[10] = {"Telha", {0.66, 0.40, 0.30}, 0.30, 0.0};
    project.surfaces[11] = {"Grama", {0.45, 0.58, 0.34}, 0.20, 0.0};
    project.surfaces[12] = {"Pintura areia", {0.87, 0.82, 0.73}, 0.65, 0.0};
    project.surfaces[13] = {"Vantoro 500 a 750 lx", {0.30, 0.78, 0.30}, 1.0, 0.0};
    project.lineTypes[2] = {"Vantoro - Tracejada", {3.0, 1.5}};
    project.lineTypes[3] = {"Vantoro - Traco e ponto", {6.0, 1.5, 0.5, 1.5}};
    project.fills[3] = {"Hachura 45", Host::FillKind::Vector};
}

bool IsResultLayer(const std::string& name) {
    return name.starts_with("Vantoro - ") || name.starts_with("Merivane - ");
}

void AddCombination(Workbench::Project& project, std::int32_t index, const std::string& name,
                    bool showResults) {
    Host::LayerCombination& combination = project.combinations[index];
    combination.name = name;
    for (const auto& [number, layer] : project.layers) {
        const bool hidden = layer.hidden || (!showResults && IsResultLayer(layer.name));
        combination.states.push_back({{number}, hidden, layer.locked});
    }
}

void AddView(ProjectBuilder& builder) {
    Workbench::ProjectView view;
    view.guid = Workbench::NextGuid(builder.guids);
    view.name = "Planta luminotécnica do térreo";
    view.layerCombination = "Luminotécnico";
    view.scale = 50.0;
    builder.project.views.push_back(std::move(view));
}

Host::Guid AddZone(ProjectBuilder& builder, std::int16_t floorIndex, Host::ZoneData zone,
                   Host::Polygon polygon) {
    zone.height = RoomHeight;
    Host::ElementMemo memo;
    memo.polygon = std::move(polygon);
    return AddData(builder, ElementType::Zone, {LayerOf(builder, "Zonas"), floorIndex}, zone,
                   std::move(memo));
}

} // namespace

void AddOfficeZones(ProjectBuilder& builder) {
    const Host::Guid office = AddZone(
        builder, 0, {"Escritório", "01", 0.0, 0.0, {5.8, 4.8}},
        {Outline({{0.1, 0.1}, {11.95, 0.1}, {11.95, 5.99}, {6.95, 5.99}, {6.95, 9.9}, {0.1, 9.9}}),
         Rectangle(ShaftLow, ShaftHigh)});
    const Host::Guid meeting = AddZone(builder, 0, {"Sala de reuniões", "02", 0.0, 0.0, {9.5, 6.5}},
                                       {Rectangle({7.05, 6.01}, {11.95, 9.9})});
    AddZone(builder, 0, {"Circulação", "03", 0.0, 0.0, {12.54, 4.9}},
            {Rectangle({12.05, 0.1}, {13.03, 9.9})});
    AddZone(builder, 1, {"Escritório da diretoria", "11", 0.0, 0.0, {6.5, 1.6}},
            {Rectangle({0.1, 0.1}, {12.98, 4.95})});
    AddZone(builder, 1, {"Sala multiuso", "12", 0.0, 0.0, {8.8, 6.2}},
            {Rectangle({4.7, 5.05}, {12.98, 9.9})});

    Simulation::ZoneRequirementMap tasks;
    tasks[Host::GuidText(office)] = {"s22.2", 500.0, 0.6, Simulation::ScreensAutomatic};
    tasks[Host::GuidText(meeting)] = {"s22.5", 300.0, 0.6, Simulation::ScreensNone};
    constexpr std::uint16_t WindowsSign = 0x5757;
    builder.project.data[std::string(Simulation::ZoneTasksName)] = {
        1, WindowsSign,
        Simulation::SerializeZoneTasks(tasks, Simulation::ReferenceStandard::Brazilian)};
}

Workbench::Project BuildOfficeProject(const Workbench::Project& authored) {
    ProjectBuilder builder{Workbench::MakeEmptyProject(), Workbench::MakeGuidSource(GuidSeed)};
    Workbench::Project& project = builder.project;
    project.name = "Escritório Ateliê Exemplo";
    project.stories = {{0, 0.0, FloorHeight, "Térreo"}, {1, FloorHeight, FloorHeight, "Superior"}};
    AddAttributes(builder);
    AddOfficeShell(builder);
    AddOfficeAssemblies(builder);
    AddOfficeFurniture(builder);
    project.parts.insert(project.parts.end(), authored.parts.begin(), authored.parts.end());
    AddOfficeLuminaires(builder);
    AddOfficeZones(builder);
    AddOfficeDrawings(builder);
    AddCombination(project, 1, "Arquitetura", false);
    AddCombination(project, 2, "Luminotécnico", true);
    AddView(builder);
    project.libraries = authored.libraries;
    return project;
}

} // namespace Merivane::Examples
