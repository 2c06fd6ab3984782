#include "RandomProject.hpp"

#include <cmath>
#include <iterator>
#include <random>
#include <string>
#include <utility>

#include "Host/Model3D.hpp"

namespace Merivane::Tests {

namespace {

using namespace Workbench;
using Host::ElementType;
using Host::Guid;

/// Fills a project from chance. Things are made in the order in which they refer to each other.
class Maker {
public:
    explicit Maker(std::uint32_t seed) : random(seed) {}

    Project Make();

private:
    std::uint32_t Below(std::uint32_t limit) {
        return static_cast<std::uint32_t>(random() % limit);
    }
    bool Coin() { return Below(2) == 0; }

    /// Numbers of all kinds: round ones, long ones, small ones.
    double Number() {
        const double number = std::uniform_real_distribution<double>(-50.0, 50.0)(random);
        return Coin() ? number : std::round(number);
    }
    double Size() { return std::abs(Number()) + 0.125; }
    double Share() { return std::uniform_real_distribution<double>(0.0, 1.0)(random); }

    std::string Words() {
        const char* const words[] = {"Sala",      "ção", "\"aspas\"", "a\\b", "50 %",
                                     "tab\t fim", "€",   "😀",         "",     "linha\nnova"};
        return words[Below(10)];
    }
    std::string Name(const std::string& kind) {
        return kind + " " + std::to_string(++names) + " " + Words();
    }
    Guid NewGuid() {
        Guid guid;
        for (std::uint8_t& byte : guid.bytes) {
            byte = static_cast<std::uint8_t>(random());
        }
        return guid;
    }
    Host::Coordinate Point() { return {Number(), Number()}; }
    Host::Coordinate3D Point3D() { return {Number(), Number(), Number()}; }
    Host::Colour Colour() { return {Share(), Share(), Share()}; }
    std::int32_t Pen() { return static_cast<std::int32_t>(Below(255)) + 1; }

    template <typename Table> Host::AttributeIndex Any(const Table& table) {
        auto entry = table.begin();
        std::advance(entry, Below(static_cast<std::uint32_t>(table.size())));
        return {entry->first};
    }
    template <typename Table> Host::AttributeIndex AnyOrNone(const Table& table) {
        return Coin() ? Any(table) : Host::AttributeIndex();
    }
    Host::AttributeIndex Surface() { return AnyOrNone(project.surfaces); }

    Host::Polygon Outline();
    GivenBody Box(bool ofPart);
    Host::MorphBody Tetrahedron();
    Host::LibraryParameter Parameter(int kind);
    void ChangeValue(Host::LibraryParameter& parameter);

    void MakeAttributes();
    void MakeParts();
    void MakeDatabases();
    void MakeViews();
    void MakeRest();

    ProjectElement& Add(ElementType type);
    void AddBuilding();
    void AddCurves();
    void AddModel();
    void AddPlaced(bool isLamp);
    void AddHierarchy(ElementType whole, const std::vector<ElementType>& types);

