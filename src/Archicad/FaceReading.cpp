#include "Archicad/FaceReading.hpp"

#include <cstddef>
#include <cstdint>

namespace Merivane::Archicad {

namespace {

using Simulation::Point3D;

/// The vertex that an edge begins at, as it is walked; null for an edge that is not there.
const Host::Coordinate3D* BeginOf(const Host::Body& body, std::int32_t number) {
    const auto edge = static_cast<std::size_t>(std::int64_t{number} < 0 ? -std::int64_t{number}
                                                                        : std::int64_t{number});
    if (edge > body.edges.size()) {
        return nullptr;
    }
    const Host::BodyEdge& walked = body.edges[edge - 1];
    const std::int32_t vertex = number > 0 ? walked.from : walked.to;
    const bool known = vertex > 0 && static_cast<std::size_t>(vertex) <= body.vertices.size();
    return known ? &body.vertices[static_cast<std::size_t>(vertex - 1)] : nullptr;
}

} // namespace

Point3D PlaceInProject(const Host::Body& body, const Host::Coordinate3D& vertex) {
    const auto& t = body.transform;
    const auto row = [&](std::size_t at) {
        return t[at] * vertex.x + t[at + 1] * vertex.y + t[at + 2] * vertex.z + t[at + 3];
    };
    return {row(0), row(4), row(8)};
}

std::vector<std::vector<Point3D>> ReadContours(const Host::Body& body, const Host::BodyFace& face) {
    std::vector<std::vector<Point3D>> contours;
    std::vector<Point3D> contour;
    bool sound = true;
    const auto end = [&] {
        if (sound && contour.size() >= 3) {
            contours.push_back(contour);
        }
        contour.clear();
        sound = true;
    };
    for (const std::int32_t number : face.edges) {
        if (number == 0) {
            end();
        } else if (const Host::Coordinate3D* const vertex = BeginOf(body, number)) {
            contour.push_back(PlaceInProject(body, *vertex));
        } else {
            sound = false;
        }
    }
    end();
    return contours;
}

Point3D MeanPlace(const std::vector<Point3D>& places) {
    Point3D sum;
    for (const Point3D& place : places) {
        sum = {sum.x + place.x, sum.y + place.y, sum.z + place.z};
    }
    const double count = places.empty() ? 1.0 : static_cast<double>(places.size());
    return {sum.x / count, sum.y / count, sum.z / count};
}

} // namespace Merivane::Archicad
