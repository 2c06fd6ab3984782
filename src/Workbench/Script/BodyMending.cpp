#include "Workbench/Script/BodyMending.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <unordered_map>
#include <utility>

#include "Workbench/Script/BodyClipping.hpp"
#include "Workbench/Script/BoxTree.hpp"
#include "Workbench/Script/FaceSplitting.hpp"
#include "Workbench/Script/ShapeSketch.hpp"
#include "Workbench/Script/ShapeVectors.hpp"
#include "Workbench/Script/SolidProbe.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate3D;
using Contour = std::vector<std::int32_t>;
using Side = std::pair<std::int32_t, std::int32_t>;

const Coordinate3D& PlaceOf(const FacedBody& body, std::int32_t vertex) {
    return body.vertices[static_cast<std::size_t>(vertex)];
}

/// Within this two places are one [m]: more where numbers are too large for less.
double JoiningDistance(const FacedBody& body) {
    constexpr double share = 1e-12;
    double farthest = 0.0;
    for (const Coordinate3D& vertex : body.vertices) {
        farthest = std::max({farthest, std::abs(vertex.x), std::abs(vertex.y), std::abs(vertex.z)});
    }
    return SamePlace + share * farthest;
}

std::uint64_t CellKey(std::int64_t x, std::int64_t y, std::int64_t z) {
    constexpr std::uint64_t first = 0x9E3779B97F4A7C15U;
    constexpr std::uint64_t second = 0xC2B2AE3D27D4EB4FU;
    constexpr std::uint64_t third = 0x165667B19E3779F9U;
    const auto mixed = static_cast<std::uint64_t>(x) * first ^
                       static_cast<std::uint64_t>(y) * second ^
                       static_cast<std::uint64_t>(z) * third;
    return mixed ^ (mixed >> 29U);
}

/// For each vertex the first one in its place.
std::vector<std::int32_t> FirstInPlace(const FacedBody& body, double joining) {
    const double cell = 2.0 * joining;
    std::unordered_map<std::uint64_t, std::vector<std::int32_t>> cells;
    cells.reserve(body.vertices.size());
    std::vector<std::int32_t> first(body.vertices.size());
    const auto level = [&](double number, double shift) {
        return static_cast<std::int64_t>(std::floor((number + shift) / cell));
    };
    for (std::size_t i = 0; i < first.size(); ++i) {
        const Coordinate3D& place = body.vertices[i];
        first[i] = static_cast<std::int32_t>(i);
        // What is near lies in a cell that a corner of the box around the place is in.
        for (int corner = 0; corner < 8 && first[i] == static_cast<std::int32_t>(i); ++corner) {
            const auto shift = [&](int bit) { return (corner & bit) != 0 ? joining : -joining; };
            const auto found = cells.find(CellKey(
                level(place.x, shift(1)), level(place.y, shift(2)), level(place.z, shift(4))));
            if (found == cells.end()) {
                continue;
            }
            for (const std::int32_t other : found->second) {
                if (Length(Difference(place, PlaceOf(body, other))) <= joining) {
                    first[i] = other;
                    break;
                }
            }
        }
        if (first[i] == static_cast<std::int32_t>(i)) {
            cells[CellKey(level(place.x, 0.0), level(place.y, 0.0), level(place.z, 0.0))].push_back(
                first[i]);
        }
    }
    return first;
}

/// Takes out vertices that follow on themselves, and sides that are walked there and back.
void DropSpikes(Contour& contour) {
    Contour kept;
    kept.reserve(contour.size());
    for (const std::int32_t vertex : contour) {
        if (!kept.empty() && kept.back() == vertex) {
            continue;
        }
        if (kept.size() > 1 && kept[kept.size() - 2] == vertex) {
            kept.pop_back();
            continue;
        }
        kept.push_back(vertex);
    }
    while (kept.size() > 1) {
        if (kept.front() == kept.back() || kept[kept.size() - 2] == kept.front()) {
            kept.pop_back();
        } else if (kept.size() > 2 && kept[1] == kept.back()) {
            kept.erase(kept.begin());
        } else {
            break;
        }
    }
    contour = kept.size() > 2 ? std::move(kept) : Contour{};
}