    std::mt19937 random;
    int names = 0;
    Project project;
};

// A star around a centre never crosses itself; its hole lies well inside.
Host::Polygon Maker::Outline() {
    const auto star = [this](Host::Coordinate center, double least, double most) {
        Host::Contour contour;
        const std::uint32_t count = 3 + Below(5);
        for (std::uint32_t i = 0; i < count; ++i) {
            const double angle = 6.283185307179586 * i / count;
            const double radius = least + (most - least) * Share();
            contour.vertices.push_back(
                {center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
        }
        if (Coin()) {
            contour.arcs = {{Below(count), 0.1 + Share()}};
        }
        return contour;
    };
    const Host::Coordinate center = Point();
    Host::Polygon polygon = {star(center, 4.0, 6.0)};
    if (Coin()) {
        polygon.push_back(star(center, 0.5, 1.0));
    }
    return polygon;
}

GivenBody Maker::Box(bool ofPart) {
    GivenBody body;
    for (int i = 0; i < 5; ++i) {
        body.vertices.push_back(Point3D());
    }
    body.faces = {{{{0, 1, 2}}, Surface(), ""},
                  {{{0, 1, 2, 3}, {4, 3, 2}}, Surface(), ""},
                  {{{4, 3, 2, 1}}, {}, ofPart ? "Difusor" : ""}};
    return body;
}

Host::MorphBody Maker::Tetrahedron() {
    Host::MorphBody body;
    body.vertices = {{0, 0, 0}, {Size(), 0, 0}, {0, Size(), 0}, {0, 0, Size()}};
    body.faces = {{{{0, 2, 1}}, Surface()},
                  {{{0, 1, 3}}, Surface()},
                  {{{1, 2, 3}}, Surface()},
                  {{{2, 0, 3}}, Surface()}};
    return body;
}

Host::LibraryParameter Maker::Parameter(int kind) {
    Host::LibraryParameter parameter;
    parameter.name = "mvParam" + std::to_string(++names);
    parameter.description = Words();
    parameter.flags = static_cast<std::int32_t>(Below(256));
    parameter.type = kind % 15 == 11 ? Host::ParameterType::String
                                     : static_cast<Host::ParameterType>(kind % 15 + 1);
    parameter.isArray = kind >= 15;
    if (parameter.isArray) {
        parameter.dim1 = static_cast<std::int32_t>(1 + Below(4));
        parameter.dim2 = static_cast<std::int32_t>(Below(4));
    }
    ChangeValue(parameter);
    return parameter;
}

void Maker::ChangeValue(Host::LibraryParameter& parameter) {
    const bool isText = parameter.type == Host::ParameterType::String;
    if (!parameter.isArray && isText) {
        parameter.text = Words() + std::to_string(++names);
        return;
    }
    if (!parameter.isArray) {
        parameter.number = Number() + 1000.0 * ++names;
        return;
    }
    parameter.numbers.clear();
    parameter.texts.clear();
    for (int i = 0; i < parameter.dim1 * std::max(parameter.dim2, 1); ++i) {
        if (isText) {
            parameter.texts.push_back(Words() + std::to_string(++names));
        } else {
            parameter.numbers.push_back(Number() + 1000.0 * ++names);
        }
    }
}

void Maker::MakeAttributes() {
    project.name = Words();
    const int first = -static_cast<int>(Below(3));
    for (int i = 0; i < 4; ++i) {
        project.stories.push_back({static_cast<std::int16_t>(first + i), 3.0 * i, Size(), Words()});
    }
    const auto number = [this](std::int32_t last) {
        return last + 1 + static_cast<std::int32_t>(Below(3));
    };
    project.layers[1].name = "Primeira";
    for (std::int32_t i = 1, n = 1; i < 5; ++i) {
        n = number(n);
        project.layers[n] = {Name("Camada"), Coin(), Coin()};
        project.surfaces[n] = {Name("Superfície"), Colour(), Share(), Coin() ? 0.0 : Share()};
        project.fills[n] = {Name("Preenchimento"), static_cast<Host::FillKind>(Below(4))};
        project.lineTypes[n] = {Name("Linha"), {}};
        if (Coin()) {
            project.lineTypes[n].dashes = {Size(), Size(), 0.0, Size()};
        }
        project.combinations[n].name = Name("Combinação");
        for (const auto& [layer, record] : project.layers) {
            project.combinations[n].states.push_back({{layer}, Coin(), Coin()});
        }
    }
}

void Maker::MakeParts() {
    for (int i = 0; i < 4; ++i) {
        ProjectPart part;
        part.name = Name("Peça");
        part.mainGuid = NewGuid();
        part.isLamp = i % 2 == 0;
        part.sizeA = Coin() ? 1.0 : Size();
        part.sizeB = Size();
        for (int kind = 0; kind < 30; ++kind) {
            part.parameters.push_back(Parameter(kind));
        }
        part.surfaces = {{"Difusor", Colour(), Share(), Share()}};
        part.bodies = {Box(true)};
        project.parts.push_back(part);
    }
}

ProjectElement& Maker::Add(ElementType type) {
    ProjectElement element;
    Host::ElementHeader& header = element.element.header;
    header.type = type;
    header.guid = NewGuid();
    header.floorIndex = project.stories[Below(4)].index;
    header.layer = Any(project.layers);
    header.stamp = Coin() ? 0 : ++project.lastStamp;
    header.group = Coin() ? NewGuid() : Guid();
    header.locked = Coin();
    project.elements.push_back(element);
    return project.elements.back();
}

void Maker::AddBuilding() {
    ProjectElement& wall = Add(ElementType::Wall);
    wall.geometry = WallGeometry{Point(),   Point(),   Coin() ? 0.0 : Share(),
                                 Size(),    Number(),  Size(),
                                 Surface(), Surface(), Surface()};
    const Guid host = wall.element.header.guid;
    Add(ElementType::Wall); // without a geometry
    for (const ElementType type : {ElementType::Window, ElementType::Door}) {
        Add(type).geometry = OpeningGeometry{host,   Size(), Size(),    Number(),  Size(),
                                             Size(), Size(), Surface(), Surface(), Coin()};
    }
    Add(ElementType::Slab).geometry =
        SlabGeometry{Outline(), Number(), Size(), Surface(), Surface(), Surface()};
    Add(ElementType::Roof).geometry = RoofGeometry{
        Outline(), Point(), Point(), Number(), Share(), Size(), Surface(), Surface(), Surface()};
    Add(ElementType::Mesh).geometry =
        MeshGeometry{{Point3D(), Point3D(), Point3D(), Point3D()}, -60.0, Surface(), Surface()};
    Add(ElementType::Shell).geometry = Box(false);
    Add(ElementType::Skylight).geometry = Box(false);
    AddHierarchy(ElementType::Column, {ElementType::ColumnSegment});
    AddHierarchy(ElementType::Beam, {ElementType::BeamSegment});
    AddHierarchy(ElementType::CurtainWall,
                 {ElementType::CurtainWallFrame, ElementType::CurtainWallPanel});
    AddHierarchy(ElementType::Stair,
                 {ElementType::Riser, ElementType::Tread, ElementType::StairStructure});
    AddHierarchy(ElementType::Railing, {ElementType::RailingPart});
    for (const ElementType type :
         {ElementType::Dimension, ElementType::Label, ElementType::Hotspot, ElementType::CutPlane,
          ElementType::Elevation, ElementType::InteriorElevation}) {
        Add(type);
    }
}

void Maker::AddHierarchy(ElementType whole, const std::vector<ElementType>& types) {
    ProjectElement& element = Add(whole);
    for (const ElementType type : types) {
        element.parts.push_back({NewGuid(), type, Box(false)});
        element.parts.push_back(
            {NewGuid(), type, PrismGeometry{Outline(), Number(), Size(), Surface()}});
        element.parts.push_back(
            {NewGuid(), type, BarGeometry{Point3D(), Point3D(), Size(), Size(), Surface()}});
        element.parts.push_back({NewGuid(), type, {}});
    }
}

void Maker::AddCurves() {
    const auto lineType = [this] { return AnyOrNone(project.lineTypes); };
    Add(ElementType::Line).element.data = Host::LineData{Point(), Point(), Pen(), lineType()};
    ProjectElement& line = Add(ElementType::PolyLine);
    line.element.data = Host::PolyLineData{Coin(), Pen(), lineType()};
    line.memo.polygon = {{{Point(), Point(), Point()}, {{1, -0.5}}}};
    Add(ElementType::Arc).element.data =
        Host::ArcData{Point(), Size(), Share(), 1.0 + Share(), Coin(), Pen(), lineType()};
    Add(ElementType::Circle).element.data =
        Host::ArcData{Point(), Size(), 0.0, 0.0, true, Pen(), lineType()};
    ProjectElement& spline = Add(ElementType::Spline);
    spline.element.data = Host::SplineData{Coin(), Pen(), lineType()};
    for (int i = 0; i < 4; ++i) {
        spline.memo.splinePoints.push_back(Point());
        spline.memo.splineDirections.push_back({Size(), Size(), Number()});
    }
    for (const bool coloured : {true, false}) {
        ProjectElement& hatch = Add(ElementType::Hatch);
        hatch.element.data =
            Host::HatchData{Any(project.fills), coloured ? Colour() : Host::Colour(), coloured,
                            static_cast<std::int32_t>(Below(256)), Pen()};
        hatch.memo.polygon = Outline();
    }
    ProjectElement& text = Add(ElementType::Text);
    text.element.data = Host::TextData{Point(),
                                       Number(),
                                       static_cast<Host::TextAnchor>(Below(9)),
                                       Size(),
                                       Pen(),
                                       Coin(),
                                       Coin() ? 0.0 : Size()};
    text.memo.paragraphs = {
        {"Sala ção 😀", {{5, Pen(), Size(), Coin()}, {5, Pen(), Size(), Coin()}}, {}},
        {"", {}, {10.0, 20.5}},
        {"a\tb", {{3, 1, 2.0, false}}, {Size()}}};
    Add(ElementType::SectionElement).element.data = Host::SectionElementData{NewGuid()};
}

void Maker::AddModel() {
    ProjectElement& zone = Add(ElementType::Zone);
    zone.element.data = Host::ZoneData{Words(), Words(), Number(), Size(), Point()};
    zone.memo.polygon = Outline();
    ProjectElement& morph = Add(ElementType::Morph);
    morph.element.data = Host::MorphData{Any(project.surfaces), Number()};
    morph.memo.body = Tetrahedron();
    AddPlaced(true);
    AddPlaced(false);
}

void Maker::AddPlaced(bool isLamp) {
    const std::size_t index = 2 * Below(2) + (isLamp ? 0 : 1);
    ProjectElement& element = Add(isLamp ? ElementType::Lamp : ElementType::Object);
    element.element.data = Host::ObjectData{
        static_cast<std::int32_t>(index + 1), Point(), Number(), Number(), Coin(), Size(), Size()};
    for (const Host::LibraryParameter& parameter : project.parts[index].parameters) {
        if (Below(4) == 0) {
            element.memo.parameters.push_back(parameter);
            ChangeValue(element.memo.parameters.back());
        }
    }
}

void Maker::MakeDatabases() {
    project.databases.push_back(
        {{Host::WindowType::Worksheet, NewGuid(), Words(), "MET01", {}, 0}, 1.0 + Size(), {}});
    const auto make = [this](Host::WindowType type, const ProjectElement& marker) {
        const Guid guid = marker.element.header.guid;
        project.databases.push_back({{type, NewGuid(), Words(), Words(), guid, 0}, 50.0, {}});
        project.databases.back().section = {guid, Point(), Point(), Coin() ? 0.0 : Size()};
    };
    for (std::size_t i = 0; i < project.elements.size(); ++i) {
        if (project.elements[i].element.header.type == ElementType::CutPlane) {
            make(Host::WindowType::Section, project.elements[i]);
            make(Host::WindowType::Elevation, project.elements[i + 1]);
            make(Host::WindowType::InteriorElevation, project.elements[i + 2]);
            project.databases.back().window.segment = 3;
        }
    }
    for (ProjectElement& element : project.elements) {
        const ElementType type = element.element.header.type;
        if ((type >= ElementType::Hatch && type <= ElementType::Spline) ||
            type == ElementType::Text || type == ElementType::SectionElement) {
            element.database = Coin() ? Guid() : project.databases[Below(4)].window.database;
        }
    }
}

void Maker::MakeViews() {
    const Guid folder = NewGuid();
    project.views.push_back({folder, Words(), {}, true, {}, 0, "", 0.0});
    project.views.push_back({NewGuid(), Words(), folder, true, {}, 0, "", 0.0});
    for (const ProjectDatabase& database : project.databases) {
        const auto combination = project.combinations.find(Any(project.combinations).value);
        project.views.push_back({NewGuid(), Words(), Coin() ? folder : Guid(), false,
                                 database.window, 0, Coin() ? combination->second.name : "",
                                 Coin() ? 0.0 : Size()});
    }
    Host::Window model;
    model.type = Host::WindowType::Model3D;
    project.views.push_back({NewGuid(), Words(), {}, false, model, 0, "", 0.0});
    project.views.push_back(
        {NewGuid(), Words(), {}, false, {}, project.stories[Below(4)].index, "", 100.0});
}

void Maker::MakeRest() {
    project.libraries = {{"Vantoro", "Bibliotecas/Vantoro", true}, {Words(), Words(), false}};
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    project.data["Texto"] = {-3, 0x5757, "Linha 1\nção\t\"2\""};
    project.data["Vazio"] = {1, 0, ""};
    project.data["Bytes " + Words()] = {1, 65535, all};
    for (const ProjectElement& element : project.elements) {
        if (Below(3) == 0) {
            project.selection.push_back(element.element.header.guid);
        }
    }
    project.window = Coin() ? Host::Window() : project.databases[Below(4)].window;
    project.activeFloor = project.stories[Below(4)].index;
    project.planScale = 1.0 + Size();
    project.lightingSymbols = Coin();
}

Project Maker::Make() {
    MakeAttributes();
    MakeParts();
    AddBuilding();
    AddCurves();
    AddModel();
    MakeDatabases();
    MakeViews();
    MakeRest();
    return project;
}

} // namespace

Project MakeRandomProject(std::uint32_t seed) {
    return Maker(seed).Make();
}

} // namespace Merivane::Tests
