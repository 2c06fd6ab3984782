#include "Archicad/ObjectPreview.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <variant>

#include "Archicad/FaceReading.hpp"
#include "Archicad/ModelReadingZones.hpp"
#include "Host/Model3D.hpp"
#include "Host/Stories.hpp"
#include "Simulation/SurfaceGeometry.hpp"

// A face's normal is Newell's sum over its outline; two faces lie in one plane, and the edge
// between them is none of the outline, when the angle between their normals is under a degree.
namespace Merivane::Archicad {

namespace {

using Host::Coordinate3D;
using Simulation::Point3D;

constexpr double CosineOfFlat = 0.99985; // of one degree
constexpr double NoNormal = 1e-18;       // doubled area of a face, squared [m4]

/// Where and how a part is placed, to bring the project's places back into its own coordinates.
struct Placement {
    Coordinate3D position; ///< [m]
    double cosine = 1.0;
    double sine = 0.0;
    bool mirrored = false;
};

/// Placing mirrors, turns, then moves: undone the other way round.
Coordinate3D ToPart(const Placement& placement, const Point3D& p) {
    const double x = p.x - placement.position.x;
    const double y = p.y - placement.position.y;
    const double turnedX = placement.cosine * x + placement.sine * y;
    const double turnedY = placement.cosine * y - placement.sine * x;
    return {placement.mirrored ? -turnedX : turnedX, turnedY, p.z - placement.position.z};
}

/// What the faces beside an edge tell of it.
struct EdgeSides {
    int faces = 0;
    Point3D normal; ///< of the first face, length 1
    bool flat = true;
};

void CountFace(const Host::Body& body, const Host::BodyFace& face, std::vector<EdgeSides>& sides) {
    const auto contours = ReadContours(body, face);
    if (contours.empty()) {
        return;
    }
    const Point3D sum = Simulation::NewellNormal(contours.front());
    const double squared = sum.x * sum.x + sum.y * sum.y + sum.z * sum.z;
    if (!(squared > NoNormal)) {
        return;
    }
    const double length = std::sqrt(squared);
    const Point3D normal{sum.x / length, sum.y / length, sum.z / length};
    for (const std::int32_t walked : face.edges) {
        const auto number = static_cast<std::size_t>(std::abs(std::int64_t{walked}));
        if (number == 0 || number > sides.size()) {
            continue;
        }
        EdgeSides& side = sides[number - 1];
        if (side.faces == 0) {
            side.normal = normal;
        }
        const double cosine =
            side.normal.x * normal.x + side.normal.y * normal.y + side.normal.z * normal.z;
        side.flat = side.flat && cosine > CosineOfFlat;
        side.faces += 1;
    }
}

/// An edge between faces that together are one plane is none that anybody sees.
bool IsSeen(const EdgeSides& side) {
    return side.faces < 2 || !side.flat;
}

void Widen(ObjectPreview& preview, const Coordinate3D& p) {
    preview.lowest = {std::min(preview.lowest.x, p.x), std::min(preview.lowest.y, p.y),
                      std::min(preview.lowest.z, p.z)};
    preview.highest = {std::max(preview.highest.x, p.x), std::max(preview.highest.y, p.y),
                       std::max(preview.highest.z, p.z)};
}

void AddBody(const Host::Body& body, const Placement& placement, ObjectPreview& preview) {
    std::vector<Coordinate3D> places;
    places.reserve(body.vertices.size());
    for (const Coordinate3D& vertex : body.vertices) {
        places.push_back(ToPart(placement, PlaceInProject(body, vertex)));
        Widen(preview, places.back());
    }
    preview.geometryRead = preview.geometryRead || !places.empty();
    std::vector<EdgeSides> sides(body.edges.size());
    for (const Host::BodyFace& face : body.faces) {
        CountFace(body, face, sides);
    }
    const auto isVertex = [&places](std::int32_t number) {
        return number >= 1 && static_cast<std::size_t>(number) <= places.size();
    };
    for (std::size_t i = 0; i < body.edges.size(); ++i) {
        const Host::BodyEdge& edge = body.edges[i];
        if (isVertex(edge.from) && isVertex(edge.to) && IsSeen(sides[i])) {
            preview.edges.push_back({places[static_cast<std::size_t>(edge.from) - 1],
                                     places[static_cast<std::size_t>(edge.to) - 1]});
        }
    }
}

bool FindPlacement(const Host::Element& element, Placement& placement) {
    const auto* const object = std::get_if<Host::ObjectData>(&element.data);
    std::vector<Host::Story> stories;
    std::int16_t activeFloor = 0;
    double storyLevel = 0.0;
    if (object == nullptr || Host::GetStories(stories, activeFloor) != Host::NoError ||
        !FindStoryLevel(stories, element.header.floorIndex, storyLevel)) {
        return false;
    }
    placement = {{object->position.x, object->position.y, storyLevel + object->level},
                 std::cos(object->angle),
                 std::sin(object->angle),
                 object->mirrored};
    return true;
}

} // namespace

ObjectPreview BuildObjectPreview(const Host::Element& element) {
    Placement placement;
    std::vector<Host::Body> bodies;
    if (!FindPlacement(element, placement) ||
        Host::GetBodies(element.header.guid, bodies) != Host::NoError) {
        return {};
    }
    constexpr double far = std::numeric_limits<double>::infinity();
    ObjectPreview preview;
    preview.lowest = {far, far, far};
    preview.highest = {-far, -far, -far};
    for (const Host::Body& body : bodies) {
        AddBody(body, placement, preview);
    }
    return preview.geometryRead ? preview : ObjectPreview{};
}

} // namespace Merivane::Archicad
