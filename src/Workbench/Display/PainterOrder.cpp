#include "Workbench/Display/PainterOrder.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <queue>

#include "Workbench/Display/ViewBody.hpp"

// Painter's algorithm after Newell, Newell and Sancha: an order by pairwise tests, and cuts where
// there is none.
namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

constexpr double SameDepth = 1e-6;   // faces that touch do not cover each other [m]
constexpr double GoesThrough = 5e-4; // how far beyond each other faces are cut apart [m]
constexpr double Parallel = 1e-12;   // [m2]
constexpr double InsideSide = 1e-7;  // share of a side that counts as its inside

constexpr double Sliver = 1e-7; // smaller pieces are not cut off [m2]
constexpr double Apart = 1e-3;  // nearer places are not cut apart [m]
constexpr std::size_t MostFaces = 30000;
constexpr int MostRings = 2000;

struct Side {
    Coordinate from;
    Coordinate to;
};

struct Shape {
    std::vector<Side> sides;
    Coordinate low{HUGE_VAL, HUGE_VAL};
    Coordinate high{-HUGE_VAL, -HUGE_VAL};
    Coordinate inside;  // a place well inside it
    double depth = 0.0; // there
};

double DepthAt(const PaintedFace& face, const Coordinate& place) {
    return (face.offset - face.normal.x * place.x - face.normal.y * place.y) / face.normal.z;
}

// Half way between the two neighbouring heights of corners that are farthest apart.
double WidestHeight(const Shape& shape) {
    std::vector<double> heights;
    for (const Side& side : shape.sides) {
        heights.push_back(side.from.y);
    }
    std::sort(heights.begin(), heights.end());
    double widest = -1.0;
    double height = 0.0;
    for (std::size_t i = 0; i + 1 < heights.size(); ++i) {
        if (heights[i + 1] - heights[i] > widest) {
            widest = heights[i + 1] - heights[i];
            height = (heights[i] + heights[i + 1]) / 2.0;
        }
    }
    return height;
}

// The middle of the widest stretch of the face on that height.
Coordinate PlaceInside(const Shape& shape) {
    const double height = WidestHeight(shape);
    std::vector<double> places;
    for (const Side& side : shape.sides) {
        if ((side.from.y > height) != (side.to.y > height)) {
            places.push_back(side.from.x + (height - side.from.y) * (side.to.x - side.from.x) /
                                               (side.to.y - side.from.y));
        }
    }
    std::sort(places.begin(), places.end());
    Coordinate inside = shape.sides.empty() ? Coordinate{} : shape.sides.front().from;
    double widest = -1.0;
    for (std::size_t i = 0; i + 1 < places.size(); i += 2) {
        if (places[i + 1] - places[i] > widest) {
            widest = places[i + 1] - places[i];
            inside = {(places[i] + places[i + 1]) / 2.0, height};
        }
    }
    return inside;
}

Shape MakeShape(const PaintedFace& face) {
    Shape shape;
    for (const std::vector<Coordinate>& ring : face.rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            shape.sides.push_back({ring[i], ring[(i + 1) % ring.size()]});
            shape.low = {std::min(shape.low.x, ring[i].x), std::min(shape.low.y, ring[i].y)};
            shape.high = {std::max(shape.high.x, ring[i].x), std::max(shape.high.y, ring[i].y)};
        }
    }
    shape.inside = PlaceInside(shape);
    shape.depth = DepthAt(face, shape.inside);
    return shape;
}

// How much nearer one face is than another where they lie over each other. The difference of two
// planes is least and largest at the corners of what the two have in common on the paper.
struct Nearness {
    double least = 0.0;   // at most 0
    double largest = 0.0; // at least 0
    Coordinate leastPlace;
    Coordinate largestPlace;

    bool IsFarther() const { return -least > largest; }
    double Farthest() const { return IsFarther() ? least : largest; }
    Coordinate FarthestPlace() const { return IsFarther() ? leastPlace : largestPlace; }
    bool IsBoth() const { return least < -GoesThrough && largest > GoesThrough; }
};

class Comparison {
public:
    Comparison(const PaintedFace& first, const PaintedFace& second) : a(first), b(second) {}

    void LookAt(const Coordinate& place) {
        const double here = DepthAt(a, place) - DepthAt(b, place);
        if (here < found.least) {
            found.least = here;
            found.leastPlace = place;
        }
        if (here > found.largest) {
            found.largest = here;
            found.largestPlace = place;
        }
    }

