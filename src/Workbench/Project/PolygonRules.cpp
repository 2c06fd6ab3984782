#include "Workbench/Project/PolygonRules.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <set>
#include <vector>

namespace Merivane::Workbench {

namespace {

using Host::Contour;
using Host::Coordinate;

constexpr double NoLength = 1e-9; // two places nearer than this are one [m]
constexpr double WholeTurn = 2.0 * std::numbers::pi;

bool IsFinite(const Coordinate& place) {
    return std::isfinite(place.x) && std::isfinite(place.y);
}

bool IsBuildable(const Contour& contour, std::size_t fewest, std::size_t sides) {
    if (contour.vertices.size() < fewest ||
        !std::all_of(contour.vertices.begin(), contour.vertices.end(), IsFinite)) {
        return false;
    }
    std::set<std::size_t> bent;
    return std::all_of(
        contour.arcs.begin(), contour.arcs.end(), [&bent, sides](const Host::PolygonArc& arc) {
            return arc.from < sides && bent.insert(arc.from).second && std::isfinite(arc.angle) &&
                   arc.angle != 0.0 && std::abs(arc.angle) < WholeTurn;
        });
}

/// A side of a contour; `next` is the side that begins where this one ends.
struct Side {
    Coordinate begin;
    Coordinate end;
    std::size_t next = 0;
    double left = 0.0;
    double right = 0.0;
};

std::vector<Side> CollectSides(const Host::Polygon& polygon) {
    std::vector<Side> sides;
    for (const Contour& contour : polygon) {
        const std::size_t first = sides.size();
        const std::size_t count = contour.vertices.size();
        for (std::size_t i = 0; i < count; ++i) {
            const Coordinate& a = contour.vertices[i];
            const Coordinate& b = contour.vertices[(i + 1) % count];
            sides.push_back(
                {a, b, first + (i + 1) % count, std::min(a.x, b.x), std::max(a.x, b.x)});
        }
    }
    return sides;
}

// Twice the area of the triangle, positive where c lies to the left of the line from a to b.
double Turn(const Coordinate& a, const Coordinate& b, const Coordinate& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

double Length(const Side& side) {
    return std::hypot(side.end.x - side.begin.x, side.end.y - side.begin.y);
}

// Distance of a place from the side's line, positive to the left.
double Offset(const Side& side, const Coordinate& place) {
    return Turn(side.begin, side.end, place) / Length(side);
}

// Place along the side's line, from its begin [m].
double Along(const Side& side, const Coordinate& place) {
    return ((place.x - side.begin.x) * (side.end.x - side.begin.x) +
            (place.y - side.begin.y) * (side.end.y - side.begin.y)) /
           Length(side);
}

bool AreApart(double a, double b) {
    return (a > NoLength && b < -NoLength) || (a < -NoLength && b > NoLength);
}

bool IsSame(const Coordinate& a, const Coordinate& b) {
    return std::hypot(a.x - b.x, a.y - b.y) <= NoLength;
}

// True when `direction` lies in the sector that turns counter-clockwise from `first` to `last`, all
// seen from `center`.
bool IsInSector(const Coordinate& center, const Coordinate& first, const Coordinate& last,
                const Coordinate& direction) {
    const auto angle = [&center](const Coordinate& place) {
        return std::atan2(place.y - center.y, place.x - center.x);
    };
    const auto turned = [start = angle(first)](double end) {
        return end < start ? end - start + WholeTurn : end - start;
    };
    return turned(angle(direction)) < turned(angle(last));
}

// True when `b` ends on `a`, and its contour goes on to the other side of a's.
bool PassesThrough(const Side& a, const Side& b, const std::vector<Side>& sides) {
    const Coordinate& meeting = b.end;
    if (std::abs(Offset(a, meeting)) > NoLength) {
        return false;
    }
    const double along = Along(a, meeting);
    if (along <= NoLength || along > Length(a) + NoLength) {
        return false;
    }
    const Coordinate& onwards = IsSame(meeting, a.end) ? sides[a.next].end : a.end;
    return IsInSector(meeting, onwards, a.begin, b.begin) !=
           IsInSector(meeting, onwards, a.begin, sides[b.next].end);
}

bool Overlap(const Side& a, const Side& b) {
    if (std::abs(Offset(a, b.begin)) > NoLength || std::abs(Offset(a, b.end)) > NoLength) {
        return false;
    }
    const double first = Along(a, b.begin);
    const double second = Along(a, b.end);
    return std::min(Length(a), std::max(first, second)) - std::max(0.0, std::min(first, second)) >
           NoLength;
}

// True when the sides cross, or lie on each other over a length. Touching in a point is neither.
bool Collide(const Side& a, const Side& b, const std::vector<Side>& sides) {
    const bool cross = AreApart(Offset(a, b.begin), Offset(a, b.end)) &&
                       AreApart(Offset(b, a.begin), Offset(b, a.end));
    return cross || Overlap(a, b) || PassesThrough(a, b, sides) || PassesThrough(b, a, sides);
}

// Sweeps over the sides from left to right, and compares those that share a column.
bool SidesCollide(const Host::Polygon& polygon) {
    const std::vector<Side> sides = CollectSides(polygon);
    std::vector<const Side*> order;
    for (const Side& side : sides) {
        if (Length(side) <= NoLength) {
            return true;
        }
        order.push_back(&side);
    }
    std::sort(order.begin(), order.end(),
              [](const Side* a, const Side* b) { return a->left < b->left; });
    std::vector<const Side*> active;
    for (const Side* const side : order) {
        std::erase_if(active,
                      [side](const Side* other) { return other->right < side->left - NoLength; });
        for (const Side* const other : active) {
            if (Collide(*side, *other, sides)) {
                return true;
            }
        }
        active.push_back(side);
    }
    return false;
}

double SignedArea(const Contour& contour) {
    double area = 0.0;
    const std::size_t count = contour.vertices.size();
    const Coordinate& origin = contour.vertices.front();
    for (std::size_t i = 1; i + 1 < count; ++i) {
        area += Turn(origin, contour.vertices[i], contour.vertices[i + 1]) / 2.0;
    }
    return area;
}

enum class Where { Inside, On, Outside };

bool IsOn(const Coordinate& a, const Coordinate& b, const Coordinate& place) {
    if (place.x < std::min(a.x, b.x) - NoLength || place.x > std::max(a.x, b.x) + NoLength ||
        place.y < std::min(a.y, b.y) - NoLength || place.y > std::max(a.y, b.y) + NoLength) {
        return false;
    }
    return std::abs(Offset({a, b, 0, 0.0, 0.0}, place)) <= NoLength;
}

// Even-odd rule along a ray to the right.
Where Locate(const Contour& contour, const Coordinate& place) {
    bool inside = false;
    const std::size_t count = contour.vertices.size();
    for (std::size_t i = 0; i < count; ++i) {
        const Coordinate& a = contour.vertices[i];
        const Coordinate& b = contour.vertices[(i + 1) % count];
        if (IsOn(a, b, place)) {
            return Where::On;
        }
        if ((a.y > place.y) != (b.y > place.y) &&
            place.x < a.x + (place.y - a.y) / (b.y - a.y) * (b.x - a.x)) {
            inside = !inside;
        }
    }
    return inside ? Where::Inside : Where::Outside;
}

// Contours that nowhere cross lie wholly on one side of each other, so the first place that is not
// on the other one decides. Between two vertices on it the middle of a side can decide.
Where Locate(const Contour& contour, const Contour& other) {
    const std::size_t count = contour.vertices.size();
    for (std::size_t i = 0; i < count; ++i) {
        const Coordinate& a = contour.vertices[i];
        const Coordinate& b = contour.vertices[(i + 1) % count];
        for (const Coordinate& place : {a, Coordinate{(a.x + b.x) / 2.0, (a.y + b.y) / 2.0}}) {
            const Where where = Locate(other, place);
            if (where != Where::On) {
                return where;
            }
        }
    }
    return Where::On;
}

bool HolesFit(const Host::Polygon& polygon) {
    for (std::size_t hole = 1; hole < polygon.size(); ++hole) {
        if (Locate(polygon[hole], polygon[0]) != Where::Inside) {
            return false;
        }
        for (std::size_t other = 1; other < polygon.size(); ++other) {
            if (other != hole && Locate(polygon[hole], polygon[other]) != Where::Outside) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

Host::ErrorCode CheckPolygon(const Host::Polygon& polygon) {
    if (polygon.empty()) {
        return Host::BadPolygon;
    }
    for (const Contour& contour : polygon) {
        if (!IsBuildable(contour, 3, contour.vertices.size())) {
            return Host::BadPolygon;
        }
    }
    if (SidesCollide(polygon)) {
        return Host::IrregularPolygon;
    }
    for (const Contour& contour : polygon) {
        if (SignedArea(contour) == 0.0) {
            return Host::IrregularPolygon;
        }
    }
    return HolesFit(polygon) ? Host::NoError : Host::IrregularPolygon;
}

Host::ErrorCode CheckPolyLine(const Host::Polygon& polygon, bool closed) {
    if (polygon.size() != 1) {
        return Host::BadPolygon;
    }
    const std::size_t count = polygon[0].vertices.size();
    const std::size_t sides = closed ? count : (count == 0 ? 0 : count - 1);
    return IsBuildable(polygon[0], closed ? 3 : 2, sides) ? Host::NoError : Host::BadPolygon;
}

bool HasSameCounts(const Host::Polygon& a, const Host::Polygon& b) {
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(),
        [](const Contour& x, const Contour& y) { return x.vertices.size() == y.vertices.size(); });
}

} // namespace Merivane::Workbench
