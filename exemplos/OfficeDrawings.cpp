#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Workbench/Project/AttributeRules.hpp"
#include "exemplos/OfficePlan.hpp"
#include "exemplos/OfficeProject.hpp"

namespace Merivane::Examples {

namespace {

using Host::AttributeIndex;
using Host::Coordinate;
using Host::ElementType;

constexpr double Quarter = std::numbers::pi / 2.0;

/// A paragraph of one look, or of stretches one after another.
struct Words {
    std::string text;
    double size = 1.8; ///< [mm]
    bool bold = false;
    std::int32_t pen = 1;
};

std::int32_t CharacterCount(std::string_view text) {
    std::int32_t count = 0;
    for (const char byte : text) {
        count += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U ? 1 : 0;
    }
    return count;
}

Host::TextParagraph Paragraph(const std::vector<Words>& words, std::vector<double> tabs = {}) {
    Host::TextParagraph paragraph;
    for (const Words& stretch : words) {
        paragraph.text += stretch.text;
        if (!stretch.text.empty()) {
            paragraph.stretches.push_back(
                {CharacterCount(stretch.text), stretch.pen, stretch.size, stretch.bold});
        }
    }
    paragraph.tabs = std::move(tabs);
    return paragraph;
}

/// Draws on a layer of a floor, or of a worksheet or section.
struct Drawer {
    ProjectBuilder& builder;
    Place place;
    Host::Guid database{};

    Workbench::ProjectElement& Add(ElementType type) const {
        Workbench::ProjectElement& added = AddElement(builder, type, place);
        added.database = database;
        return added;
    }

    void Line(Coordinate begin, Coordinate end, std::int32_t pen, AttributeIndex type = {}) const {
        Add(ElementType::Line).element.data = Host::LineData{begin, end, pen, type};
    }

    void Arc(Coordinate center, double radius, double begin, double end, std::int32_t pen) const {
        Add(ElementType::Arc).element.data =
            Host::ArcData{center, radius, begin, end, false, pen, {}};
    }

    void WholeCircle(Coordinate center, double radius, std::int32_t pen) const {
        Add(ElementType::Circle).element.data =
            Host::ArcData{center, radius, 0.0, 0.0, true, pen, {}};
    }

    void Ring(Host::Contour contour, bool closed, std::int32_t pen,
              AttributeIndex type = {}) const {
        Workbench::ProjectElement& added = Add(ElementType::PolyLine);
        added.element.data = Host::PolyLineData{closed, pen, type};
        added.memo.polygon = {std::move(contour)};
    }

    void Hatch(Host::Polygon polygon, Host::Colour colour) const {
        Workbench::ProjectElement& added = Add(ElementType::Hatch);
        added.element.data = Host::HatchData{{1}, colour, true, 0, 1};
        added.memo.polygon = std::move(polygon);
    }

    void Text(Host::TextData text, std::vector<Host::TextParagraph> paragraphs) const {
        Workbench::ProjectElement& added = Add(ElementType::Text);
        added.element.data = text;
        added.memo.paragraphs = std::move(paragraphs);
    }