/// The vertices on a side, between its ends and in its order.
class SideVertices {
public:
    SideVertices(const FacedBody& wholeBody, double joiningDistance)
        : body(wholeBody), joining(joiningDistance) {
        std::vector<bool> used(body.vertices.size());
        for (const ContouredFace& face : body.faces) {
            for (const Contour& contour : face.contours) {
                for (const std::int32_t vertex : contour) {
                    used[static_cast<std::size_t>(vertex)] = true;
                }
            }
        }
        std::vector<SpaceBox> boxes;
        for (std::size_t i = 0; i < used.size(); ++i) {
            if (used[i]) {
                numbers.push_back(static_cast<std::int32_t>(i));
                boxes.push_back({body.vertices[i], body.vertices[i]});
            }
        }
        tree = BuildBoxTree(std::move(boxes));
    }

    /// Walked from the smaller number to the larger: both faces of a side get the same.
    const Contour& On(std::int32_t low, std::int32_t high) {
        const auto [found, isNew] =
            known.try_emplace(static_cast<std::uint64_t>(static_cast<std::uint32_t>(low)) << 32U |
                              static_cast<std::uint32_t>(high));
        if (isNew) {
            Collect(low, high, found->second);
        }
        return found->second;
    }

    /// How many vertices were looked at since the last time.
    std::size_t TakeLooks() { return std::exchange(looks, 0); }

private:
    void Collect(std::int32_t low, std::int32_t high, Contour& on) {
        const Coordinate3D& begin = PlaceOf(body, low);
        const Coordinate3D way = Difference(PlaceOf(body, high), begin);
        const double squared = Dot(way, way);
        SpaceBox box;
        Enclose(box, begin);
        Enclose(box, PlaceOf(body, high));
        std::vector<std::int32_t> near;
        FindBoxes(tree, box, joining, near);
        looks += near.size() + 1;
        std::vector<std::pair<double, std::int32_t>> shares;
        for (const std::int32_t at : near) {
            const std::int32_t vertex = numbers[static_cast<std::size_t>(at)];
            const Coordinate3D off = Difference(PlaceOf(body, vertex), begin);
            const double share = Dot(off, way) / squared;
            if (vertex != low && vertex != high && share > 0.0 && share < 1.0 &&
                Length(Difference(off, Scaled(way, share))) <= joining) {
                shares.emplace_back(share, vertex);
            }
        }
        std::sort(shares.begin(), shares.end());
        for (const auto& entry : shares) {
            on.push_back(entry.second);
        }
    }

    const FacedBody& body;
    double joining;
    std::vector<std::int32_t> numbers; ///< of the tree's boxes
    BoxTree tree;
    std::size_t looks = 0;
    std::unordered_map<std::uint64_t, Contour> known;
};

void ReplaceVertices(FacedBody& body, const std::vector<std::int32_t>& first) {
    for (ContouredFace& face : body.faces) {
        for (Contour& contour : face.contours) {
            for (std::int32_t& vertex : contour) {
                vertex = first[static_cast<std::size_t>(vertex)];
            }
            contour.erase(std::unique(contour.begin(), contour.end()), contour.end());
        }
    }
}

bool FillSides(FacedBody& body, double joining, SolidBudget& budget) {
    SideVertices sides(body, joining);
    for (ContouredFace& face : body.faces) {
        for (Contour& contour : face.contours) {
            Contour filled;
            filled.reserve(contour.size());
            for (std::size_t i = 0; i < contour.size(); ++i) {
                const std::int32_t from = contour[i];
                const std::int32_t to = contour[(i + 1) % contour.size()];
                filled.push_back(from);
                if (from == to) {
                    continue;
                }
                const Contour& on = sides.On(std::min(from, to), std::max(from, to));
                if (!Spend(budget, sides.TakeLooks())) {
                    return false;
                }
                if (from < to) {
                    filled.insert(filled.end(), on.begin(), on.end());
                } else {
                    filled.insert(filled.end(), on.rbegin(), on.rend());
                }
            }
            DropSpikes(filled);
            contour = std::move(filled);
        }
    }
    return true;
}

