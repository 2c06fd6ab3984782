#include "Archicad/HoleJoining.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>

#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/SurfaceGeometry.hpp"

// Holes are joined from the right to the left (Eberly, Triangulation by Ear Clipping): from the
// rightmost vertex P of a hole a ray runs to the right until it meets the ring. An end M of the
// side met there is seen from P unless a vertex of the ring lies in the triangle between; then the
// one nearest in angle to the ray is. Coordinates (u, v) are two of the three of space, so that
// equal places stay equal; seen so, the outline is counter-clockwise.
namespace Merivane::Archicad {

namespace {

using Simulation::Point2D;
using Simulation::Point3D;

/// Places nearer than this touch [m].
constexpr double Touching = 1e-7;

struct Vertex {
    Point2D flat;
    Point3D place;
};

using Ring = std::vector<Vertex>;

/// Twice the area of the triangle a, b, c, above 0 when it turns counter-clockwise.
double Turn(Point2D a, Point2D b, Point2D c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

double SquaredDistance(Point2D a, Point2D b) {
    return (b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y);
}

double SignedArea(const Ring& ring) {
    double area = 0.0;
    for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
        area += Turn(ring[0].flat, ring[i].flat, ring[i + 1].flat) / 2.0;
    }
    return area;
}

/// The two coordinates along which a face with this normal is widest.
Point2D Flatten(const Point3D& place, const Point3D& normal) {
    const double x = std::abs(normal.x);
    const double y = std::abs(normal.y);
    const double z = std::abs(normal.z);
    if (z >= x && z >= y) {
        return normal.z > 0.0 ? Point2D{place.x, place.y} : Point2D{place.y, place.x};
    }
    if (x >= y) {
        return normal.x > 0.0 ? Point2D{place.y, place.z} : Point2D{place.z, place.y};
    }
    return normal.y > 0.0 ? Point2D{place.z, place.x} : Point2D{place.x, place.z};
}

std::vector<Point2D> FlatOf(const Ring& ring) {
    std::vector<Point2D> places;
    for (const Vertex& vertex : ring) {
        places.push_back(vertex.flat);
    }
    return places;
}

/// A contour that is to be joined.
struct Island {
    Ring ring; ///< from its rightmost vertex; clockwise for a hole
    bool isHole = true;
};

/// True when most places of a contour, those on its border aside, lie inside another.
bool LiesInside(const Ring& ring, const Simulation::Polygon2D& other) {
    int votes = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point2D a = ring[i].flat;
        const Point2D b = ring[(i + 1) % ring.size()].flat;
        for (const Point2D place : {a, Point2D{(a.x + b.x) / 2.0, (a.y + b.y) / 2.0}}) {
            if (DistanceToBoundary(other, place) > Touching) {
                votes += IsInsidePolygon(other, place) ? 1 : -1;
            }
        }
    }
    return votes > 0;
}

bool BoxHolds(const Simulation::Bounds2D& outer, const Simulation::Bounds2D& inner) {
    return inner.minimum.x >= outer.minimum.x - Touching &&
           inner.minimum.y >= outer.minimum.y - Touching &&
           inner.maximum.x <= outer.maximum.x + Touching &&
           inner.maximum.y <= outer.maximum.y + Touching;
}

/// Contours behind the first, the rightmost first, each turned as its depth wants it.
std::vector<Island> SortIslands(const std::vector<Ring>& contours) {
    std::vector<Simulation::Polygon2D> polygons;
    std::vector<Simulation::Bounds2D> boxes;
    for (const Ring& contour : contours) {
        polygons.push_back({FlatOf(contour), {}});
        boxes.push_back(OuterBounds(polygons.back()));
    }
    std::vector<Island> islands;
    for (std::size_t i = 1; i < contours.size(); ++i) {
        Island island{contours[i], true};
        for (std::size_t j = 1; j < contours.size(); ++j) {
            if (i != j && BoxHolds(boxes[j], boxes[i]) && LiesInside(contours[i], polygons[j])) {
                island.isHole = !island.isHole;
            }
        }
        if ((SignedArea(island.ring) < 0.0) != island.isHole) {
            std::reverse(island.ring.begin(), island.ring.end());
        }
        const auto rightmost = std::max_element(
            island.ring.begin(), island.ring.end(), [](const Vertex& a, const Vertex& b) {
                return a.flat.x != b.flat.x ? a.flat.x < b.flat.x : a.flat.y < b.flat.y;
            });
        std::rotate(island.ring.begin(), rightmost, island.ring.end());
        islands.push_back(std::move(island));
    }
    std::stable_sort(islands.begin(), islands.end(), [](const Island& a, const Island& b) {
        const Point2D p = a.ring[0].flat;
        const Point2D q = b.ring[0].flat;
        return p.x != q.x ? p.x > q.x : p.y > q.y;
    });
    return islands;
}

class Joiner {
public:
    explicit Joiner(Ring outline) : ring(std::move(outline)) {}

    void Join(const Island& island) {
        if (!JoinAtTouch(island)) {
            const std::size_t at = FindSeen(island);
            std::vector<Vertex> walk = {ring[at]};
            walk.insert(walk.end(), island.ring.begin(), island.ring.end());
            walk.push_back(island.ring[0]);
            Insert(at, walk);
        }
    }

    const Ring& Joined() const { return ring; }

private:
    /// Puts a walk that begins at a vertex's place before that vertex.
    void Insert(std::size_t at, const std::vector<Vertex>& walk) {
        ring.insert(ring.begin() + static_cast<std::ptrdiff_t>(at), walk.begin(), walk.end());
    }

