#include "Workbench/Script/FaceSplitting.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "Workbench/Bodies/PolygonRings.hpp"
#include "Workbench/Script/ShapeSketch.hpp"
#include "Workbench/Script/ShapeVectors.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate3D;
using Contour = std::vector<std::int32_t>;

const Coordinate3D& PlaceOf(const PlaneCut& cut, std::int32_t vertex) {
    return cut.body.vertices[static_cast<std::size_t>(vertex)];
}

/// Where an edge that crosses the plane meets it.
std::int32_t CrossingVertex(PlaneCut& cut, std::int32_t a, std::int32_t b) {
    const std::int32_t near = IsBeyond(cut, a) ? b : a;
    const std::int32_t far = near == a ? b : a;
    const double nearDistance = cut.distances[static_cast<std::size_t>(near)];
    if (nearDistance == 0.0) {
        return near;
    }
    const std::uint64_t key = static_cast<std::uint64_t>(static_cast<std::uint32_t>(near)) << 32U |
                              static_cast<std::uint32_t>(far);
    const auto [found, isNew] = cut.newVertices.try_emplace(key, 0);
    if (isNew) {
        const double farDistance = cut.distances[static_cast<std::size_t>(far)];
        const double share = nearDistance / (nearDistance - farDistance);
        const Coordinate3D from = PlaceOf(cut, near);
        found->second = static_cast<std::int32_t>(cut.body.vertices.size());
        cut.body.vertices.push_back(Sum(from, Scaled(Difference(PlaceOf(cut, far), from), share)));
        cut.distances.push_back(0.0);
    }
    return found->second;
}

/// A stretch of a contour on one side of the plane, with the crossings at its ends.
struct Chain {
    Contour vertices;
    double begin = 0.0; ///< places of the ends along the line in which face and plane meet
    double end = 0.0;
};

/// The contour's stretches on one side. The contour crosses the plane.
void CollectChains(PlaneCut& cut, const Contour& contour, bool beyond, std::vector<Chain>& chains) {
    const std::size_t count = contour.size();
    std::size_t start = 0;
    while (IsBeyond(cut, contour[start]) == beyond ||
           IsBeyond(cut, contour[(start + 1) % count]) != beyond) {
        ++start;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const std::int32_t here = contour[(start + i) % count];
        const std::int32_t next = contour[(start + i + 1) % count];
        const bool hereWanted = IsBeyond(cut, here) == beyond;
        const bool nextWanted = IsBeyond(cut, next) == beyond;
        if (hereWanted == nextWanted) {
            if (hereWanted) {
                chains.back().vertices.push_back(next);
            }
            continue;
        }
        const std::int32_t crossing = CrossingVertex(cut, here, next);
        if (nextWanted) {
            chains.push_back({{crossing, next}});
        } else {
            chains.back().vertices.push_back(crossing);
        }
    }
}

/// Joins chains into closed contours along the plane: sorted along the line, each stretch of it
/// that lies in the face runs from where a chain ends to where one begins, or the other way round.
std::vector<Contour> JoinChains(const PlaneCut& cut, const Coordinate3D& line,
                                std::vector<Chain>& chains, std::vector<FaceParts::Seam>* seams) {
    struct Crossing {
        double place;
        bool isEnd;
        std::size_t chain;
    };
    std::vector<Crossing> crossings;
    for (std::size_t i = 0; i < chains.size(); ++i) {
        crossings.push_back({Dot(PlaceOf(cut, chains[i].vertices.front()), line), false, i});
        crossings.push_back({Dot(PlaceOf(cut, chains[i].vertices.back()), line), true, i});
    }
    std::stable_sort(crossings.begin(), crossings.end(), [](const auto& a, const auto& b) {
        return a.place != b.place ? a.place < b.place : !a.isEnd && b.isEnd;
    });
    // The chain that follows on each one's end.
    std::vector<std::size_t> following(chains.size());
    std::vector<std::size_t> begins;
    std::vector<std::size_t> ends;
    for (const Crossing& crossing : crossings) {
        std::vector<std::size_t>& others = crossing.isEnd ? begins : ends;
        if (others.empty()) {
            (crossing.isEnd ? ends : begins).push_back(crossing.chain);
            continue;
        }
        following[crossing.isEnd ? crossing.chain : others.back()] =
            crossing.isEnd ? others.back() : crossing.chain;
        others.pop_back();
    }
    std::vector<Contour> contours;
    std::vector<bool> joined(chains.size());
    for (std::size_t first = 0; first < chains.size(); ++first) {
        Contour contour;
        for (std::size_t at = first; !joined[at]; at = following[at]) {
            joined[at] = true;
            contour.insert(contour.end(), chains[at].vertices.begin(), chains[at].vertices.end());
            const std::int32_t from = chains[at].vertices.back();
            const std::int32_t to = chains[following[at]].vertices.front();
            if (seams != nullptr && from != to) {
                seams->push_back({from, to});
            }
        }
        contour.erase(std::unique(contour.begin(), contour.end()), contour.end());
        while (contour.size() > 1 && contour.front() == contour.back()) {
            contour.pop_back();
        }
        if (contour.size() > 2) {
            contours.push_back(std::move(contour));
        }
    }
    return contours;
}

