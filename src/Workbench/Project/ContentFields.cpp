#include <cstddef>
#include <utility>
#include <variant>

#include "Workbench/Project/FileGroups.hpp"
#include "Workbench/Project/PenTable.hpp"

namespace Merivane::Workbench {

namespace {

constexpr NumberRange Pens = {1.0, LastPen};
constexpr NumberRange PensOrNone = {0.0, LastPen};
constexpr Host::AttributeIndex SolidLine = {};

void LookKeys(auto& fields, auto& line) {
    fields.May("caneta", line.pen, 1, Pens);
    fields.May("tipoDeLinha", line.lineType, SolidLine, fields.LineTypes());
}

void DataKeys(auto& /*fields*/, Is<std::monostate> auto& /*none*/) {}

void DataKeys(auto& fields, Is<Host::ObjectData> auto& object) {
    fields.Must("peca", object.libraryIndex, fields.Parts());
    fields.Must("posicao", object.position);
    fields.May("nivel", object.level, 0.0, Coordinates);
    fields.May("angulo", object.angle, 0.0, Angles);
    fields.May("espelhado", object.mirrored, false);
    fields.Must("a", object.sizeA, Lengths);
    fields.Must("b", object.sizeB, Lengths);
}

void DataKeys(auto& fields, Is<Host::ZoneData> auto& zone) {
    fields.Must("nome", zone.name, ShortText);
    fields.May("numero", zone.number, "", ZoneNumberRule);
    fields.May("nivel", zone.baseLevel, 0.0, Coordinates);
    fields.Must("altura", zone.height, Sizes);
    fields.Must("posicaoDoCarimbo", zone.stampPosition);
}

void DataKeys(auto& fields, Is<Host::LineData> auto& line) {
    fields.Must("inicio", line.begin);
    fields.Must("fim", line.end);
    LookKeys(fields, line);
}

void DataKeys(auto& fields, Is<Host::PolyLineData> auto& line) {
    fields.May("fechada", line.closed, false);
    LookKeys(fields, line);
}

void DataKeys(auto& fields, Is<Host::ArcData> auto& arc) {
    fields.Must("centro", arc.center);
    fields.Must("raio", arc.radius, Sizes);
    fields.May("de", arc.begin, 0.0, Angles);
    fields.May("ate", arc.end, 0.0, Angles);
    fields.May("inteiro", arc.whole, false);
    LookKeys(fields, arc);
}

void DataKeys(auto& fields, Is<Host::SplineData> auto& spline) {
    fields.May("fechada", spline.closed, false);
    LookKeys(fields, spline);
}

void ForegroundKey(FieldsToRead& fields, Host::HatchData& hatch) {
    fields.Custom("cor", false, [&hatch](const Place& place, std::string& error) {
        hatch.hasForeground = true;
        return Into(hatch.foreground)(place, error);
    });
}

void ForegroundKey(FieldsToWrite& fields, const Host::HatchData& hatch) {
    if (hatch.hasForeground) {
        fields.Must("cor", hatch.foreground);
    }
}

void DataKeys(auto& fields, Is<Host::HatchData> auto& hatch) {
    fields.Must("preenchimento", hatch.fill, fields.Fills());
    ForegroundKey(fields, hatch);
    fields.May("canetaDoContorno", hatch.contourPen, 0, PensOrNone);
    fields.May("canetaDoPreenchimento", hatch.fillPen, 1, Pens);
}

void DataKeys(auto& fields, Is<Host::TextData> auto& text) {
    fields.Must("posicao", text.position);
    fields.May("angulo", text.angle, 0.0, Angles);
    fields.May("ancora", text.anchor, Host::TextAnchor::LeftBottom, TextAnchorWords());
    fields.May("tamanho", text.size, 2.0, Sizes);
    fields.May("caneta", text.pen, 1, Pens);
    fields.May("negrito", text.bold, false);
    fields.May("largura", text.width, 0.0, Lengths);
    fields.May("fundo", text.opaque, false);
}

void DataKeys(auto& fields, Is<Host::MorphData> auto& morph) {
    fields.Must("superficie", morph.surface, fields.Surfaces());
    fields.May("nivel", morph.level, 0.0, Coordinates);
}

/// The element of the model may be gone: the window shows it until it is drawn again.
void DataKeys(auto& fields, Is<Host::SectionElementData> auto& shown) {
    fields.May("elemento", shown.parent, Host::Guid());
}

void ParagraphKeys(auto& fields, Is<Host::TextParagraph> auto& paragraph) {
    constexpr NumberRange counts = {0.0, 1e9};
    fields.May("texto", paragraph.text, "", AnyText);
    fields.List("trechos", paragraph.stretches, [counts](auto& keys, auto& stretch) {
        keys.Must("letras", stretch.count, counts);
        keys.May("caneta", stretch.pen, 1, Pens);
        keys.May("tamanho", stretch.size, 2.0, Sizes);
        keys.May("negrito", stretch.bold, false);
    });
    fields.May("tabulacoes", paragraph.tabs, std::vector<double>(), Sizes);
}

/// What hangs on an element of each type.
void MemoKeys(auto& fields, const Project& project, const Host::Element& element, auto& memo) {
    using Host::ElementType;
    switch (element.header.type) {
    case ElementType::Object:
    case ElementType::Lamp:
        OwnParameterFields(fields, project, std::get<Host::ObjectData>(element.data).libraryIndex,
                           memo.parameters);
        break;
    case ElementType::Zone:
    case ElementType::Hatch:
        fields.Must("poligono", memo.polygon, PolygonRule{false});
        break;
    case ElementType::PolyLine:
        fields.Must("poligono", memo.polygon, PolygonRule{true});
        break;
    case ElementType::Spline:
        fields.Must("pontos", memo.splinePoints, PointRule{2});
        fields.Must("direcoes", memo.splineDirections);
        break;
    case ElementType::Text:
        fields.List("paragrafos", memo.paragraphs,
                    [](auto& keys, auto& paragraph) { ParagraphKeys(keys, paragraph); },
                    {1, 0, "parágrafos"});
        break;
    case ElementType::Morph:
        fields.Object(
            "corpo", memo.body, [](auto& keys, auto& body) { BodyFields(keys, body); }, true);
        break;
    default:
        break;
    }
}

} // namespace

void ContentFields(FieldsToRead& fields, const Project& project, ProjectElement& element) {
    std::visit([&fields](auto& data) { DataKeys(fields, data); }, element.element.data);
    MemoKeys(fields, project, element.element, element.memo);
}

void ContentFields(FieldsToWrite& fields, const Project& project, const ProjectElement& element) {
    std::visit([&fields](const auto& data) { DataKeys(fields, data); }, element.element.data);
    MemoKeys(fields, project, element.element, element.memo);
}

} // namespace Merivane::Workbench