/// Takes out contours that nothing is left of. False for a face that has lost its outline.
bool DropEmptyContours(ContouredFace& face) {
    const auto isEmpty = [](const Contour& contour) { return contour.size() < 3; };
    if (face.contours.empty() || isEmpty(face.contours.front())) {
        return false;
    }
    std::erase_if(face.contours, isEmpty);
    return true;
}

void DropEmptyFaces(FacedBody& body) {
    std::erase_if(body.faces, [](ContouredFace& face) { return !DropEmptyContours(face); });
}

/// The sides of some faces that no other of them walks the other way.
std::vector<Side> OuterSides(const std::vector<ContouredFace>& faces) {
    std::map<Side, int> walked;
    for (const ContouredFace& face : faces) {
        for (const Contour& contour : face.contours) {
            for (std::size_t i = 0; i < contour.size(); ++i) {
                ++walked[{contour[i], contour[(i + 1) % contour.size()]}];
            }
        }
    }
    std::vector<Side> sides;
    for (const auto& [side, count] : walked) {
        const auto back = walked.find({side.second, side.first});
        const int left = count - (back == walked.end() ? 0 : back->second);
        sides.insert(sides.end(), static_cast<std::size_t>(std::max(0, left)), side);
    }
    return sides;
}

/// Joins sides into contours. Where several go on, the one farthest to the left: so contours that
/// only touch stay apart. Empty where a contour doesn't close.
std::vector<Contour> JoinSides(const FacedBody& body, const Coordinate3D& normal,
                               const std::vector<Side>& sides) {
    std::unordered_map<std::int32_t, std::vector<std::size_t>> leaving;
    for (std::size_t i = 0; i < sides.size(); ++i) {
        leaving[sides[i].first].push_back(i);
    }
    const auto wayOf = [&](std::size_t side) {
        return Difference(PlaceOf(body, sides[side].second), PlaceOf(body, sides[side].first));
    };
    const Coordinate3D up = Unit(normal);
    std::vector<bool> used(sides.size());
    std::vector<Contour> contours;
    for (std::size_t first = 0; first < sides.size(); ++first) {
        Contour contour;
        for (std::size_t at = first; !used[at];) {
            used[at] = true;
            contour.push_back(sides[at].first);
            const Coordinate3D way = wayOf(at);
            std::size_t next = sides.size();
            double leftmost = 0.0;
            for (const std::size_t other : leaving[sides[at].second]) {
                const Coordinate3D on = wayOf(other);
                const double turn = std::atan2(Dot(Cross(way, on), up), Dot(way, on));
                if ((!used[other] || other == first) && (next == sides.size() || turn > leftmost)) {
                    next = other;
                    leftmost = turn;
                }
            }
            if (next == sides.size()) {
                return {};
            }
            at = next;
        }
        if (!contour.empty()) {
            contours.push_back(std::move(contour));
        }
    }
    return contours;
}

/// Pieces of one face as few faces; the pieces where that can't be told.
std::vector<ContouredFace> JoinPieces(const FacedBody& body, std::vector<ContouredFace> pieces) {
    if (pieces.size() < 2) {
        return pieces;
    }
    Coordinate3D normal;
    for (const ContouredFace& piece : pieces) {
        normal = Sum(normal, DoubledNormal(body, piece.contours.front()));
    }
    std::vector<ContouredFace> joined = NestContours(
        body, normal, JoinSides(body, normal, OuterSides(pieces)), pieces.front().surface);
    const bool told = !joined.empty() &&
                      std::all_of(joined.begin(), joined.end(), [&](const ContouredFace& face) {
                          return Dot(DoubledNormal(body, face.contours.front()), normal) > 0.0;
                      });
    return told ? joined : pieces;
}

void JoinAllPieces(BodyPieces& pieces) {
    std::map<std::int32_t, std::vector<ContouredFace>> byOrigin;
    for (std::size_t i = 0; i < pieces.origins.size(); ++i) {
        ContouredFace& face = pieces.body.faces[i];
        if (DropEmptyContours(face)) {
            byOrigin[pieces.origins[i]].push_back(std::move(face));
        }
    }
    pieces.body.faces.clear();
    pieces.origins.clear();
    for (auto& [origin, faces] : byOrigin) {
        for (ContouredFace& face : JoinPieces(pieces.body, std::move(faces))) {
            pieces.body.faces.push_back(std::move(face));
            pieces.origins.push_back(origin);
        }
    }
}