    void LookAtCrossing(const Side& one, const Side& two) {
        const Coordinate r = {one.to.x - one.from.x, one.to.y - one.from.y};
        const Coordinate s = {two.to.x - two.from.x, two.to.y - two.from.y};
        const Coordinate q = {two.from.x - one.from.x, two.from.y - one.from.y};
        const double across = r.x * s.y - r.y * s.x;
        if (std::abs(across) <= Parallel) {
            return;
        }
        const double share = (q.x * s.y - q.y * s.x) / across;
        const double other = (q.x * r.y - q.y * r.x) / across;
        if (share > InsideSide && share < 1.0 - InsideSide && other > InsideSide &&
            other < 1.0 - InsideSide) {
            LookAt({one.from.x + share * r.x, one.from.y + share * r.y});
        }
    }

    Nearness Found() const { return found; }

private:
    const PaintedFace& a;
    const PaintedFace& b;
    Nearness found;
};

bool IsInBox(const Shape& shape, const Coordinate& place) {
    return place.x > shape.low.x && place.x < shape.high.x && place.y > shape.low.y &&
           place.y < shape.high.y;
}

// Looks at the corners of one face that lie inside the other.
void LookAtCorners(const Shape& corners, const PaintedFace& around, const Shape& aroundShape,
                   Comparison& comparison) {
    for (const Side& side : corners.sides) {
        if (IsInBox(aroundShape, side.from) && IsInside(around.rings, side.from)) {
            comparison.LookAt(side.from);
        }
    }
    if (IsInBox(aroundShape, corners.inside) && IsInside(around.rings, corners.inside)) {
        comparison.LookAt(corners.inside);
    }
}

Nearness Compare(const PaintedFace& a, const Shape& shapeA, const PaintedFace& b,
                 const Shape& shapeB) {
    Comparison comparison(a, b);
    for (const Side& one : shapeA.sides) {
        for (const Side& two : shapeB.sides) {
            comparison.LookAtCrossing(one, two);
        }
    }
    LookAtCorners(shapeA, b, shapeB, comparison);
    LookAtCorners(shapeB, a, shapeA, comparison);
    return comparison.Found();
}

// The part of a face where `side` of the place is above 0; `side` is linear.
PaintedFace Half(const PaintedFace& face, const std::function<double(const Coordinate&)>& side) {
    PaintedFace half;
    half.normal = face.normal;
    half.offset = face.offset;
    half.look = face.look;
    const auto between = [](const Coordinate& a, double atA, const Coordinate& b, double atB) {
        const double share = atA / (atA - atB);
        return Coordinate{a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)};
    };
    for (const std::vector<Coordinate>& ring : face.rings) {
        std::vector<Coordinate> kept;
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Coordinate& a = ring[i];
            const Coordinate& b = ring[(i + 1) % ring.size()];
            const double atA = side(a);
            const double atB = side(b);
            if (atA >= 0.0) {
                kept.push_back(a);
            }
            if ((atA >= 0.0) != (atB >= 0.0)) {
                kept.push_back(between(a, atA, b, atB));
            }
        }
        if (kept.size() > 2) {
            half.rings.push_back(std::move(kept));
        }
    }
    for (const auto& [a, b] : face.edges) {
        const double atA = side(a);
        const double atB = side(b);
        if (atA >= 0.0 || atB >= 0.0) {
            half.edges.emplace_back(atA >= 0.0 ? a : between(a, atA, b, atB),
                                    atB >= 0.0 ? b : between(a, atA, b, atB));
        }
    }
    return half;
}

// Of the rings of a face, holes taken off or not: a face without area has none in any ring.
bool HasArea(const PaintedFace& face) {
    double area = 0.0;
    for (const std::vector<Coordinate>& ring : face.rings) {
        for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
            area += ((ring[i].x - ring[0].x) * (ring[i + 1].y - ring[0].y) -
                     (ring[i].y - ring[0].y) * (ring[i + 1].x - ring[0].x)) /
                    2.0;
        }
    }
    return std::abs(area) > Sliver;
}

// The faces while their order is found: what is cut is given up, and its halves come behind.
class Sorter {
public:
    explicit Sorter(std::vector<PaintedFace> toPaint) {
        for (PaintedFace& face : toPaint) {
            Add(std::move(face));
        }
    }

