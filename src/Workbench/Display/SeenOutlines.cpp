#include "Workbench/Display/SeenOutlines.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;
using Host::Coordinate3D;

constexpr double EdgeOn = 1e-6;  // a face whose normal's z is less shows no area
constexpr double Length = 1e-7;  // shorter lines are dots [m]
constexpr double InFront = 1e-6; // what covers a line is nearer by more than this [m]
constexpr double SameShare = 1e-9;

struct Box {
    Coordinate low{HUGE_VAL, HUGE_VAL};
    Coordinate high{-HUGE_VAL, -HUGE_VAL};

    void Add(const Coordinate& place) {
        low = {std::min(low.x, place.x), std::min(low.y, place.y)};
        high = {std::max(high.x, place.x), std::max(high.y, place.y)};
    }
    bool Meets(const Box& other) const {
        return low.x <= other.high.x && other.low.x <= high.x && low.y <= other.high.y &&
               other.low.y <= high.y;
    }
};

// A face that the viewer sees: what may cover a line.
struct Cover {
    std::vector<std::vector<Coordinate>> rings;
    Box box;
    Coordinate3D normal;
    double offset = 0.0; // of its plane: normal . place

    double DepthAt(const Coordinate& place) const {
        return (offset - normal.x * place.x - normal.y * place.y) / normal.z;
    }
};

struct Line {
    Coordinate3D from;
    Coordinate3D to;
    Box box;
};

std::size_t At(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

bool FacesViewer(const ViewBody& body, const ViewFace& face) {
    return body.closed ? face.normal.z > EdgeOn : std::abs(face.normal.z) > EdgeOn;
}

// True when the edge is a border of what faces the viewer, or a crease in it.
bool IsDrawn(const ViewBody& body, const ViewEdge& edge) {
    int facing = 0;
    for (const std::int32_t face : edge.faces) {
        facing += face >= 0 && FacesViewer(body, body.faces[At(face)]) ? 1 : 0;
    }
    return facing == 1 || (facing == 2 && IsSharp(body, edge));
}

// Takes away what is nearer than `nearest`; false when nothing is left to be seen.
bool ClipLine(Line& line, double nearest) {
    Coordinate3D& a = line.from.z <= line.to.z ? line.from : line.to;
    Coordinate3D& b = line.from.z <= line.to.z ? line.to : line.from;
    if (a.z > nearest) {
        return false;
    }
    if (b.z > nearest) {
        const double share = (nearest - a.z) / (b.z - a.z);
        b = {a.x + share * (b.x - a.x), a.y + share * (b.y - a.y), nearest};
    }
    line.box.Add({a.x, a.y});
    line.box.Add({b.x, b.y});
    return std::hypot(b.x - a.x, b.y - a.y) > Length;
}

std::vector<Line> CollectLines(const std::vector<ViewBody>& bodies, double nearest) {
    std::vector<Line> lines;
    for (const ViewBody& body : bodies) {
        for (const ViewEdge& edge : body.edges) {
            Line line{body.vertices[At(edge.from)], body.vertices[At(edge.to)], {}};
            if (IsDrawn(body, edge) && ClipLine(line, nearest)) {
                lines.push_back(line);
            }
        }
    }
    return lines;
}

std::vector<Cover> CollectCovers(const std::vector<ViewBody>& bodies) {
    std::vector<Cover> covers;
    for (const ViewBody& body : bodies) {
        for (const ViewFace& face : body.faces) {
            if (FacesViewer(body, face)) {
                Cover cover{FlatRings(body, face), {}, face.normal, 0.0};
                for (const Coordinate& place : cover.rings.front()) {
                    cover.box.Add(place);
                }
                cover.offset = Dot(face.normal, body.vertices[At(face.contours.front().front())]);
                covers.push_back(std::move(cover));
            }
        }
    }
    return covers;
}

// Where along `line` the other crosses it on the paper, as a share of its length.
void AddCrossing(const Line& line, const Line& other, std::vector<double>& shares) {
    const Coordinate r = {line.to.x - line.from.x, line.to.y - line.from.y};
    const Coordinate s = {other.to.x - other.from.x, other.to.y - other.from.y};
    const Coordinate q = {other.from.x - line.from.x, other.from.y - line.from.y};
    const double across = r.x * s.y - r.y * s.x;
    const double small = SameShare * std::hypot(r.x, r.y) * std::hypot(s.x, s.y);
    if (std::abs(across) > small) {
        const double share = (q.x * s.y - q.y * s.x) / across;
        const double otherShare = (q.x * r.y - q.y * r.x) / across;
        if (share > 0.0 && share < 1.0 && otherShare >= -SameShare &&
            otherShare <= 1.0 + SameShare) {
            shares.push_back(share);
        }
    } else {
        const double length = r.x * r.x + r.y * r.y;
        for (const Coordinate3D& end : {other.from, other.to}) { // lines that run on each other
            shares.push_back(std::clamp(
                ((end.x - line.from.x) * r.x + (end.y - line.from.y) * r.y) / length, 0.0, 1.0));
        }
    }
}

Coordinate3D OnLine(const Line& line, double share) {
    return {line.from.x + share * (line.to.x - line.from.x),
            line.from.y + share * (line.to.y - line.from.y),
            line.from.z + share * (line.to.z - line.from.z)};
}

bool IsCovered(const std::vector<Cover>& covers, const Coordinate3D& place, double nearest) {
    const Coordinate flat = {place.x, place.y};
    Box box;
    box.Add(flat);
    return std::any_of(covers.begin(), covers.end(), [&](const Cover& cover) {
        if (!cover.box.Meets(box)) {
            return false;
        }
        const double depth = cover.DepthAt(flat);
        return depth > place.z + InFront && depth <= nearest + InFront &&
               IsInside(cover.rings, flat);
    });
}

} // namespace

std::vector<std::pair<Coordinate, Coordinate>> SeenOutlines(const std::vector<ViewBody>& bodies,
                                                            double nearest) {
    const std::vector<Line> lines = CollectLines(bodies, nearest);
    const std::vector<Cover> covers = CollectCovers(bodies);
    std::vector<std::pair<Coordinate, Coordinate>> seen;
    for (const Line& line : lines) {
        std::vector<double> shares = {0.0, 1.0};
        for (const Line& other : lines) {
            if (&other != &line && other.box.Meets(line.box)) {
                AddCrossing(line, other, shares);
            }
        }
        std::sort(shares.begin(), shares.end());
        bool goesOn = false;
        for (std::size_t i = 0; i + 1 < shares.size(); ++i) {
            if (shares[i + 1] - shares[i] <= SameShare) {
                continue;
            }
            const bool visible =
                !IsCovered(covers, OnLine(line, (shares[i] + shares[i + 1]) / 2.0), nearest);
            const Coordinate3D end = OnLine(line, shares[i + 1]);
            if (visible && goesOn) {
                seen.back().second = {end.x, end.y};
            } else if (visible) {
                const Coordinate3D begin = OnLine(line, shares[i]);
                seen.push_back({{begin.x, begin.y}, {end.x, end.y}});
            }
            goesOn = visible;
        }
    }
    return seen;
}

} // namespace Merivane::Workbench
