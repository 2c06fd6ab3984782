#include "ModelSample.hpp"

#include <algorithm>
#include <utility>

#include "Archicad/ContractConversion.hpp"
#include "Photometry/ContractBuilding.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Tests {

namespace {

using Host::ElementType;
using Host::LibraryParameter;

Photometry::IesFile SampleFile() {
    Photometry::IesFile file;
    file.keywords = {
        {"MANUFAC", "Fabrica"}, {"LUMCAT", "COD-1"}, {"LUMINAIRE", "Plafon"}, {"LAMP", "LED 830"}};
    file.inputWatts = 12.0;
    file.verticalAngles = {0.0, 45.0, 90.0};
    file.horizontalAngles = {0.0};
    file.candela = {{300.0, 200.0, 0.0}};
    return file;
}

LibraryParameter& FindOrAdd(std::vector<LibraryParameter>& parameters, const std::string& name) {
    for (LibraryParameter& parameter : parameters) {
        if (parameter.name == name) {
            return parameter;
        }
    }
    parameters.push_back({});
    parameters.back().name = name;
    return parameters.back();
}

} // namespace

Host::Guid NumberedGuid(std::uint32_t number) {
    Host::Guid guid;
    for (std::size_t i = 0; i < 4; ++i) {
        guid.bytes[i] = static_cast<std::uint8_t>(number >> (24 - 8 * i));
    }
    return guid;
}

Host::Contour PlanRectangle(double x, double y, double width, double depth) {
    return {{{x, y}, {x + width, y}, {x + width, y + depth}, {x, y + depth}}, {}};
}

Workbench::Project SampleProject() {
    Workbench::Project project = Workbench::MakeEmptyProject();
    project.stories = {{0, 0.0, 3.0, "Terreo"}, {1, 3.0, 3.0, "Superior"}};
    project.layers = {{1, {"Camada principal", false, false}},
                      {2, {"Oculta", true, false}},
                      {3, {"Travada", false, true}},
                      {4, {"Vantoro - Resultado", false, false}},
                      {5, {"Merivane - Antigo", false, false}},
                      {6, {"Ambiente Vantoro - x", false, false}}};
    return project;
}

Workbench::ProjectElement& AddElement(Workbench::Project& project, std::uint32_t number,
                                      ElementType type) {
    Workbench::ProjectElement& added = project.elements.emplace_back();
    added.element.header.type = type;
    added.element.header.guid = NumberedGuid(number);
    added.element.header.layer = {1};
    return added;
}

Workbench::ProjectElement& AddZone(Workbench::Project& project, std::uint32_t number,
                                   const std::string& name, const Host::Polygon& polygon) {
    Workbench::ProjectElement& added = AddElement(project, number, ElementType::Zone);
    Host::ZoneData zone;
    zone.name = name;
    zone.height = 3.0;
    added.element.data = zone;
    added.memo.polygon = polygon;
    return added;
}

Workbench::ProjectElement& AddSlab(Workbench::Project& project, std::uint32_t number,
                                   const Host::Polygon& polygon, double top, double thickness) {
    Workbench::ProjectElement& added = AddElement(project, number, ElementType::Slab);
    added.geometry = Workbench::SlabGeometry{polygon, top, thickness, {1}, {2}, {3}};
    return added;
}

Workbench::ProjectElement& AddWall(Workbench::Project& project, std::uint32_t number,
                                   Host::Coordinate begin, Host::Coordinate end) {
    Workbench::ProjectElement& added = AddElement(project, number, ElementType::Wall);
    added.geometry = Workbench::WallGeometry{begin, end, 0.0, 0.2, 0.0, 3.0, {1}, {2}, {3}};
    return added;
}

Workbench::GivenBody BoxBody(const std::string& scriptSurface) {
    Workbench::GivenBody body;
    body.vertices = {{-0.1, -0.1, 0.0}, {0.1, -0.1, 0.0}, {0.1, 0.1, 0.0}, {-0.1, 0.1, 0.0},
                     {-0.1, -0.1, 0.1}, {0.1, -0.1, 0.1}, {0.1, 0.1, 0.1}, {-0.1, 0.1, 0.1}};
    for (const auto& contour : std::vector<std::vector<std::int32_t>>{
             {3, 2, 1, 0}, {4, 5, 6, 7}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}}) {
        body.faces.push_back({{contour}, {}, scriptSurface});
    }
    return body;
}

std::int32_t AddLampPart(Workbench::Project& project, const std::string& name) {
    Workbench::ProjectPart part;
    part.name = name;
    part.isLamp = true;
    part.mainGuid = NumberedGuid(0xFF00U + static_cast<std::uint32_t>(project.parts.size()));
    Photometry::LuminaireSettings settings;
    settings.iesFileName = "plafon.ies";
    for (const Photometry::ContractParameter& parameter :
         Photometry::BuildContract(SampleFile(), settings)) {
        part.parameters.emplace_back();
        Archicad::ToAddPar(parameter, part.parameters.back());
    }
    part.surfaces = {{"Difusor", {1.0, 1.0, 1.0}, 0.9, 0.4}};
    part.bodies = {BoxBody("Difusor")};
    project.parts.push_back(std::move(part));
    return static_cast<std::int32_t>(project.parts.size());
}

Workbench::ProjectElement& AddLamp(Workbench::Project& project, std::uint32_t number,
                                   std::int32_t part, Host::Coordinate position) {
    Workbench::ProjectElement& added = AddElement(project, number, ElementType::Lamp);
    Host::ObjectData object;
    object.libraryIndex = part;
    object.position = position;
    object.level = 2.5;
    added.element.data = object;
    return added;
}

void SetNumber(std::vector<LibraryParameter>& parameters, const std::string& name, double number) {
    FindOrAdd(parameters, name).number = number;
}

void SetText(std::vector<LibraryParameter>& parameters, const std::string& name,
             const std::string& text) {
    LibraryParameter& parameter = FindOrAdd(parameters, name);
    parameter.type = Host::ParameterType::String;
    parameter.text = text;
}

void DropParameter(std::vector<LibraryParameter>& parameters, const std::string& name) {
    parameters.erase(
        std::remove_if(parameters.begin(), parameters.end(),
                       [&](const LibraryParameter& parameter) { return parameter.name == name; }),
        parameters.end());
}

void OpenSample(Workbench::Project project) {
    Workbench::OpenSession({});
    Workbench::OpenProject(std::move(project));
}

} // namespace Merivane::Tests
