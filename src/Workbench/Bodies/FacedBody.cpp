#include "Workbench/Bodies/FacedBody.hpp"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace Merivane::Workbench {

namespace {

/// An edge of the body that is being made, and which of its two directions are taken.
struct SharedEdge {
    std::int32_t number = 0; ///< from 1
    bool forwards = false;
    bool backwards = false;
};

/// Edges by their pair of vertices, the smaller number first.
class EdgeTable {
public:
    explicit EdgeTable(std::vector<Host::BodyEdge>& edges) : bodyEdges(edges) {}

    /// Number of an edge that runs from one vertex to another, negative for backwards.
    std::int32_t Walk(std::int32_t from, std::int32_t to) {
        const auto low = static_cast<std::uint64_t>(std::min(from, to));
        const auto high = static_cast<std::uint64_t>(std::max(from, to));
        std::vector<SharedEdge>& candidates = edgesByPair[low << 32U | high];
        for (SharedEdge& edge : candidates) {
            const bool along = bodyEdges[static_cast<std::size_t>(edge.number - 1)].from == from;
            bool& taken = along ? edge.forwards : edge.backwards;
            if (!taken) {
                taken = true;
                return along ? edge.number : -edge.number;
            }
        }
        bodyEdges.push_back({from, to});
        candidates.push_back({static_cast<std::int32_t>(bodyEdges.size()), true, false});
        return candidates.back().number;
    }

private:
    std::vector<Host::BodyEdge>& bodyEdges;
    std::unordered_map<std::uint64_t, std::vector<SharedEdge>> edgesByPair;
};

} // namespace

BodyTransform LiftBody(double level) {
    BodyTransform transform = UnmovedBody;
    transform[11] = level;
    return transform;
}

Host::Coordinate3D TransformPlace(const BodyTransform& transform, const Host::Coordinate3D& place) {
    const auto row = [&](std::size_t at) {
        return transform[at] * place.x + transform[at + 1] * place.y + transform[at + 2] * place.z +
               transform[at + 3];
    };
    return {row(0), row(4), row(8)};
}

Host::Body MakeBody(const FacedBody& faced, const BodyTransform& transform) {
    Host::Body body;
    body.vertices = faced.vertices;
    body.transform = transform;
    body.faces.reserve(faced.faces.size());
    EdgeTable edges(body.edges);
    for (const ContouredFace& face : faced.faces) {
        Host::BodyFace& made = body.faces.emplace_back();
        made.surface = face.surface;
        for (const std::vector<std::int32_t>& contour : face.contours) {
            if (!made.edges.empty()) {
                made.edges.push_back(0);
            }
            for (std::size_t i = 0; i < contour.size(); ++i) {
                const std::int32_t to = contour[(i + 1) % contour.size()];
                made.edges.push_back(edges.Walk(contour[i] + 1, to + 1));
            }
        }
    }
    return body;
}

std::int32_t FaceSurface(Host::AttributeIndex surface) {
    return surface.value > 0 ? surface.value : -1;
}

void TurnFaces(FacedBody& body) {
    for (ContouredFace& face : body.faces) {
        for (std::vector<std::int32_t>& contour : face.contours) {
            std::reverse(contour.begin(), contour.end());
        }
    }
}

} // namespace Merivane::Workbench