/// A contour in the coordinates of its plane: those two axes that the normal is least along.
PlanRing Projected(const FacedBody& body, const Coordinate3D& normal, const Contour& contour) {
    const double sizes[] = {std::abs(normal.x), std::abs(normal.y), std::abs(normal.z)};
    const auto along = std::max_element(std::begin(sizes), std::end(sizes)) - std::begin(sizes);
    PlanRing ring;
    ring.reserve(contour.size());
    for (const std::int32_t vertex : contour) {
        const Coordinate3D& place = body.vertices[static_cast<std::size_t>(vertex)];
        if (along == 0) {
            ring.push_back({place.y, normal.x > 0.0 ? place.z : -place.z});
        } else if (along == 1) {
            ring.push_back({place.z, normal.y > 0.0 ? place.x : -place.x});
        } else {
            ring.push_back({place.x, normal.z > 0.0 ? place.y : -place.y});
        }
    }
    return ring;
}

bool Surrounds(const PlanRing& ring, Host::Coordinate point) {
    bool inside = false;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Host::Coordinate a = ring[i];
        const Host::Coordinate b = ring[(i + 1) % ring.size()];
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) {
            inside = !inside;
        }
    }
    return inside;
}

} // namespace

PlaneCut StartCut(FacedBody& body, const CuttingPlane& plane) {
    constexpr double onPlane = 1e-9; // m, beside the share of the distance from the plane's point
    constexpr double share = 1e-12;
    PlaneCut cut{body, Unit(plane.normal), {}};
    cut.distances.reserve(body.vertices.size());
    for (const Coordinate3D& vertex : body.vertices) {
        const Coordinate3D way = Difference(vertex, plane.point);
        const double distance = Dot(way, cut.normal);
        const bool on = std::abs(distance) <= onPlane + share * Length(way);
        cut.distances.push_back(on ? 0.0 : distance);
    }
    return cut;
}

bool IsBeyond(const PlaneCut& cut, std::int32_t vertex) {
    return cut.distances[static_cast<std::size_t>(vertex)] > 0.0;
}

FaceParts SplitFace(PlaneCut& cut, const ContouredFace& face, bool both) {
    FaceParts parts;
    std::vector<Chain> keptChains;
    std::vector<Chain> goneChains;
    std::vector<Contour> kept;
    std::vector<Contour> gone;
    const Coordinate3D normal = DoubledNormal(cut.body, face.contours.front());
    for (const Contour& contour : face.contours) {
        const auto beyond = std::count_if(contour.begin(), contour.end(), [&](std::int32_t vertex) {
            return IsBeyond(cut, vertex);
        });
        if (beyond == 0) {
            kept.push_back(contour);
        } else if (static_cast<std::size_t>(beyond) == contour.size()) {
            gone.push_back(contour);
        } else {
            CollectChains(cut, contour, false, keptChains);
            if (both) {
                CollectChains(cut, contour, true, goneChains);
            }
        }
    }
    if (keptChains.empty()) {
        // The outline lies on one side, and its holes with it.
        std::vector<ContouredFace>& whole = kept.empty() ? parts.gone : parts.kept;
        whole.push_back(face);
        return parts;
    }
    const Coordinate3D line = Cross(cut.normal, normal);
    for (Contour& contour : JoinChains(cut, line, keptChains, &parts.seams)) {
        kept.push_back(std::move(contour));
    }
    parts.kept = NestContours(cut.body, normal, std::move(kept), face.surface);
    if (both) {
        for (Contour& contour : JoinChains(cut, Scaled(line, -1.0), goneChains, nullptr)) {
            gone.push_back(std::move(contour));
        }
        parts.gone = NestContours(cut.body, normal, std::move(gone), face.surface);
    }
    return parts;
}

std::vector<ContouredFace> NestContours(const FacedBody& body, const Coordinate3D& normal,
                                        std::vector<Contour> contours, std::int32_t surface) {
    struct Outline {
        PlanRing ring;
        double area;
    };
    std::vector<ContouredFace> faces;
    std::vector<Outline> outlines;
    std::vector<Contour> holes;
    for (Contour& contour : contours) {
        PlanRing ring = Projected(body, normal, contour);
        const double area = SignedArea(ring);
        if (area < 0.0) {
            holes.push_back(std::move(contour));
            continue;
        }
        faces.push_back({{std::move(contour)}, surface});
        outlines.push_back({std::move(ring), area});
    }
    for (Contour& hole : holes) {
        const PlanRing ring = Projected(body, normal, hole);
        std::size_t owner = faces.size();
        double smallest = std::numeric_limits<double>::infinity();
        for (std::size_t i = 0; i < outlines.size(); ++i) {
            const bool around = outlines.size() == 1 ||
                                std::all_of(ring.begin(), ring.end(), [&](Host::Coordinate point) {
                                    return Surrounds(outlines[i].ring, point);
                                });
            if (around && outlines[i].area < smallest) {
                smallest = outlines[i].area;
                owner = i;
            }
        }
        if (owner < faces.size()) {
            faces[owner].contours.push_back(std::move(hole));
        } else {
            faces.push_back({{std::move(hole)}, surface});
        }
    }
    return faces;
}

} // namespace Merivane::Workbench
