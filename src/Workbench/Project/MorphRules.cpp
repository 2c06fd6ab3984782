#include "Workbench/Project/MorphRules.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <set>
#include <utility>
#include <vector>

namespace Merivane::Workbench {

namespace {

using Ring = std::vector<std::int32_t>;
using WalkedEdges = std::set<std::pair<std::int32_t, std::int32_t>>;

bool IsFinite(const Host::Coordinate3D& place) {
    return std::isfinite(place.x) && std::isfinite(place.y) && std::isfinite(place.z);
}

Host::ErrorCode CheckRing(const Host::MorphBody& body, const Ring& ring, WalkedEdges& walked) {
    const auto count = static_cast<std::int32_t>(body.vertices.size());
    if (ring.size() < 3) {
        return Host::BadPolygon;
    }
    if (std::any_of(ring.begin(), ring.end(),
                    [count](std::int32_t vertex) { return vertex < 0 || vertex >= count; })) {
        return Host::BadIndex;
    }
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const std::int32_t from = ring[i];
        const std::int32_t to = ring[(i + 1) % ring.size()];
        if (body.vertices[static_cast<std::size_t>(from)] ==
                body.vertices[static_cast<std::size_t>(to)] ||
            !walked.emplace(from, to).second) {
            return Host::BadPolygon;
        }
    }
    return Host::NoError;
}

} // namespace

Host::ErrorCode CheckMorphBody(const Project& project, const Host::MorphBody& body) {
    if (body.faces.empty() || !std::all_of(body.vertices.begin(), body.vertices.end(), IsFinite)) {
        return Host::BadPolygon;
    }
    WalkedEdges walked; // each direction of an edge once: so it has two faces at most
    for (const Host::MorphBody::Face& face : body.faces) {
        if (face.contours.empty()) {
            return Host::BadPolygon;
        }
        if (face.surface.value != 0 && !project.surfaces.contains(face.surface.value)) {
            return Host::BadIndex;
        }
        for (const Ring& ring : face.contours) {
            if (const Host::ErrorCode code = CheckRing(body, ring, walked)) {
                return code;
            }
        }
    }
    return Host::NoError;
}

} // namespace Merivane::Workbench
