#include "Workbench/Script/FaceTurning.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "Workbench/Script/BodyClipping.hpp"
#include "Workbench/Script/ShapeSketch.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

/// A face at one of its sides.
struct SideUse {
    std::size_t face = 0;
    bool forwards = false; ///< from the vertex with the smaller number
};

using SideTable = std::unordered_map<std::uint64_t, std::vector<SideUse>>;

template <typename Visit> void VisitSides(const ContouredFace& face, Visit visit) {
    for (const std::vector<std::int32_t>& contour : face.contours) {
        for (std::size_t i = 0; i < contour.size(); ++i) {
            const std::int32_t from = contour[i];
            const std::int32_t to = contour[(i + 1) % contour.size()];
            const auto low = static_cast<std::uint32_t>(std::min(from, to));
            const auto high = static_cast<std::uint32_t>(std::max(from, to));
            visit(static_cast<std::uint64_t>(low) << 32U | high, from < to);
        }
    }
}

void TurnFace(ContouredFace& face) {
    for (std::vector<std::int32_t>& contour : face.contours) {
        std::reverse(contour.begin(), contour.end());
    }
}

/// Six times the volume that a face spans with a point.
double SpannedVolume(const FacedBody& body, const ContouredFace& face,
                     const Host::Coordinate3D& point) {
    double volume = 0.0;
    for (const std::vector<std::int32_t>& contour : face.contours) {
        const auto first = static_cast<std::size_t>(contour[0]);
        volume += Dot(DoubledNormal(body, contour), Difference(body.vertices[first], point));
    }
    return volume;
}

/// Turns the faces that hang together with `first` to agree with it, and gives them all.
std::vector<std::size_t> AgreeWith(std::size_t first, FacedBody& body, const SideTable& sides,
                                   std::vector<bool>& seen, bool& isOpen) {
    std::vector<std::size_t> piece = {first};
    std::vector<bool> turned = {false};
    seen[first] = true;
    for (std::size_t at = 0; at < piece.size(); ++at) {
        VisitSides(body.faces[piece[at]], [&](std::uint64_t side, bool forwards) {
            // The table knows the faces as they came.
            const bool walked = turned[at] != forwards;
            const std::vector<SideUse>& uses = sides.at(side);
            isOpen = isOpen || uses.size() != 2;
            if (uses.size() != 2) {
                return;
            }
            const SideUse& other = uses[uses[0].face == piece[at] ? 1 : 0];
            if (!seen[other.face]) {
                seen[other.face] = true;
                piece.push_back(other.face);
                turned.push_back(other.forwards == walked);
            }
        });
    }
    for (std::size_t at = 0; at < piece.size(); ++at) {
        if (turned[at]) {
            TurnFace(body.faces[piece[at]]);
        }
    }
    return piece;
}

} // namespace

void AgreeOnOutside(FacedBody& body) {
    if (body.faces.empty()) {
        return;
    }
    const Host::Coordinate3D origin = body.vertices.front();
    if (IsClosedBody(body)) {
        double volume = 0.0;
        for (const ContouredFace& face : body.faces) {
            volume += SpannedVolume(body, face, origin);
        }
        if (volume < 0.0) {
            TurnFaces(body);
        }
        return;
    }
    SideTable sides;
    for (std::size_t face = 0; face < body.faces.size(); ++face) {
        VisitSides(body.faces[face], [&](std::uint64_t side, bool forwards) {
            sides[side].push_back({face, forwards});
        });
    }
    std::vector<bool> seen(body.faces.size());
    for (std::size_t first = 0; first < body.faces.size(); ++first) {
        if (seen[first]) {
            continue;
        }
        bool isOpen = false;
        const std::vector<std::size_t> piece = AgreeWith(first, body, sides, seen, isOpen);
        double volume = 0.0;
        for (const std::size_t face : piece) {
            volume += SpannedVolume(body, body.faces[face], origin);
        }
        if (!isOpen && volume < 0.0) {
            for (const std::size_t face : piece) {
                TurnFace(body.faces[face]);
            }
        }
    }
}

} // namespace Merivane::Workbench
