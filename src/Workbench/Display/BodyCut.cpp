#include "Workbench/Display/BodyCut.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "Workbench/Bodies/PolygonRings.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr double SamePlace = 1e-9; // [m]
constexpr double NoArea = 1e-10;   // [m2]

// The places where the plane cuts edges, and which of them a face joins. Every edge of a closed
// body has two faces, so that walking from place to place comes back to where it began, whatever
// the rounding.
class Cutter {
public:
    Cutter(const ViewBody& viewBody, double depth)
        : body(viewBody), z(depth), joined(viewBody.edges.size()), walked(viewBody.edges.size()) {}

    BodyCut Run() {
        for (const ViewFace& face : body.faces) {
            JoinAcross(face);
        }
        BodyCut cut;
        for (std::size_t edge = 0; edge < joined.size(); ++edge) {
            if (joined[edge].size() == 1 && !walked[edge]) { // an open end first
                AddLine(Walk(edge), cut);
            }
        }
        for (std::size_t edge = 0; edge < joined.size(); ++edge) {
            if (!joined[edge].empty() && !walked[edge]) {
                AddRing(Walk(edge), cut);
            }
        }
        return cut;
    }

private:
    const Coordinate3D& Vertex(std::int32_t index) const {
        return body.vertices[static_cast<std::size_t>(index)];
    }

    bool IsCut(std::size_t edge) const {
        return (Vertex(body.edges[edge].from).z >= z) != (Vertex(body.edges[edge].to).z >= z);
    }

    Coordinate PlaceOn(std::size_t edge) const {
        const Coordinate3D& a = Vertex(body.edges[edge].from);
        const Coordinate3D& b = Vertex(body.edges[edge].to);
        const double share = (z - a.z) / (b.z - a.z);
        return {a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)};
    }

    // A face is entered and left in turn by the line in which the plane meets it.
    void JoinAcross(const ViewFace& face) {
        std::vector<std::pair<double, std::size_t>> places;
        for (const std::int32_t signedEdge : face.edges) {
            const auto edge = static_cast<std::size_t>(signedEdge);
            if (IsCut(edge)) {
                const Coordinate place = PlaceOn(edge);
                places.emplace_back(place.x * face.normal.y - place.y * face.normal.x, edge);
            }
        }
        std::sort(places.begin(), places.end());
        for (std::size_t i = 0; i + 1 < places.size(); i += 2) {
            joined[places[i].second].push_back(places[i + 1].second);
            joined[places[i + 1].second].push_back(places[i].second);
        }
    }

    std::vector<Coordinate> Walk(std::size_t edge) {
        std::vector<Coordinate> places;
        bool onwards = true;
        while (onwards) {
            walked[edge] = true;
            const Coordinate place = PlaceOn(edge);
            if (places.empty() || !AreSame(places.back(), place)) {
                places.push_back(place);
            }
            onwards = false;
            for (const std::size_t next : joined[edge]) {
                if (!walked[next]) {
                    edge = next;
                    onwards = true;
                    break;
                }
            }
        }
        return places;
    }

    static bool AreSame(const Coordinate& a, const Coordinate& b) {
        return std::hypot(a.x - b.x, a.y - b.y) < SamePlace;
    }

    static void AddLine(std::vector<Coordinate> places, BodyCut& cut) {
        if (places.size() > 1) {
            cut.lines.push_back(std::move(places));
        }
    }

    static void AddRing(std::vector<Coordinate> places, BodyCut& cut) {
        while (places.size() > 1 && AreSame(places.front(), places.back())) {
            places.pop_back();
        }
        if (places.size() > 2 && std::abs(SignedArea(places)) > NoArea) {
            cut.rings.push_back(std::move(places));
        }
    }

    const ViewBody& body;
    double z;
    std::vector<std::vector<std::size_t>> joined; // of each edge, those whose places follow
    std::vector<bool> walked;
};

} // namespace

BodyCut CutBody(const ViewBody& body, double z) {
    return Cutter(body, z).Run();
}

} // namespace Merivane::Workbench
