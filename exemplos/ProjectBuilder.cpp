#include "exemplos/ProjectBuilder.hpp"

#include <cmath>
#include <numbers>
#include <utility>

#include "Workbench/Project/AttributeRules.hpp"

namespace Merivane::Examples {

namespace {

using Host::Coordinate3D;
using Workbench::GivenBody;
using Workbench::GivenFace;

// Below, above, south, east, north, west; each counter-clockwise from outside.
const std::vector<std::vector<std::int32_t>> BoxFaces = {{0, 3, 2, 1}, {4, 5, 6, 7}, {0, 1, 5, 4},
                                                         {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}};

std::vector<Coordinate3D> BoxVertices(const Box& box) {
    const Coordinate3D& a = box.lowest;
    const Coordinate3D& b = box.highest;
    return {{a.x, a.y, a.z}, {b.x, a.y, a.z}, {b.x, b.y, a.z}, {a.x, b.y, a.z},
            {a.x, a.y, b.z}, {b.x, a.y, b.z}, {b.x, b.y, b.z}, {a.x, b.y, b.z}};
}

} // namespace

Host::AttributeIndex LayerOf(ProjectBuilder& builder, const std::string& name) {
    const std::int32_t found = Workbench::FindAttributeName(builder.project.layers, name);
    if (found != 0) {
        return {found};
    }
    const std::int32_t index = Workbench::NextAttributeIndex(builder.project.layers);
    builder.project.layers[index].name = name;
    return {index};
}

Host::AttributeIndex SurfaceOf(const ProjectBuilder& builder, const std::string& name) {
    return {Workbench::FindAttributeName(builder.project.surfaces, name)};
}

Host::AttributeIndex LineTypeOf(const ProjectBuilder& builder, const std::string& name) {
    return {Workbench::FindAttributeName(builder.project.lineTypes, name)};
}

Workbench::ProjectElement& AddElement(ProjectBuilder& builder, Host::ElementType type,
                                      const Place& place) {
    Workbench::ProjectElement& added = builder.project.elements.emplace_back();
    added.element.header.type = type;
    added.element.header.guid = Workbench::NextGuid(builder.guids);
    added.element.header.layer = place.layer;
    added.element.header.floorIndex = place.floorIndex;
    added.element.header.stamp = ++builder.project.lastStamp;
    return added;
}

Host::Guid AddGeometry(ProjectBuilder& builder, Host::ElementType type, const Place& place,
                       Workbench::ModelGeometry geometry) {
    Workbench::ProjectElement& added = AddElement(builder, type, place);
    added.geometry = std::move(geometry);
    return added.element.header.guid;
}

Host::Guid AddData(ProjectBuilder& builder, Host::ElementType type, const Place& place,
                   Host::ElementData data, Host::ElementMemo memo) {
    Workbench::ProjectElement& added = AddElement(builder, type, place);
    added.element.data = std::move(data);
    added.memo = std::move(memo);
    return added.element.header.guid;
}

Workbench::ElementPart MakePart(ProjectBuilder& builder, Host::ElementType type,
                                Workbench::ModelGeometry geometry) {
    return {Workbench::NextGuid(builder.guids), type, std::move(geometry)};
}

double Rounded(double length) {
    const double rounded = std::round(length * 1e6) / 1e6;
    return rounded == 0.0 ? 0.0 : rounded;
}

Host::Contour Outline(std::vector<Host::Coordinate> vertices) {
    return {std::move(vertices), {}};
}

Host::Contour Rectangle(const Host::Coordinate& low, const Host::Coordinate& high) {
    return Outline({low, {high.x, low.y}, high, {low.x, high.y}});
}

Host::Contour Circle(const Host::Coordinate& center, double radius) {
    const double quarter = std::numbers::pi / 2.0;
    return {{{Rounded(center.x + radius), center.y},
             {center.x, Rounded(center.y + radius)},
             {Rounded(center.x - radius), center.y},
             {center.x, Rounded(center.y - radius)}},
            {{0, quarter}, {1, quarter}, {2, quarter}, {3, quarter}}};
}

GivenBody BoxBody(const Box& box, Host::AttributeIndex surface) {
    GivenBody body;
    body.vertices = BoxVertices(box);
    for (const std::vector<std::int32_t>& contour : BoxFaces) {
        body.faces.push_back({{contour}, surface, ""});
    }
    return body;
}

GivenBody BoxBody(const Box& box, const std::string& below, const std::string& rest) {
    GivenBody body = BoxBody(box, Host::AttributeIndex{});
    for (GivenFace& face : body.faces) {
        face.scriptSurface = &face == &body.faces.front() ? below : rest;
    }
    return body;
}

GivenBody CylinderBody(double radius, double bottom, double top, const std::string& below,
                       const std::string& rest) {
    constexpr std::int32_t Sides = 16;
    GivenBody body;
    GivenFace lower{{{}}, {}, below};
    GivenFace upper{{{}}, {}, rest};
    for (std::int32_t i = 0; i < Sides; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / Sides;
        const double x = Rounded(radius * std::cos(angle));
        const double y = Rounded(radius * std::sin(angle));
        body.vertices.push_back({x, y, bottom});
        body.vertices.push_back({x, y, top});
        lower.contours[0].insert(lower.contours[0].begin(), 2 * i);
        upper.contours[0].push_back(2 * i + 1);
    }
    body.faces = {lower, upper};
    for (std::int32_t i = 0; i < Sides; ++i) {
        const std::int32_t next = (i + 1) % Sides;
        body.faces.push_back({{{2 * i, 2 * next, 2 * next + 1, 2 * i + 1}}, {}, rest});
    }
    return body;
}

} // namespace Merivane::Examples
