#include <variant>

#include "Workbench/Project/FileGroups.hpp"

namespace Merivane::Workbench {

namespace {

/// Bends of walls, and slopes of roofs up to an upright one [rad].
constexpr NumberRange Bends = {-6.283185307179586, 6.283185307179586};
constexpr NumberRange Slopes = {0.0, 1.57};

constexpr Host::AttributeIndex NoSurface = {};

void ShapeKeys(auto& /*fields*/, Is<std::monostate> auto& /*none*/) {}

void ShapeKeys(auto& fields, Is<WallGeometry> auto& wall) {
    fields.Must("inicio", wall.begin);
    fields.Must("fim", wall.end);
    fields.May("curva", wall.bend, 0.0, Bends);
    fields.May("espessura", wall.thickness, 0.2, Sizes);
    fields.May("base", wall.bottom, 0.0, Coordinates);
    fields.May("altura", wall.height, 2.8, Sizes);
    fields.May("superficieEsquerda", wall.leftSurface, NoSurface, fields.Surfaces());
    fields.May("superficieDireita", wall.rightSurface, NoSurface, fields.Surfaces());
    fields.May("superficieDasBordas", wall.edgeSurface, NoSurface, fields.Surfaces());
}

bool IsHostOfOpenings(const GuidHolder& holder) {
    return holder.kind == GuidKind::Element &&
           (holder.type == Host::ElementType::Wall || holder.type == Host::ElementType::Roof);
}

void ShapeKeys(auto& fields, Is<OpeningGeometry> auto& opening) {
    fields.Must("parede", opening.wall,
                GuidRule{fields.Guids(), IsHostOfOpenings, "nenhuma parede ou cobertura"});
    fields.Must("distancia", opening.along, Coordinates);
    fields.May("largura", opening.width, 1.0, Sizes);
    fields.May("peitoril", opening.sill, 0.0, Coordinates);
    fields.May("altura", opening.height, 2.1, Sizes);
    fields.May("marco", opening.frame, 0.05, Lengths);
    fields.May("profundidade", opening.depth, 0.05, Lengths);
    fields.May("superficieDoMarco", opening.frameSurface, NoSurface, fields.Surfaces());
    fields.May("superficieDaFolha", opening.paneSurface, NoSurface, fields.Surfaces());
    fields.May("vao", opening.open, false);
}

void ShapeKeys(auto& fields, Is<SlabGeometry> auto& slab) {
    fields.Must("poligono", slab.polygon, PolygonRule());
    fields.May("topo", slab.top, 0.0, Coordinates);
    fields.May("espessura", slab.thickness, 0.2, Sizes);
    fields.May("superficieDoTopo", slab.topSurface, NoSurface, fields.Surfaces());
    fields.May("superficieDeBaixo", slab.bottomSurface, NoSurface, fields.Surfaces());
    fields.May("superficieDasBordas", slab.edgeSurface, NoSurface, fields.Surfaces());
}

void ShapeKeys(auto& fields, Is<PrismGeometry> auto& prism) {
    fields.Must("poligono", prism.polygon, PolygonRule());
    fields.May("base", prism.bottom, 0.0, Coordinates);
    fields.Must("altura", prism.height, Lengths);
    fields.May("superficie", prism.surface, NoSurface, fields.Surfaces());
}

void ShapeKeys(auto& fields, Is<BarGeometry> auto& bar) {
    fields.Must("inicio", bar.begin);
    fields.Must("fim", bar.end);
    fields.May("largura", bar.width, 0.2, Sizes);
    fields.May("altura", bar.height, 0.4, Sizes);
    fields.May("superficie", bar.surface, NoSurface, fields.Surfaces());
}

void ShapeKeys(auto& fields, Is<RoofGeometry> auto& roof) {
    fields.Must("poligono", roof.polygon, PolygonRule());
    fields.Must("inicioDoEixo", roof.pivotBegin);
    fields.Must("fimDoEixo", roof.pivotEnd);
    fields.May("nivel", roof.level, 0.0, Coordinates);
    fields.May("inclinacao", roof.slope, 0.0, Slopes);
    fields.May("espessura", roof.thickness, 0.2, Sizes);
    fields.May("superficieDoTopo", roof.topSurface, NoSurface, fields.Surfaces());
    fields.May("superficieDeBaixo", roof.bottomSurface, NoSurface, fields.Surfaces());
    fields.May("superficieDasBordas", roof.edgeSurface, NoSurface, fields.Surfaces());
}

void ShapeKeys(auto& fields, Is<MeshGeometry> auto& mesh) {
    fields.Must("contorno", mesh.outline, PointRule{3});
    fields.Must("base", mesh.bottom, Coordinates);
    fields.May("superficieDoTopo", mesh.topSurface, NoSurface, fields.Surfaces());
    fields.May("superficieDasBordas", mesh.edgeSurface, NoSurface, fields.Surfaces());
}

void FaceKeys(auto& fields, Is<Host::MorphBody::Face> auto& face,
              const std::vector<Host::Coordinate3D>& vertices) {
    fields.Must("contornos", face.contours, ContourRule{&vertices});
    fields.May("superficie", face.surface, NoSurface, fields.Surfaces());
}

void FaceKeys(auto& fields, Is<GivenFace> auto& face,
              const std::vector<Host::Coordinate3D>& vertices) {
    fields.Must("contornos", face.contours, ContourRule{&vertices});
    fields.May("superficie", face.surface, NoSurface, fields.Surfaces());
    fields.May("superficieDaPeca", face.scriptSurface, "", NameRule);
}

template <typename Body>
concept AnyBody = Is<Body, GivenBody> || Is<Body, Host::MorphBody>;

void BodyKeys(auto& fields, AnyBody auto& body) {
    fields.Must("vertices", body.vertices, PointRule{3});
    const auto& vertices = body.vertices;
    fields.List("faces", body.faces,
                [&vertices](auto& keys, auto& face) { FaceKeys(keys, face, vertices); },
                {1, 0, "faces"});
}

void ShapeKeys(auto& fields, Is<GivenBody> auto& body) {
    BodyKeys(fields, body);
}

} // namespace

void GeometryFields(FieldsToRead& fields, ModelGeometry& geometry) {
    std::visit([&fields](auto& shape) { ShapeKeys(fields, shape); }, geometry);
}

void GeometryFields(FieldsToWrite& fields, const ModelGeometry& geometry) {
    std::visit([&fields](const auto& shape) { ShapeKeys(fields, shape); }, geometry);
}

void BodyFields(FieldsToRead& fields, GivenBody& body) {
    BodyKeys(fields, body);
}

void BodyFields(FieldsToWrite& fields, const GivenBody& body) {
    BodyKeys(fields, body);
}

void BodyFields(FieldsToRead& fields, Host::MorphBody& body) {
    BodyKeys(fields, body);
}

void BodyFields(FieldsToWrite& fields, const Host::MorphBody& body) {
    BodyKeys(fields, body);
}

} // namespace Merivane::Workbench
