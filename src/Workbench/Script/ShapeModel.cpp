#include "Workbench/Script/ShapeModel.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "Workbench/Script/BodyClipping.hpp"
#include "Workbench/Script/CuttingForms.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate3D;

bool IsFinite(const Coordinate3D& place) {
    return std::isfinite(place.x) && std::isfinite(place.y) && std::isfinite(place.z);
}

bool HoldsNumbers(const ShapeSketch& sketch) {
    return std::all_of(sketch.body.vertices.begin(), sketch.body.vertices.end(), IsFinite) &&
           std::all_of(sketch.wires.begin(), sketch.wires.end(),
                       [](const auto& wire) { return IsFinite(wire[0]) && IsFinite(wire[1]); });
}

/// The sides of the faces as lines, each once.
void TurnIntoWires(ShapeSketch& sketch) {
    std::vector<std::pair<std::int32_t, std::int32_t>> sides;
    for (const ContouredFace& face : sketch.body.faces) {
        for (const std::vector<std::int32_t>& contour : face.contours) {
            for (std::size_t i = 0; i < contour.size(); ++i) {
                sides.push_back(std::minmax({contour[i], contour[(i + 1) % contour.size()]}));
            }
        }
    }
    std::sort(sides.begin(), sides.end());
    sides.erase(std::unique(sides.begin(), sides.end()), sides.end());
    for (const auto& [from, to] : sides) {
        sketch.wires.push_back({sketch.body.vertices[static_cast<std::size_t>(from)],
                                sketch.body.vertices[static_cast<std::size_t>(to)]});
    }
    sketch.body = {};
}

void CutByPlanes(const ModelBuild& build, ShapeSketch& sketch) {
    if (build.cuts.empty()) {
        return;
    }
    const bool capped = build.look.detail == ModelLook::Detail::Solid && IsClosedBody(sketch.body);
    for (const CuttingPlane& plane : build.cuts) {
        if (!sketch.body.faces.empty()) {
            CutBody(sketch.body, plane, capped, build.look.surface);
        }
        std::erase_if(sketch.wires, [&](auto& wire) { return !CutLine(wire[0], wire[1], plane); });
    }
}

} // namespace

std::string CutSketch(ModelBuild& build, ShapeSketch& sketch) {
    CutByPlanes(build, sketch);
    return CutByForms(build, sketch);
}

ShapeSketch StartSketch(const ModelBuild& build) {
    ShapeSketch sketch;
    const auto left = [](std::size_t limit, std::size_t used) {
        return limit > used ? limit - used : 0;
    };
    sketch.faceRoom = left(build.shapeLimit, build.shapeCount);
    sketch.vertexRoom = left(build.vertexLimit, build.vertexCount);
    return sketch;
}

std::string AddToModel(ModelBuild& build, ShapeSketch& sketch) {
    if (!HoldsNumbers(sketch)) {
        return "as coordenadas são grandes demais";
    }
    DropUnusedVertices(sketch.body);
    FlattenFaces(sketch.body);
    if (std::string refusal = CutSketch(build, sketch); !refusal.empty()) {
        return refusal;
    }
    if (build.look.detail == ModelLook::Detail::Wire) {
        TurnIntoWires(sketch);
    }
    const std::size_t faces = sketch.body.faces.size() + sketch.wires.size();
    const std::size_t vertices = sketch.body.vertices.size();
    if (std::string refusal = CheckRoom(sketch, faces, vertices); !refusal.empty()) {
        return refusal;
    }
    build.shapeCount += faces;
    for (const auto& wire : sketch.wires) {
        build.model.wires.push_back({wire[0], wire[1], build.look.pen});
    }
    if (!sketch.body.faces.empty()) {
        build.vertexCount += vertices;
        build.model.bodies.push_back(std::move(sketch.body));
    }
    return {};
}

std::string ReadShapeInput(const ModelBuild& build, const std::vector<ScriptValue>& arguments,
                           ShapeInput& input) {
    if (std::string refusal = ReadNumbers(arguments, input.numbers); !refusal.empty()) {
        return refusal;
    }
    input.curves = {build.look.segments, build.look.tolerance, build.look.radiusLowest,
                    build.look.radiusHighest};
    input.surface = build.look.surface;
    input.ownSurfaces = build.model.surfaces.size();
    input.wire = build.look.detail == ModelLook::Detail::Wire;
    return {};
}

} // namespace Merivane::Workbench