    std::vector<PaintedFace> Run() {
        if (faces.size() <= MostFaces) {
            FindCoverings();
        }
        const std::vector<std::size_t> byDepth = Sorted();
        isPainting = true;
        for (const std::size_t face : byDepth) {
            if (waitsFor[face] == 0) {
                free.push(face);
            }
        }
        PaintFree();
        for (const std::size_t face : byDepth) {
            PaintLeft(face);
        }
        for (std::size_t half = 0; half < faces.size(); ++half) {
            PaintLeft(half);
        }
        std::vector<PaintedFace> sorted;
        for (const std::size_t face : order) {
            sorted.push_back(std::move(faces[face]));
        }
        return sorted;
    }

private:
    // The farthest first, of equals the earlier one.
    struct FartherFirst {
        const Sorter* sorter;
        bool operator()(std::size_t a, std::size_t b) const {
            return std::make_pair(sorter->shapes[a].depth, a) >
                   std::make_pair(sorter->shapes[b].depth, b);
        }
    };
    struct LeftFirst {
        const Sorter* sorter;
        bool operator()(std::size_t a, std::size_t b) const {
            return std::make_pair(sorter->shapes[a].low.x, a) >
                   std::make_pair(sorter->shapes[b].low.x, b);
        }
    };
    template <typename First>
    using Queue = std::priority_queue<std::size_t, std::vector<std::size_t>, First>;

    void Add(PaintedFace face) {
        shapes.push_back(MakeShape(face));
        faces.push_back(std::move(face));
        nearer.emplace_back();
        farther.emplace_back();
        waitsFor.push_back(0);
        givenUp.push_back(false);
        painted.push_back(false);
    }

    bool IsLeft(std::size_t face) const { return !painted[face] && !givenUp[face]; }

    std::vector<std::size_t> Sorted() const {
        std::vector<std::size_t> sorted;
        for (std::size_t face = 0; face < faces.size(); ++face) {
            if (!givenUp[face]) {
                sorted.push_back(face);
            }
        }
        const FartherFirst isLater{this};
        std::sort(sorted.begin(), sorted.end(),
                  [&](std::size_t a, std::size_t b) { return isLater(b, a); });
        return sorted;
    }

    // From left to right: the open faces reach as far as the one that is looked at.
    void FindCoverings() {
        Queue<LeftFirst> waiting(LeftFirst{this});
        for (std::size_t i = 0; i < faces.size(); ++i) {
            waiting.push(i);
        }
        std::vector<std::size_t> open;
        while (!waiting.empty()) {
            const std::size_t face = waiting.top();
            waiting.pop();
            std::erase_if(open, [&](std::size_t other) {
                return shapes[other].high.x <= shapes[face].low.x;
            });
            const std::size_t count = faces.size();
            bool isCut = false;
            for (std::size_t i = 0; i < open.size() && !isCut; ++i) {
                isCut = Relate(face, open[i]).IsBoth() && CutByPlane(face, open[i]);
            }
            if (isCut) {
                for (std::size_t half = count; half < faces.size(); ++half) {
                    waiting.push(half);
                }
            } else {
                open.push_back(face);
            }
        }
    }

    // Finds which of two faces has to come first.
    Nearness Relate(std::size_t face, std::size_t other) {
        if (shapes[other].high.y <= shapes[face].low.y ||
            shapes[face].high.y <= shapes[other].low.y ||
            shapes[other].high.x <= shapes[face].low.x ||
            shapes[face].high.x <= shapes[other].low.x) {
            return {};
        }
        const Nearness nearness = Compare(faces[face], shapes[face], faces[other], shapes[other]);
        if (std::abs(nearness.Farthest()) > SameDepth) {
            const std::size_t first = nearness.Farthest() > 0.0 ? other : face;
            const std::size_t later = nearness.Farthest() > 0.0 ? face : other;
            nearer[first].push_back(later);
            farther[later].push_back(first);
            ++waitsFor[later];
        }
        return nearness;
    }

    // Cuts a face where it goes through the plane of another.
    bool CutByPlane(std::size_t face, std::size_t by) {
        const PaintedFace plane = faces[by];
        const PaintedFace whole = faces[face];
        return Cut(face, [&](const Coordinate& place) {
            return DepthAt(whole, place) - DepthAt(plane, place);
        });
    }

    // Cuts a face half way between two places.
    bool CutBetween(std::size_t face, const Coordinate& a, const Coordinate& b) {
        const Coordinate middle = {(a.x + b.x) / 2.0, (a.y + b.y) / 2.0};
        return Cut(face, [&](const Coordinate& place) {
            return (place.x - middle.x) * (b.x - a.x) + (place.y - middle.y) * (b.y - a.y);
        });
    }

