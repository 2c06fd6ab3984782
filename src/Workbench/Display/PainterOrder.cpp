#include "Workbench/Display/PainterOrder.hpp"

#include <algorithm>
#include <cmath>
#include <queue>
#include <utility>

#include "Workbench/Display/ViewBody.hpp"

namespace Merivane::Workbench {

namespace {

using Host::Coordinate;

constexpr double SameDepth = 1e-6; // faces that touch do not cover each other [m]
constexpr double Parallel = 1e-12;
constexpr double InsideSide = 1e-7; // share of a side that counts as its inside
// Looking for pairs would take too long beyond: such a model is ordered by the middles alone.
constexpr std::size_t MostFaces = 30000;

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

// The middle of the widest stretch of the face on the height that is farthest from any corner.
Coordinate PlaceInside(const Shape& shape) {
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
    std::vector<double> places;
    for (const Side& side : shape.sides) {
        if ((side.from.y > height) != (side.to.y > height)) {
            places.push_back(side.from.x + (height - side.from.y) * (side.to.x - side.from.x) /
                                               (side.to.y - side.from.y));
        }
    }
    std::sort(places.begin(), places.end());
    Coordinate inside = shape.sides.empty() ? Coordinate{} : shape.sides.front().from;
    widest = -1.0;
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

// How much nearer `a` is than `b` where they lie over each other: at the place of those that are
// looked at where they are farthest apart.
class Comparison {
public:
    Comparison(const PaintedFace& first, const PaintedFace& second) : a(first), b(second) {}

    void LookAt(const Coordinate& place) {
        const double here = DepthAt(a, place) - DepthAt(b, place);
        farthest = std::abs(here) > std::abs(farthest) ? here : farthest;
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

    double Farthest() const { return farthest; }

private:
    const PaintedFace& a;
    const PaintedFace& b;
    double farthest = 0.0;
};

double NearerBy(const PaintedFace& a, const Shape& shapeA, const PaintedFace& b,
                const Shape& shapeB) {
    Comparison comparison(a, b);
    for (const Side& one : shapeA.sides) {
        for (const Side& two : shapeB.sides) {
            comparison.LookAtCrossing(one, two);
        }
    }
    if (comparison.Farthest() == 0.0) { // one inside the other, or the same on the paper
        if (IsInside(b.rings, shapeA.inside)) {
            comparison.LookAt(shapeA.inside);
        }
        if (IsInside(a.rings, shapeB.inside)) {
            comparison.LookAt(shapeB.inside);
        }
    }
    return comparison.Farthest();
}

// For each face those that have to be painted behind it, by going from left to right.
std::vector<std::vector<std::size_t>> FindCoverings(const std::vector<PaintedFace>& faces,
                                                    const std::vector<Shape>& shapes) {
    std::vector<std::vector<std::size_t>> nearer(faces.size());
    if (faces.size() > MostFaces) {
        return nearer;
    }
    std::vector<std::size_t> order(faces.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        order[i] = i;
    }
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return shapes[a].low.x < shapes[b].low.x; });
    std::vector<std::size_t> open;
    for (const std::size_t face : order) {
        const Shape& shape = shapes[face];
        std::erase_if(open, [&](std::size_t o) { return shapes[o].high.x <= shape.low.x; });
        for (const std::size_t other : open) {
            if (shapes[other].high.y <= shape.low.y || shape.high.y <= shapes[other].low.y) {
                continue;
            }
            const double by = NearerBy(faces[face], shape, faces[other], shapes[other]);
            if (by > SameDepth) {
                nearer[other].push_back(face);
            } else if (by < -SameDepth) {
                nearer[face].push_back(other);
            }
        }
        open.push_back(face);
    }
    return nearer;
}

} // namespace

std::vector<std::size_t> PaintOrder(const std::vector<PaintedFace>& faces) {
    std::vector<Shape> shapes;
    shapes.reserve(faces.size());
    for (const PaintedFace& face : faces) {
        shapes.push_back(MakeShape(face));
    }
    const std::vector<std::vector<std::size_t>> nearer = FindCoverings(faces, shapes);
    std::vector<std::size_t> waitsFor(faces.size(), 0);
    for (const std::vector<std::size_t>& later : nearer) {
        for (const std::size_t face : later) {
            ++waitsFor[face];
        }
    }
    // Kahn's order, the farthest of the free faces first. Where none is free the farthest of all
    // that are left breaks the ring.
    const auto isLater = [&](std::size_t a, std::size_t b) {
        return std::make_pair(shapes[a].depth, a) > std::make_pair(shapes[b].depth, b);
    };
    std::vector<std::size_t> byDepth(faces.size());
    std::priority_queue<std::size_t, std::vector<std::size_t>, decltype(isLater)> free(isLater);
    for (std::size_t i = 0; i < faces.size(); ++i) {
        byDepth[i] = i;
        if (waitsFor[i] == 0) {
            free.push(i);
        }
    }
    std::sort(byDepth.begin(), byDepth.end(),
              [&](std::size_t a, std::size_t b) { return isLater(b, a); });
    std::vector<bool> painted(faces.size());
    std::vector<std::size_t> order;
    std::size_t next = 0; // in `byDepth`
    while (order.size() < faces.size()) {
        while (painted[byDepth[next]] && next + 1 < byDepth.size()) {
            ++next;
        }
        const std::size_t face = free.empty() ? byDepth[next] : free.top();
        if (!free.empty()) {
            free.pop();
        }
        if (painted[face]) {
            continue;
        }
        painted[face] = true;
        order.push_back(face);
        for (const std::size_t later : nearer[face]) {
            if (--waitsFor[later] == 0) {
                free.push(later);
            }
        }
    }
    return order;
}

} // namespace Merivane::Workbench
