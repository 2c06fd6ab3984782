#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "Workbench/Project/ElementRules.hpp"
#include "Workbench/Project/FileGroups.hpp"

namespace Merivane::Workbench {

namespace {

using Host::ElementType;

/// Integers that a number of the file holds exactly.
constexpr NumberRange Stamps = {0.0, 9007199254740991.0};
constexpr NumberRange Floors = {-1000.0, 1000.0};

/// The shapes that an element of a type may have, the usual one first.
std::span<const Shape> ShapesOf(ElementType type) {
    static constexpr Shape walls[] = {Shape::Wall, Shape::None};
    static constexpr Shape openings[] = {Shape::Opening, Shape::None};
    static constexpr Shape slabs[] = {Shape::Slab, Shape::None};
    static constexpr Shape roofs[] = {Shape::Roof, Shape::None};
    static constexpr Shape meshes[] = {Shape::Mesh, Shape::None};
    static constexpr Shape bodies[] = {Shape::Body, Shape::Opening, Shape::None};
    static constexpr Shape columns[] = {Shape::Prism, Shape::Body, Shape::Bar, Shape::None};
    static constexpr Shape beams[] = {Shape::Bar, Shape::Body, Shape::Prism, Shape::None};
    static constexpr Shape parts[] = {Shape::Body, Shape::Prism, Shape::Bar, Shape::None};
    static constexpr Shape none[] = {Shape::None};
    switch (type) {
    case ElementType::Wall:
        return walls;
    case ElementType::Window:
    case ElementType::Door:
        return openings;
    case ElementType::Slab:
        return slabs;
    case ElementType::Roof:
        return roofs;
    case ElementType::Mesh:
        return meshes;
    case ElementType::Shell:
    case ElementType::Skylight:
        return bodies;
    case ElementType::ColumnSegment:
        return columns;
    case ElementType::BeamSegment:
        return beams;
    case ElementType::CurtainWallFrame:
    case ElementType::CurtainWallPanel:
    case ElementType::Riser:
    case ElementType::Tread:
    case ElementType::StairStructure:
    case ElementType::RailingPart:
        return parts;
    default:
        return none;
    }
}

/// The types that the parts of an element may have; none for an element without parts.
std::vector<ElementType> PartTypesOf(ElementType type) {
    switch (type) {
    case ElementType::Column:
        return {ElementType::ColumnSegment};
    case ElementType::Beam:
        return {ElementType::BeamSegment};
    case ElementType::CurtainWall:
        return {ElementType::CurtainWallFrame, ElementType::CurtainWallPanel};
    case ElementType::Stair:
        return {ElementType::Riser, ElementType::Tread, ElementType::StairStructure};
    case ElementType::Railing:
        return {ElementType::RailingPart};
    default:
        return {};
    }
}

ModelGeometry MakeGeometry(Shape shape) {
    switch (shape) {
    case Shape::Wall:
        return WallGeometry();
    case Shape::Opening:
        return OpeningGeometry();
    case Shape::Slab:
        return SlabGeometry();
    case Shape::Prism:
        return PrismGeometry();
    case Shape::Bar:
        return BarGeometry();
    case Shape::Roof:
        return RoofGeometry();
    case Shape::Mesh:
        return MeshGeometry();
    case Shape::Body:
        return GivenBody();
    case Shape::None:
        break;
    }
    return {};
}

Host::ElementData MakeData(ElementType type) {
    switch (type) {
    case ElementType::Object:
    case ElementType::Lamp:
        return Host::ObjectData();
    case ElementType::Zone:
        return Host::ZoneData();
    case ElementType::Line:
        return Host::LineData();
    case ElementType::PolyLine:
        return Host::PolyLineData();
    case ElementType::Arc:
    case ElementType::Circle:
        return Host::ArcData();
    case ElementType::Spline:
        return Host::SplineData();
    case ElementType::Hatch:
        return Host::HatchData();
    case ElementType::Text:
        return Host::TextData();
    case ElementType::Morph:
        return Host::MorphData();
    case ElementType::SectionElement:
        return Host::SectionElementData();
    default:
        return {};
    }
}

/// Reads one member of an object before the others, where they depend on it.
bool ReadAhead(const Place& place, std::string_view key, const FieldReader& read,
               std::string& error) {
    const JsonValue* const value = place.value->Find(key);
    return !value || read(Place{value, &place, key, 0}, error);
}

FieldReader IntoShape(Shape& target, std::span<const Shape> shapes) {
    return [&target, shapes](const Place& place, std::string& error) {
        std::vector<std::string_view> choices;
        for (const Shape shape : shapes) {
            choices.push_back(WordOf(ShapeWords(), shape));
        }
        std::size_t choice = 0;
        if (!Catalog::IntoChoice(choice, std::move(choices))(place, error)) {
            return false;
        }
        target = shapes[choice];
        return true;
    };
}

/// Reads what an object is, `tipo` and `forma`, and prepares its geometry.
bool ReadKind(const Place& place, ElementType& type, ModelGeometry& geometry, std::string& error) {
    if (place.value->kind != Catalog::JsonKind::Object) {
        return RefuseValue(place, "um objeto", error);
    }
    if (!place.value->Find("tipo")) {
        return Refuse(place, "falta a chave \"tipo\"", error);
    }
    if (!ReadAhead(place, "tipo", Into(type, ElementTypeWords()), error)) {
        return false;
    }
    Shape shape = ShapesOf(type).front();
    if (!ReadAhead(place, "forma", IntoShape(shape, ShapesOf(type)), error)) {
        return false;
    }
    geometry = MakeGeometry(shape);
    return true;
}

void KindKeys(FieldsToRead& fields, const ElementType& type, const ModelGeometry& /*geometry*/) {
    const auto alreadyRead = [](const Place&, std::string&) { return true; };
    fields.Custom("tipo", true, alreadyRead);
    if (ShapesOf(type).size() > 1) {
        fields.Custom("forma", false, alreadyRead);
    }
}

void KindKeys(FieldsToWrite& fields, const ElementType& type, const ModelGeometry& geometry) {
    fields.Must("tipo", type, ElementTypeWords());
    const Shape shape = static_cast<Shape>(geometry.index());
    if (shape != ShapesOf(type).front()) {
        fields.Must("forma", shape, ShapeWords());
    }
}

void PartKeys(auto& fields, Is<ElementPart> auto& part) {
    KindKeys(fields, part.type, part.geometry);
    fields.Must("guid", part.guid);
    GeometryFields(fields, part.geometry);
}

std::string ContextOf(ElementType type) {
    return "num elemento \"" + std::string(WordOf(ElementTypeWords(), type)) + '"';
}

bool ReadPart(const Place& place, FileNames& names, ElementType whole, ElementPart& part,
              std::string& error) {
    if (!ReadKind(place, part.type, part.geometry, error)) {
        return false;
    }
    const std::vector<ElementType> types = PartTypesOf(whole);
    if (std::find(types.begin(), types.end(), part.type) == types.end()) {
        return Refuse(place,
                      "um elemento \"" + std::string(WordOf(ElementTypeWords(), part.type)) +
                          "\" não é parte de \"" + std::string(WordOf(ElementTypeWords(), whole)) +
                          '"',
                      error);
    }
    FieldsToRead fields(names);
    PartKeys(fields, part);
    return fields.Read(place, error, ContextOf(part.type));
}

void PartListKey(FieldsToRead& fields, ProjectElement& element) {
    const ElementType whole = element.element.header.type;
    if (PartTypesOf(whole).empty()) {
        return;
    }
    const auto readPart = [&names = fields.names, whole](const Place& place, ElementPart& part,
                                                         std::string& error) {
        return ReadPart(place, names, whole, part, error);
    };
    fields.Custom("partes", false, Catalog::IntoList(element.parts, {}, readPart));
}

void PartListKey(FieldsToWrite& fields, const ProjectElement& element) {
    if (!PartTypesOf(element.element.header.type).empty()) {
        fields.List("partes", element.parts, [](auto& keys, auto& part) { PartKeys(keys, part); });
    }
}

void ElementKeys(auto& fields, const Project& project, Is<ProjectElement> auto& element) {
    auto& header = element.element.header;
    const auto isDatabase = [](const GuidHolder& holder) {
        return holder.kind == GuidKind::Database;
    };
    KindKeys(fields, header.type, element.geometry);
    fields.Must("guid", header.guid);
    fields.Must("pavimento", header.floorIndex, Floors);
    fields.Must("camada", header.layer, fields.Layers());
    fields.May("janela", element.database, Host::Guid(),
               GuidRule{fields.Guids(), isDatabase, "nenhuma janela"});
    fields.May("grupo", header.group, Host::Guid());
    fields.May("travado", header.locked, false);
    fields.May("carimbo", header.stamp, 0U, Stamps);
    ContentFields(fields, project, element);
    GeometryFields(fields, element.geometry);
    PartListKey(fields, element);
}

bool ReadElement(const Place& place, FileNames& names, const Project& project,
                 ProjectElement& element, std::string& error) {
    ElementType& type = element.element.header.type;
    if (!ReadKind(place, type, element.geometry, error)) {
        return false;
    }
    if (IsPartType(type)) {
        return Refuse(place,
                      "um elemento \"" + std::string(WordOf(ElementTypeWords(), type)) +
                          "\" só existe entre as partes de outro",
                      error);
    }
    element.element.data = MakeData(type);
    FieldsToRead fields(names);
    ElementKeys(fields, project, element);
    return fields.Read(place, error, ContextOf(type));
}

} // namespace

void ElementListFields(FieldsToRead& fields, Project& project) {
    const auto readElement = [&names = fields.names, &project](
                                 const Place& place, ProjectElement& element, std::string& error) {
        return ReadElement(place, names, project, element, error);
    };
    fields.Custom("elementos", false, Catalog::IntoList(project.elements, {}, readElement));
}

void ElementListFields(FieldsToWrite& fields, const Project& project) {
    fields.List("elementos", project.elements,
                [&project](auto& keys, auto& element) { ElementKeys(keys, project, element); });
}

} // namespace Merivane::Workbench