    // Cuts a face where `side`, which is linear, is 0; false where that would leave nothing on
    // either side.
    bool Cut(std::size_t face, const std::function<double(const Coordinate&)>& side) {
        if (faces.size() > MostFaces) {
            return false;
        }
        const PaintedFace whole = faces[face];
        PaintedFace one = Half(whole, side);
        PaintedFace other = Half(whole, [&side](const Coordinate& place) { return -side(place); });
        if (!HasArea(one) || !HasArea(other)) {
            return false;
        }
        givenUp[face] = true;
        for (const std::size_t later : nearer[face]) {
            Release(later);
        }
        Add(std::move(one));
        Add(std::move(other));
        return true;
    }

    void Release(std::size_t face) {
        if (--waitsFor[face] == 0 && isPainting) {
            free.push(face);
        }
    }

    void Paint(std::size_t face) {
        painted[face] = true;
        order.push_back(face);
        for (const std::size_t later : nearer[face]) {
            Release(later);
        }
    }

    void PaintFree() {
        while (!free.empty()) {
            const std::size_t face = free.top();
            free.pop();
            if (IsLeft(face) && waitsFor[face] == 0) { // halves may have come in front since
                Paint(face);
            }
        }
    }

    // Paints a face that still waits, and all that its being painted sets free.
    void PaintLeft(std::size_t face) {
        while (IsLeft(face)) {
            if (ringsBroken == MostRings || !BreakRing(face)) {
                Paint(face);
            }
            PaintFree();
        }
    }

    std::size_t FirstLeft(const std::vector<std::size_t>& candidates) const {
        for (const std::size_t face : candidates) {
            if (IsLeft(face)) {
                return face;
            }
        }
        return faces.size();
    }

    Coordinate PlaceOf(std::size_t a, std::size_t b) const {
        return Compare(faces[a], shapes[a], faces[b], shapes[b]).FarthestPlace();
    }

    // Faces that each wait for the next, and the last for the first.
    std::vector<std::size_t> FindRing(std::size_t face) const {
        std::vector<std::size_t> road;
        while (face < faces.size()) {
            const auto met = std::find(road.begin(), road.end(), face);
            if (met != road.end()) {
                return {met, road.end()};
            }
            road.push_back(face);
            face = FirstLeft(farther[face]);
        }
        return {};
    }

    // Cuts one face of the ring that keeps this one waiting, between the places where it lies over
    // the one and under the other; false where none can be cut.
    bool BreakRing(std::size_t face) {
        ++ringsBroken;
        const std::vector<std::size_t> ring = FindRing(face);
        const std::size_t count = faces.size();
        double widest = Apart;
        std::size_t chosen = ring.size();
        Coordinate over;
        Coordinate under;
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Coordinate a = PlaceOf(ring[i], ring[(i + 1) % ring.size()]);
            const Coordinate b = PlaceOf(ring[i], ring[(i + ring.size() - 1) % ring.size()]);
            const double apart = std::hypot(b.x - a.x, b.y - a.y);
            if (apart > widest) {
                widest = apart;
                chosen = i;
                over = a;
                under = b;
            }
        }
        const bool isCut = chosen < ring.size() && CutBetween(ring[chosen], over, under);
        for (std::size_t half = count; half < faces.size(); ++half) {
            for (std::size_t other = 0; other < half; ++other) {
                if (IsLeft(other)) {
                    Relate(half, other);
                }
            }
        }
        for (std::size_t half = count; half < faces.size(); ++half) {
            if (waitsFor[half] == 0) {
                free.push(half);
            }
        }
        return isCut;
    }

    std::vector<PaintedFace> faces;
    std::vector<Shape> shapes;
    std::vector<std::vector<std::size_t>> nearer; // than each: painted later
    std::vector<std::vector<std::size_t>> farther;
    std::vector<std::size_t> waitsFor;
    std::vector<bool> givenUp;
    std::vector<bool> painted;
    std::vector<std::size_t> order;
    bool isPainting = false;
    int ringsBroken = 0;
    Queue<FartherFirst> free{FartherFirst{this}};
};

} // namespace

std::vector<PaintedFace> PaintOrder(std::vector<PaintedFace> faces) {
    return Sorter(std::move(faces)).Run();
}

} // namespace Merivane::Workbench