/// The vertices that a vertex has sides to, for the new ones.
std::vector<Contour> NeighboursOfNew(const BodyPieces& pieces) {
    std::vector<Contour> neighbours(pieces.body.vertices.size());
    for (const ContouredFace& face : pieces.body.faces) {
        for (const Contour& contour : face.contours) {
            for (std::size_t i = 0; i < contour.size(); ++i) {
                const auto at = static_cast<std::size_t>(contour[i]);
                if (!pieces.isNew[at]) {
                    continue;
                }
                for (const std::size_t beside : {i + 1, i + contour.size() - 1}) {
                    const std::int32_t other = contour[beside % contour.size()];
                    if (std::find(neighbours[at].begin(), neighbours[at].end(), other) ==
                        neighbours[at].end()) {
                        neighbours[at].push_back(other);
                    }
                }
            }
        }
    }
    return neighbours;
}

/// Takes out new vertices at which no side turns.
void DropStraightVertices(BodyPieces& pieces, double joining) {
    FacedBody& body = pieces.body;
    std::vector<Contour> neighbours = NeighboursOfNew(pieces);
    std::vector<bool> gone(body.vertices.size());
    const auto replace = [&](std::int32_t of, std::int32_t vertex, std::int32_t by) {
        Contour& known = neighbours[static_cast<std::size_t>(of)];
        std::replace(known.begin(), known.end(), vertex, by);
    };
    const auto knows = [&](std::int32_t of, std::int32_t vertex) {
        const Contour& known = neighbours[static_cast<std::size_t>(of)];
        return std::find(known.begin(), known.end(), vertex) != known.end();
    };
    for (std::size_t i = 0; i < neighbours.size(); ++i) {
        if (neighbours[i].size() != 2) {
            continue;
        }
        const std::int32_t before = neighbours[i][0];
        const std::int32_t after = neighbours[i][1];
        const Coordinate3D way = Difference(PlaceOf(body, after), PlaceOf(body, before));
        const Coordinate3D off = Difference(body.vertices[i], PlaceOf(body, before));
        if (Length(Cross(way, off)) > joining * Length(way) || knows(before, after) ||
            knows(after, before)) {
            continue;
        }
        gone[i] = true;
        replace(before, static_cast<std::int32_t>(i), after);
        replace(after, static_cast<std::int32_t>(i), before);
    }
    for (ContouredFace& face : body.faces) {
        for (Contour& contour : face.contours) {
            std::erase_if(contour, [&](std::int32_t vertex) {
                return gone[static_cast<std::size_t>(vertex)];
            });
        }
    }
}

} // namespace

bool JoinVertices(FacedBody& body, SolidBudget& budget) {
    const double joining = JoiningDistance(body);
    ReplaceVertices(body, FirstInPlace(body, joining));
    if (!FillSides(body, joining, budget)) {
        return false;
    }
    DropEmptyFaces(body);
    DropUnusedVertices(body);
    return true;
}

bool MendPieces(BodyPieces& pieces, SolidBudget& budget) {
    FacedBody& body = pieces.body;
    constexpr std::size_t rounds = 16; // over all vertices, from here to the end
    if (!Spend(budget, rounds * body.vertices.size())) {
        return false;
    }
    const double joining = JoiningDistance(body);
    const std::vector<std::int32_t> first = FirstInPlace(body, joining);
    for (std::size_t i = 0; i < first.size(); ++i) {
        if (!pieces.isNew[i]) {
            pieces.isNew[static_cast<std::size_t>(first[i])] = false;
        }
    }
    ReplaceVertices(body, first);
    if (!FillSides(body, joining, budget)) {
        return false;
    }
    JoinAllPieces(pieces);
    DropStraightVertices(pieces, joining);
    DropEmptyFaces(body);
    DropUnusedVertices(body);
    return true;
}

} // namespace Merivane::Workbench