    Point2D Before(std::size_t at) const { return ring[(at + ring.size() - 1) % ring.size()].flat; }
    Point2D After(std::size_t at) const { return ring[(at + 1) % ring.size()].flat; }

    /// True when a vertex looks towards `place` on the side of the ring that an island lies on:
    /// inside for a hole, outside, within a hole, for what is covered again.
    bool LooksTo(std::size_t at, Point2D place, bool inside) const {
        const Point2D vertex = ring[at].flat;
        const bool sharp = Turn(Before(at), vertex, After(at)) >= 0.0;
        const double first = Turn(Before(at), vertex, place);
        const double second = Turn(vertex, After(at), place);
        if (inside) {
            return sharp ? first >= 0.0 && second >= 0.0 : first >= 0.0 || second >= 0.0;
        }
        return sharp ? first <= 0.0 || second <= 0.0 : first <= 0.0 && second <= 0.0;
    }

    /// Joins without a cut where the island's first vertex lies on the ring.
    bool JoinAtTouch(const Island& island) {
        const Point2D start = island.ring[0].flat;
        std::size_t corner = ring.size();
        std::size_t side = ring.size();
        for (std::size_t i = 0; i < ring.size(); ++i) {
            if (SquaredDistance(ring[i].flat, start) <= Touching * Touching) {
                if (corner == ring.size() || LooksTo(i, island.ring[1].flat, island.isHole)) {
                    corner = i;
                }
            } else if (Simulation::SquaredDistance({ring[i].flat, After(i)}, start) <=
                           Touching * Touching &&
                       SquaredDistance(After(i), start) > Touching * Touching) {
                side = i;
            }
        }
        if (corner < ring.size()) {
            // The vertex of the ring stands for the island's own, once on the way there.
            std::vector<Vertex> walk = island.ring;
            walk[0] = ring[corner];
            Insert(corner, walk);
            return true;
        }
        if (side < ring.size()) {
            std::vector<Vertex> walk = island.ring;
            walk.push_back(island.ring[0]);
            Insert(side + 1, walk);
            return true;
        }
        return false;
    }

    /// The side that a ray to the right meets first; its farther end is returned, with the place.
    std::size_t MeetRay(const Island& island, Point2D& met) const {
        const Point2D start = island.ring[0].flat;
        std::size_t best = ring.size();
        met.x = std::numeric_limits<double>::infinity();
        met.y = start.y;
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Point2D low = island.isHole ? ring[i].flat : After(i);
            const Point2D high = island.isHole ? After(i) : ring[i].flat;
            if (!(low.y <= start.y && start.y <= high.y && low.y < high.y)) {
                continue;
            }
            const double x = Simulation::CrossingX(low, high, start.y);
            if (x >= start.x && x < met.x) {
                met.x = x;
                best = ring[i].flat.x > After(i).x ? i : (i + 1) % ring.size();
            }
        }
        return best;
    }

    /// The vertex of the ring that a cut from the island's first vertex goes to.
    std::size_t FindSeen(const Island& island) const {
        const Point2D start = island.ring[0].flat;
        Point2D met;
        const std::size_t far = MeetRay(island, met);
        if (far == ring.size()) {
            return FindNearest(start);
        }
        const Point2D end = ring[far].flat;
        const double side = end.y >= start.y ? 1.0 : -1.0;
        const double farthest = std::max(met.x, end.x);
        std::size_t seen = ring.size();
        double smallest = std::numeric_limits<double>::infinity();
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Point2D place = ring[i].flat;
            const bool between = place.x >= start.x && place.x <= farthest &&
                                 side * Turn(start, met, place) >= 0.0 &&
                                 side * Turn(met, end, place) >= 0.0 &&
                                 side * Turn(end, start, place) >= 0.0;
            const bool isEnd = place == end;
            if ((!between && !isEnd) || !LooksTo(i, start, island.isHole)) {
                continue;
            }
            const double angle = std::abs(place.y - start.y) / (place.x - start.x);
            const bool nearer = seen == ring.size() || angle < smallest ||
                                (angle <= smallest && SquaredDistance(place, start) <
                                                          SquaredDistance(ring[seen].flat, start));
            if (nearer) {
                seen = i;
                smallest = angle;
            }
        }
        return seen == ring.size() ? far : seen;
    }

    /// For an island that lies outside of the ring, which no sound face has.
    std::size_t FindNearest(Point2D start) const {
        const auto nearest =
            std::min_element(ring.begin(), ring.end(), [&](const Vertex& a, const Vertex& b) {
                return SquaredDistance(a.flat, start) < SquaredDistance(b.flat, start);
            });
        return static_cast<std::size_t>(nearest - ring.begin());
    }

    Ring ring;
};

} // namespace

std::vector<Point3D> JoinHoles(const std::vector<std::vector<Point3D>>& contours) {
    if (contours.empty()) {
        return {};
    }
    const Point3D normal = Simulation::NewellNormal(contours[0]);
    if (contours.size() == 1 || (normal.x == 0.0 && normal.y == 0.0 && normal.z == 0.0)) {
        return contours[0];
    }
    std::vector<Ring> rings;
    for (const std::vector<Point3D>& contour : contours) {
        Ring ring;
        for (const Point3D& place : contour) {
            ring.push_back({Flatten(place, normal), place});
        }
        if (ring.size() >= 3 || rings.empty()) {
            rings.push_back(std::move(ring));
        }
    }
    Joiner joiner(rings[0]);
    for (const Island& island : SortIslands(rings)) {
        joiner.Join(island);
    }
    std::vector<Point3D> joined;
    for (const Vertex& vertex : joiner.Joined()) {
        joined.push_back(vertex.place);
    }
    return joined;
}

} // namespace Merivane::Archicad