    void Label(const std::string& text, Coordinate at, Host::TextAnchor anchor, double size,
               std::int32_t pen = 1, bool bold = false) const {
        Text({at, 0.0, anchor, size, pen, bold, 0.0}, {Paragraph({{text, size, bold, pen}})});
    }
};

void AddAxes(ProjectBuilder& builder) {
    const AttributeIndex dashDot = LineTypeOf(builder, "Vantoro - Traco e ponto");
    constexpr double Bubble = 0.4;
    for (const std::int16_t floorIndex : {std::int16_t{0}, std::int16_t{1}}) {
        const Drawer drawer{builder, {LayerOf(builder, "Eixos"), floorIndex}, {}};
        char name = 'A';
        for (const double x : {0.0, 12.0, 18.0}) {
            drawer.Line({x, -1.6}, {x, 11.6}, 11, dashDot);
            drawer.WholeCircle({x, Rounded(-1.6 - Bubble)}, Bubble, 10);
            drawer.Label(std::string(1, name++), {x, Rounded(-1.6 - Bubble)},
                         Host::TextAnchor::Middle, 2.5);
        }
        name = '1';
        for (const double y : {0.0, 6.0, 10.0}) {
            drawer.Line({-1.6, y}, {19.6, y}, 11, dashDot);
            drawer.WholeCircle({Rounded(-1.6 - Bubble), y}, Bubble, 10);
            drawer.Label(std::string(1, name++), {Rounded(-1.6 - Bubble), y},
                         Host::TextAnchor::Middle, 2.5);
        }
        drawer.Add(ElementType::Dimension);
    }
}

// The leaf of an open door, a quarter circle from the closed one.
void AddSwing(const Drawer& drawer, Coordinate hinge, double closed, double turn) {
    constexpr double Leaf = 0.8;
    const double open = closed + turn;
    drawer.Line(
        hinge, {Rounded(hinge.x + Leaf * std::cos(open)), Rounded(hinge.y + Leaf * std::sin(open))},
        9);
    drawer.Arc(hinge, Leaf, Rounded(turn > 0.0 ? closed : open),
               Rounded(turn > 0.0 ? open : closed), 10);
}

void AddDoorSwings(ProjectBuilder& builder) {
    const AttributeIndex layer = LayerOf(builder, "Esquadrias");
    const Drawer ground{builder, {layer, 0}, {}};
    AddSwing(ground, {6.95, 8.79}, Quarter, Quarter); // meeting room, into the office
    AddSwing(ground, {11.95, 1.7}, Quarter, Quarter); // passage, into the office
    AddSwing(ground, {10.85, 5.99}, 0.0, -Quarter);   // glass door, into the office
    AddSwing(ground, {17.9, 8.3}, Quarter, Quarter);  // entrance, into the hall
    const Drawer upper{builder, {layer, 1}, {}};
    AddSwing(upper, {10.1, 5.05}, 0.0, Quarter); // into the upper north room
    AddSwing(upper, {12.98, 0.6}, Quarter, Quarter);
    AddSwing(upper, {12.98, 8.25}, Quarter, Quarter);
}

/// A ring of 24 corners on an ellipse about the meeting room's table.
Host::Contour IsoRing(double halfWidth, double halfDepth) {
    constexpr int Corners = 24;
    constexpr Coordinate Middle = {9.5, 8.0};
    std::vector<Coordinate> vertices;
    for (int i = 0; i < Corners; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / Corners;
        vertices.push_back({Rounded(Middle.x + halfWidth * std::cos(angle)),
                            Rounded(Middle.y + halfDepth * std::sin(angle))});
    }
    return Outline(std::move(vertices));
}

// What an earlier version of the add-on drew, on layers with the names that it gave them.
void AddEarlierBands(ProjectBuilder& builder) {
    const Host::Contour inner = IsoRing(1.1, 0.75);
    const Host::Contour outer = IsoRing(1.9, 1.35);
    const Host::Contour room = Rectangle({7.05, 6.01}, {11.95, 9.9});
    const Drawer bands{builder, {LayerOf(builder, "Merivane - Cor falsa"), 0}, {}};
    bands.Hatch({room, outer}, {0.75, 0.88, 0.97});
    bands.Hatch({outer, inner}, {0.72, 0.90, 0.72});
    bands.Hatch({inner}, {0.99, 0.93, 0.62});
}

void AddEarlierCurves(ProjectBuilder& builder) {
    const Drawer curves{builder, {LayerOf(builder, "Merivane - Isolux"), 0}, {}};
    curves.Ring(IsoRing(1.1, 0.75), true, 4);
    curves.Label("750 lx", {9.5, 8.75}, Host::TextAnchor::LeftBottom, 2.0, 4);
    curves.Ring(IsoRing(1.9, 1.35), true, 4);
    curves.Label("500 lx", {9.5, 9.35}, Host::TextAnchor::LeftBottom, 2.0, 4);
    curves.Ring(Rectangle({7.55, 6.51}, {11.45, 9.4}), true, 1,
                LineTypeOf(builder, "Vantoro - Tracejada"));
}

void AddEarlierLegend(ProjectBuilder& builder) {
    const Drawer legend{builder, {LayerOf(builder, "Vantoro - Legenda"), 0}, {}};
    const std::vector<double> tabs = {22.0, 40.0, 56.0};
    Host::TextData text;
    text.position = {22.4, 9.9};
    text.anchor = Host::TextAnchor::LeftTop;
    text.size = 1.8;
    legend.Text(text, {Paragraph({{"Sala de reuniões  —  Reuniões", 3.2, true}}), Paragraph({}),
                       Paragraph({{"Verificação  —  ABNT NBR ISO/CIE 8995-1:2013", 2.4, true}}),
                       Paragraph({{"Critério\tCalculado\tExigido\tEstado", 1.8, true}}, tabs),
                       Paragraph({{"Em\t561 lx\t300 lx\t"}, {"ATENDE", 1.8, true, 2}}, tabs),
                       Paragraph({{"U0\t0,58\t0,70\t"}, {"NÃO ATENDE", 1.8, true, 3}}, tabs),
                       Paragraph({{"UGRL\t—\t19\t"}, {"SEM DADO", 1.8, true}}, tabs)});
}

// The colours of that calculation over its work plane, as a body in the model.
void AddEarlierMap(ProjectBuilder& builder) {
    const AttributeIndex map = SurfaceOf(builder, "Vantoro 500 a 750 lx");
    Host::ElementMemo memo;
    Host::MorphBody::Face face{{{}}, map};
    for (const Coordinate& corner : IsoRing(1.9, 1.35).vertices) {
        face.contours[0].push_back(static_cast<std::int32_t>(memo.body.vertices.size()));
        memo.body.vertices.push_back({corner.x, corner.y, 0.8});
    }
    memo.body.faces = {face};
    AddData(builder, ElementType::Morph,
            {LayerOf(builder, "Vantoro - Cor falsa 3D plano de trabalho"), 0},
            Host::MorphData{map, 0.0}, std::move(memo));
}

Workbench::ProjectDatabase& AddDatabase(ProjectBuilder& builder, Host::WindowType type,
                                        const std::string& name, const std::string& reference,
                                        double scale) {
    Workbench::ProjectDatabase& database = builder.project.databases.emplace_back();
    database.window.type = type;
    database.window.database = Workbench::NextGuid(builder.guids);
    database.window.name = name;
    database.window.reference = reference;
    database.scale = scale;
    return database;
}

void AddWorksheet(ProjectBuilder& builder) {
    const Host::Guid guid =
        AddDatabase(builder, Host::WindowType::Worksheet, "Metodologia", "MET01", 50.0)
            .window.database;
    const Drawer drawer{builder, {{Workbench::FirstLayer}, 0}, guid};
    Host::TextData text;
    text.position = {0.0, 0.0};
    text.anchor = Host::TextAnchor::LeftTop;
    text.width = 120.0;
    drawer.Text(text, {Paragraph({{"Metodologia", 3.5, true}}), Paragraph({}),
                       Paragraph({{"Fator de manutenção 0,80. Refletâncias das superfícies do "
                                   "modelo, como o diálogo de refletâncias as mostra. ",
                                   2.0},
                                  {"Plano de trabalho a 0,75 m.", 2.0, true}})});
    drawer.Ring(Rectangle({-0.25, -1.5}, {6.25, 0.25}), true, 9);
    Workbench::ProjectElement& spline = drawer.Add(ElementType::Spline);
    spline.element.data = Host::SplineData{false, 5, {}};
    spline.memo.splinePoints = {{0.0, -1.2}, {3.0, -1.0}, {6.0, -1.2}};
    spline.memo.splineDirections = {{0.0, 1.0, 0.3}, {1.0, 1.0, 0.0}, {1.0, 0.0, -0.3}};
}

void AddSection(ProjectBuilder& builder) {
    const Host::Guid marker =
        AddElement(builder, ElementType::CutPlane, {LayerOf(builder, "Eixos"), 0})
            .element.header.guid;
    Workbench::ProjectDatabase& section =
        AddDatabase(builder, Host::WindowType::Section, "Corte A", "AA", 100.0);
    section.window.marker = marker;
    section.section.marker = marker;
    section.section.begin = {-1.2, 4.0};
    section.section.end = {19.2, 4.0};
    const Host::Guid guid = section.window.database;
    Host::Guid roof;
    for (const Workbench::ProjectElement& element : builder.project.elements) {
        if (element.element.header.type == ElementType::Roof) {
            roof = element.element.header.guid;
        }
    }
    const Drawer drawer{builder, {{Workbench::FirstLayer}, 0}, guid};
    drawer.Add(ElementType::SectionElement).element.data = Host::SectionElementData{roof};
    drawer.Line({-2.5, 0.0}, {-0.5, 0.0}, 9);
    drawer.Label("0,00", {-2.4, 0.05}, Host::TextAnchor::LeftBottom, 2.0);
    drawer.Line({-2.5, FloorHeight}, {-0.5, FloorHeight}, 9);
    drawer.Label("+3,20", {-2.4, FloorHeight + 0.05}, Host::TextAnchor::LeftBottom, 2.0);
}

} // namespace

void AddOfficeDrawings(ProjectBuilder& builder) {
    AddAxes(builder);
    AddDoorSwings(builder);
    AddEarlierBands(builder);
    AddEarlierCurves(builder);
    AddEarlierLegend(builder);
    AddEarlierMap(builder);
    AddWorksheet(builder);
    AddSection(builder);
}

} // namespace Merivane::Examples
