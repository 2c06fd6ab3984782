#include "Workbench/Bodies/GivenBodies.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace Merivane::Workbench {

namespace {

using Contours = std::vector<std::vector<std::int32_t>>;

bool AreVertices(const Contours& contours, std::size_t vertexCount) {
    return std::all_of(contours.begin(), contours.end(), [&](const auto& contour) {
        return std::all_of(contour.begin(), contour.end(), [&](std::int32_t vertex) {
            return vertex >= 0 && static_cast<std::size_t>(vertex) < vertexCount;
        });
    });
}

/// A part without a size of its own is not stretched.
double Stretch(double size, double partSize) {
    return std::abs(partSize) > 0.0 ? size / partSize : 1.0;
}

} // namespace

FacedBody BuildGivenBody(const GivenBody& given, const ScriptSurfaceNumber& numberOf) {
    FacedBody body;
    body.vertices = given.vertices;
    for (const GivenFace& face : given.faces) {
        if (!AreVertices(face.contours, body.vertices.size())) {
            continue;
        }
        body.faces.push_back({face.contours, face.scriptSurface.empty()
                                                 ? FaceSurface(face.surface)
                                                 : numberOf(face.scriptSurface)});
    }
    return body;
}

FacedBody BuildMorphBody(const Host::MorphData& morph, const Host::MorphBody& body) {
    FacedBody made;
    for (const Host::Coordinate3D& vertex : body.vertices) {
        made.vertices.push_back({vertex.x, vertex.y, vertex.z + morph.level});
    }
    for (const Host::MorphBody::Face& face : body.faces) {
        if (AreVertices(face.contours, made.vertices.size())) {
            made.faces.push_back(
                {face.contours,
                 FaceSurface(face.surface.value > 0 ? face.surface : morph.surface)});
        }
    }
    return made;
}

void FitToObject(FacedBody& body, const ProjectPart& part, const Host::ObjectData& object) {
    const double alongX = Stretch(object.sizeA, part.sizeA) * (object.mirrored ? -1.0 : 1.0);
    const double alongY = Stretch(object.sizeB, part.sizeB);
    for (Host::Coordinate3D& vertex : body.vertices) {
        vertex.x *= alongX;
        vertex.y *= alongY;
    }
    if (alongX * alongY < 0.0) {
        TurnFaces(body);
    }
}

void MirrorObject(FacedBody& body) {
    for (Host::Coordinate3D& vertex : body.vertices) {
        vertex.x = -vertex.x;
    }
    TurnFaces(body);
}

BodyTransform PlaceObject(const Host::ObjectData& object, double storyLevel) {
    const double cosine = std::cos(object.angle);
    const double sine = std::sin(object.angle);
    return {cosine, -sine, 0.0, object.position.x,        sine, cosine, 0.0, object.position.y,
            0.0,    0.0,   1.0, storyLevel + object.level};
}

} // namespace Merivane::Workbench
