#include "ContractHost.hpp"

#include "Host/Stories.hpp"
#include "Workbench/Session.hpp"

// The embedded host's side of the contract tests, the only file here that knows it.
namespace Merivane::Host {

namespace {

using Workbench::CurrentSession;
using Workbench::Project;
using Workbench::ProjectElement;
using Workbench::ProjectPart;

Guid NumberedGuid(std::uint8_t number) {
    Guid guid;
    guid.bytes[0] = 0xC0;
    guid.bytes[15] = number;
    return guid;
}

LibraryParameter MakeParameter(std::string name, ParameterType type) {
    LibraryParameter parameter;
    parameter.name = std::move(name);
    parameter.type = type;
    return parameter;
}

ProjectPart MakePart(std::string name, bool isLamp, std::uint8_t number) {
    ProjectPart part;
    part.name = std::move(name);
    part.mainGuid = NumberedGuid(number);
    part.isLamp = isLamp;
    part.sizeA = 1.2;
    part.sizeB = 0.3;
    part.parameters = {MakeParameter("mvFlux", ParameterType::Real),
                       MakeParameter("mvName", ParameterType::String),
                       MakeParameter("mvOn", ParameterType::Boolean),
                       MakeParameter("mvTable", ParameterType::Real)};
    part.parameters[0].number = 3000.0;
    part.parameters[1].text = "prova";
    part.parameters[2].number = 1.0;
    part.parameters[3].isArray = true;
    part.parameters[3].dim1 = 2;
    part.parameters[3].dim2 = 3;
    part.parameters[3].numbers = {1.0, 2.0, 3.0, 4.0, 5.0, 6.0};
    return part;
}

ProjectElement MakeElement(ElementType type, std::uint8_t number, std::int32_t layer) {
    ProjectElement element;
    element.element.header.type = type;
    element.element.header.guid = NumberedGuid(number);
    element.element.header.layer = {layer};
    return element;
}

ProjectElement MakeOpening(ElementType type, std::uint8_t number, double along) {
    ProjectElement element = MakeElement(type, number, 2);
    Workbench::OpeningGeometry opening;
    opening.wall = NumberedGuid(10);
    opening.along = along;
    element.geometry = opening;
    return element;
}

ProjectElement MakeColumn() {
    ProjectElement column = MakeElement(ElementType::Column, 13, 2);
    Workbench::PrismGeometry segment;
    segment.polygon = {{{{5.0, 5.0}, {5.3, 5.0}, {5.3, 5.3}, {5.0, 5.3}}, {}}};
    segment.height = 1.5;
    segment.surface = {3};
    for (const std::uint8_t number : {std::uint8_t{14}, std::uint8_t{15}}) {
        column.parts.push_back({NumberedGuid(number), ElementType::ColumnSegment, segment});
        segment.bottom += segment.height;
    }
    return column;
}

ProjectElement ProjectLine(std::uint8_t number, std::int32_t layer) {
    ProjectElement line = MakeElement(ElementType::Line, number, layer);
    line.element.data = LineData{{0.0, 0.0}, {1.0, 0.0}, 1, {}};
    return line;
}

void AddElements(Project& project) {
    ProjectElement wall = MakeElement(ElementType::Wall, 10, 2);
    Workbench::WallGeometry geometry;
    geometry.end = {6.0, 0.0};
    wall.geometry = geometry;
    project.elements = {wall,
                        MakeOpening(ElementType::Window, 11, 2.0),
                        MakeOpening(ElementType::Door, 12, 4.0),
                        MakeColumn(),
                        ProjectLine(16, 2),
                        ProjectLine(17, 3),
                        ProjectLine(18, 4),
                        MakeElement(ElementType::CutPlane, 20, 2)};
    project.elements[4].element.header.locked = true;
    ProjectElement shown = MakeElement(ElementType::SectionElement, 21, 2);
    shown.element.data = SectionElementData{NumberedGuid(10)};
    shown.database = NumberedGuid(31);
    project.elements.push_back(shown);
}

void AddDatabases(Project& project) {
    Workbench::ProjectDatabase worksheet;
    worksheet.window = {WindowType::Worksheet, NumberedGuid(30), WorksheetName, "P-01", {}, 0};
    worksheet.scale = 20.0;
    Workbench::ProjectDatabase section;
    section.window = {WindowType::Section, NumberedGuid(31), "Corte", "A", NumberedGuid(20), 0};
    section.section = {NumberedGuid(20), {0.0, -1.0}, {6.0, -1.0}, 0.0};
    project.databases = {worksheet, section};
}

void AddViews(Project& project) {
    Workbench::ProjectView folder;
    folder.guid = NumberedGuid(40);
    folder.name = ViewFolderName;
    folder.isFolder = true;
    Workbench::ProjectView plan;
    plan.guid = NumberedGuid(41);
    plan.name = PlanViewName;
    plan.folder = folder.guid;
    plan.floorIndex = 1;
    plan.layerCombination = CombinationName;
    plan.scale = 50.0;
    Workbench::ProjectView worksheet;
    worksheet.guid = NumberedGuid(42);
    worksheet.name = WorksheetName;
    worksheet.window = project.databases[0].window;
    project.views = {folder, plan, worksheet};
}

Project MakeContractProject() {
    Project project = Workbench::MakeEmptyProject();
    project.stories = {{-1, -3.0, 3.0, "Subsolo"}, {0, 0.0, 3.0, "Térreo"}, {1, 3.0, 3.0, "1º"}};
    project.layers[2] = {FreeLayer, false, false};
    project.layers[3] = {HiddenLayerName, true, false};
    project.layers[4] = {LockedLayerName, false, true};
    project.layers[6] = {"Prova - depois da lacuna", false, false};
    LayerCombination combination{CombinationName, {}};
    for (const auto& layer : project.layers) {
        combination.states.push_back({{layer.first}, false, false});
    }
    project.combinations[1] = combination;
    project.parts = {MakePart(LampPart, true, 1), MakePart(ObjectPart, false, 2),
                     MakePart(OtherLampPart, true, 3)};
    project.parts[2].parameters[1] = MakeParameter("mvName", ParameterType::Real);
    AddElements(project);
    AddDatabases(project);
    AddViews(project);
    return project;
}

} // namespace

void OpenContractProject() {
    Workbench::OpenSession({});
    Workbench::OpenProject(MakeContractProject());
}

void CloseContractProject() {
    Workbench::CloseProject();
}

bool UndoByUser() {
    return Workbench::Undo();
}

bool RedoByUser() {
    return Workbench::Redo();
}

void CancelByUser() {
    if (!CurrentSession().processWindows.empty()) {
        CurrentSession().processWindows.back().cancelled = true;
    }
}

void ChangeLibrariesByUser() {
    Workbench::RenewLibraryIndices();
}

Window ContractSection() {
    return CurrentSession().project.databases[1].window;
}

} // namespace Merivane::Host
