#include "Workbench/Script/ShapeSketch.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Workbench/Bodies/EarClipping.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate3D;

/// A vertex this far from its face's plane is on it, beside the share of the face's size.
constexpr double PlaneTolerance = 1e-7; // m
constexpr double PlaneShare = 1e-6;

/// Ear clipping takes the square of the number of vertices; larger contours stay as they are.
constexpr std::size_t MostClipped = 5000;

const Coordinate3D& PlaceOf(const FacedBody& body, std::int32_t vertex) {
    return body.vertices[static_cast<std::size_t>(vertex)];
}

bool IsPlane(const FacedBody& body, const std::vector<std::int32_t>& contour,
             const Coordinate3D& normal) {
    const double length = Length(normal);
    if (contour.size() < 4 || !(length > 0.0)) {
        return true;
    }
    const Coordinate3D& first = PlaceOf(body, contour[0]);
    double off = 0.0;
    double extent = 0.0;
    for (const std::int32_t vertex : contour) {
        const Coordinate3D way = Difference(PlaceOf(body, vertex), first);
        off = std::max(off, std::abs(Dot(way, normal)));
        extent = std::max(extent, Dot(way, way));
    }
    return off <= (PlaneTolerance + PlaneShare * std::sqrt(extent)) * length;
}

/// The contour seen along its normal: counter-clockwise.
PlanRing Flattened(const FacedBody& body, const std::vector<std::int32_t>& contour,
                   const Coordinate3D& normal) {
    const Coordinate3D up = Unit(normal);
    const Coordinate3D aside =
        std::abs(up.x) < std::abs(up.y) ? Coordinate3D{1.0, 0.0, 0.0} : Coordinate3D{0.0, 1.0, 0.0};
    const Coordinate3D right = Unit(Cross(aside, up));
    const Coordinate3D ahead = Cross(up, right);
    PlanRing ring;
    ring.reserve(contour.size());
    for (const std::int32_t vertex : contour) {
        const Coordinate3D& place = PlaceOf(body, vertex);
        ring.push_back({Dot(place, right), Dot(place, ahead)});
    }
    return ring;
}

std::vector<std::array<std::int32_t, 3>> CutContour(const FacedBody& body,
                                                    const std::vector<std::int32_t>& contour,
                                                    const Coordinate3D& normal) {
    constexpr std::size_t quad = 4;
    if (contour.size() != quad) {
        return ClipEars(Flattened(body, contour, normal));
    }
    const double first = Length(Difference(PlaceOf(body, contour[2]), PlaceOf(body, contour[0])));
    const double second = Length(Difference(PlaceOf(body, contour[3]), PlaceOf(body, contour[1])));
    if (first <= second) {
        return {{0, 1, 2}, {0, 2, 3}};
    }
    return {{1, 2, 3}, {1, 3, 0}};
}

} // namespace

std::string CheckRoom(const ShapeSketch& sketch, std::size_t faces, std::size_t vertices) {
    if (faces > sketch.faceRoom) {
        return "o modelo passa do limite de faces";
    }
    if (vertices > sketch.vertexRoom) {
        return "o modelo passa do limite de vértices";
    }
    return {};
}

std::int32_t AddVertex(ShapeSketch& sketch, const Coordinate3D& place) {
    sketch.body.vertices.push_back(place);
    return static_cast<std::int32_t>(sketch.body.vertices.size() - 1);
}

void AddFace(ShapeSketch& sketch, std::vector<std::vector<std::int32_t>> contours,
             std::int32_t surface, bool present) {
    constexpr std::size_t fewest = 3;
    for (std::vector<std::int32_t>& contour : contours) {
        contour.erase(std::unique(contour.begin(), contour.end()), contour.end());
        while (contour.size() > 1 && contour.front() == contour.back()) {
            contour.pop_back();
        }
    }
    if (contours.empty() || contours.front().size() < fewest) {
        return;
    }
    std::erase_if(contours, [](const auto& contour) { return contour.size() < fewest; });
    sketch.body.faces.push_back({std::move(contours), surface});
    sketch.present.push_back(present);
}

Coordinate3D DoubledNormal(const FacedBody& body, const std::vector<std::int32_t>& contour) {
    Coordinate3D sum;
    const Coordinate3D& first = PlaceOf(body, contour[0]);
    Coordinate3D before;
    for (std::size_t i = 1; i < contour.size(); ++i) {
        const Coordinate3D way = Difference(PlaceOf(body, contour[i]), first);
        sum = Sum(sum, Cross(before, way));
        before = way;
    }
    return sum;
}

void OrientOutwards(ShapeSketch& sketch) {
    if (sketch.oriented) {
        return;
    }
    constexpr double rounding = 1e-9;
    double volume = 0.0;
    double spanned = 0.0;
    for (const ContouredFace& face : sketch.body.faces) {
        for (const std::vector<std::int32_t>& contour : face.contours) {
            const Coordinate3D way =
                Difference(PlaceOf(sketch.body, contour[0]), sketch.body.vertices.front());
            const double part = Dot(DoubledNormal(sketch.body, contour), way);
            volume += part;
            spanned += std::abs(part);
        }
    }
    if (volume < -rounding * spanned) {
        TurnFaces(sketch.body);
    }
}

void LeaveOutAbsent(ShapeSketch& sketch) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < sketch.present.size(); ++i) {
        if (sketch.present[i]) {
            if (kept != i) {
                sketch.body.faces[kept] = std::move(sketch.body.faces[i]);
            }
            ++kept;
        }
    }
    sketch.body.faces.resize(kept);
    sketch.present.assign(kept, true);
}

void FlattenFaces(FacedBody& body) {
    std::vector<ContouredFace> triangles;
    std::erase_if(body.faces, [&](const ContouredFace& face) {
        const std::vector<std::int32_t>& contour = face.contours.front();
        if (face.contours.size() > 1 || contour.size() > MostClipped) {
            return false;
        }
        const Coordinate3D normal = DoubledNormal(body, contour);
        if (IsPlane(body, contour, normal)) {
            return false;
        }
        for (const std::array<std::int32_t, 3>& corner : CutContour(body, contour, normal)) {
            const auto vertex = [&](std::int32_t at) {
                return contour[static_cast<std::size_t>(at)];
            };
            triangles.push_back(
                {{{vertex(corner[0]), vertex(corner[1]), vertex(corner[2])}}, face.surface});
        }
        return true;
    });
    std::move(triangles.begin(), triangles.end(), std::back_inserter(body.faces));
}

bool IsMirrored(const ScriptFrame& frame) {
    const Coordinate3D x = {frame[0], frame[4], frame[8]};
    const Coordinate3D y = {frame[1], frame[5], frame[9]};
    const Coordinate3D z = {frame[2], frame[6], frame[10]};
    return Dot(Cross(x, y), z) < 0.0;
}

void MoveToPart(ShapeSketch& sketch, const ScriptFrame& frame) {
    for (Coordinate3D& vertex : sketch.body.vertices) {
        vertex = TransformPlace(frame, vertex);
    }
    for (auto& [begin, end] : sketch.wires) {
        begin = TransformPlace(frame, begin);
        end = TransformPlace(frame, end);
    }
    if (IsMirrored(frame)) {
        TurnFaces(sketch.body);
    }
}

} // namespace Merivane::Workbench
