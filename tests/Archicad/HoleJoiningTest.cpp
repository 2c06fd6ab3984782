#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/HoleJoining.hpp"
#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Archicad {
namespace {

using Simulation::Point2D;
using Simulation::Point3D;

using Contour = std::vector<Point2D>;

Contour Rectangle(double x, double y, double width, double height) {
    return {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
}

Contour Star(Point2D center, double radius, int corners, double turned) {
    Contour star;
    for (int i = 0; i < corners; ++i) {
        const double angle = turned + 2.0 * std::numbers::pi * i / corners;
        const double r = i % 2 == 0 ? radius : radius * 0.6;
        star.push_back({center.x + r * std::cos(angle), center.y + r * std::sin(angle)});
    }
    return star;
}

double SignedArea(const Contour& ring) {
    double area = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point2D a = ring[i];
        const Point2D b = ring[(i + 1) % ring.size()];
        area += (a.x * b.y - a.y * b.x) / 2.0;
    }
    return area;
}

double Turn(Point2D a, Point2D b, Point2D c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

/// True when two sides cross in the inside of both.
bool Cross(Point2D a, Point2D b, Point2D c, Point2D d) {
    constexpr double none = 1e-9;
    return Turn(a, b, c) * Turn(a, b, d) < -none && Turn(c, d, a) * Turn(c, d, b) < -none;
}

int Crossings(const Contour& ring) {
    int crossings = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        for (std::size_t j = i + 1; j < ring.size(); ++j) {
            crossings +=
                Cross(ring[i], ring[(i + 1) % ring.size()], ring[j], ring[(j + 1) % ring.size()])
                    ? 1
                    : 0;
        }
    }
    return crossings;
}

/// Angle from one direction to another, counter-clockwise [0..2 pi).
double AngleBetween(Point2D from, Point2D to) {
    const double angle = std::atan2(from.x * to.y - from.y * to.x, from.x * to.x + from.y * to.y);
    return angle < -1e-9 ? angle + 2.0 * std::numbers::pi : std::max(angle, 0.0);
}

/// Pairs of visits to one place that go through each other there.
int CrossedVisits(const Contour& ring) {
    const auto neighbour = [&](std::size_t at, std::size_t step) {
        const Point2D place = ring[(at + step) % ring.size()];
        return Point2D{place.x - ring[at].x, place.y - ring[at].y};
    };
    int crossed = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        for (std::size_t j = i + 1; j < ring.size(); ++j) {
            if (!(ring[i] == ring[j])) {
                continue;
            }
            // Where the other visit comes from and goes to, as seen from this one's way out.
            const Point2D out = neighbour(i, 1);
            const double in = AngleBetween(out, neighbour(i, ring.size() - 1));
            int inside = 0;
            int outside = 0;
            for (const Point2D way : {neighbour(j, 1), neighbour(j, ring.size() - 1)}) {
                const double angle = AngleBetween(out, way);
                inside += angle > 1e-9 && angle < in - 1e-9 ? 1 : 0;
                outside += angle > in + 1e-9 && angle < 2.0 * std::numbers::pi - 1e-9 ? 1 : 0;
            }
            crossed += inside == 1 && outside == 1 ? 1 : 0;
        }
    }
    return crossed;
}

/// Even-odd: inside an odd number of rings.
bool Covers(const std::vector<Contour>& rings, Point2D place) {
    bool inside = false;
    for (const Contour& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Point2D a = ring[i];
            const Point2D b = ring[(i + 1) % ring.size()];
            if (Simulation::CrossesHeight(a, b, place.y) &&
                Simulation::CrossingX(a, b, place.y) > place.x) {
                inside = !inside;
            }
        }
    }
    return inside;
}

/// Joined in the plane z = 0.
Contour Join(const std::vector<Contour>& contours) {
    std::vector<std::vector<Point3D>> raised;
    for (const Contour& contour : contours) {
        raised.emplace_back();
        for (const Point2D& place : contour) {
            raised.back().push_back({place.x, place.y, 0.0});
        }
    }
    Contour joined;
    for (const Point3D& place : JoinHoles(raised)) {
        joined.push_back({place.x, place.y});
    }
    return joined;
}

void ExpectSameCover(const std::vector<Contour>& contours, double area) {
    const Contour joined = Join(contours);
    EXPECT_NEAR(SignedArea(joined), area, 1e-9);
    EXPECT_EQ(Crossings(joined), 0);
    EXPECT_EQ(CrossedVisits(joined), 0);
    std::mt19937 random(11);
    std::uniform_real_distribution<double> between(-0.5, 10.5);
    for (int i = 0; i < 500; ++i) {
        const Point2D place{between(random), between(random)};
        EXPECT_EQ(Covers({joined}, place), Covers(contours, place)) << place.x << ' ' << place.y;
    }
}

Contour Turned(Contour contour) {
    std::reverse(contour.begin(), contour.end());
    return contour;
}

TEST(JoinHoles, LeavesAFaceWithoutHolesAsItIs) {
    const Contour square = Rectangle(0, 0, 10, 10);
    EXPECT_EQ(Join({square}), square);
    EXPECT_TRUE(Join({}).empty());
}

TEST(JoinHoles, WalksOneCutThereAndBack) {
    const Contour joined = Join({Rectangle(0, 0, 10, 10), Rectangle(4, 4, 2, 2)});
    EXPECT_EQ(joined.size(), 10U);
    ExpectSameCover({Rectangle(0, 0, 10, 10), Rectangle(4, 4, 2, 2)}, 96.0);
}

TEST(JoinHoles, TakesHolesThatTurnEitherWay) {
    ExpectSameCover({Rectangle(0, 0, 10, 10), Turned(Rectangle(4, 4, 2, 2))}, 96.0);
    ExpectSameCover({Turned(Rectangle(0, 0, 10, 10)), Rectangle(4, 4, 2, 2)}, -96.0);
}

TEST(JoinHoles, JoinsManyHoles) {
    std::vector<Contour> contours = {Rectangle(0, 0, 10, 10)};
    for (int i = 0; i < 9; ++i) {
        for (int j = 0; j < 9; ++j) {
            contours.push_back(Rectangle(0.6 + i, 0.6 + j, 0.5, 0.5));
        }
    }
    ExpectSameCover(contours, 100.0 - 81 * 0.25);
    EXPECT_EQ(Join(contours).size(), 4U + 81U * 6U);
}

TEST(JoinHoles, JoinsHolesOfAnyShapeAndPlace) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        const int cells = 2 + round % 4;
        std::vector<Contour> contours = {Rectangle(0, 0, 10, 10)};
        double area = 100.0;
        const double cell = 10.0 / cells;
        for (int i = 0; i < cells * cells; ++i) {
            if (unit(random) < 0.3) {
                continue;
            }
            const int row = i / cells;
            const Point2D center{(i % cells + 0.5) * cell, (row + 0.5) * cell};
            contours.push_back(Star(center, cell * (0.2 + 0.25 * unit(random)), 2 * (2 + round % 5),
                                    unit(random) * 6.0));
            area -= std::abs(SignedArea(contours.back()));
        }
        std::shuffle(contours.begin() + 1, contours.end(), random);
        ExpectSameCover(contours, area);
    }
}

TEST(JoinHoles, FindsItsWayAroundCornersOfTheOutline) {
    // A C whose arms hide the hole in its back from most of the outline.
    const Contour outline = {{0, 0},   {10, 0}, {10, 1}, {4, 1},   {4, 4.9}, {9, 5},
                             {4, 5.1}, {4, 9},  {10, 9}, {10, 10}, {0, 10}};
    const double area = SignedArea(outline);
    ExpectSameCover({outline, Rectangle(1, 1, 1, 1), Rectangle(2, 4, 1.5, 2)}, area - 4.0);
}

TEST(JoinHoles, LeadsManyCutsToOneCorner) {
    const Contour outline = {{0, 0}, {10, 5}, {0, 10}};
    const std::vector<Contour> holes = {Rectangle(1, 6, 1, 1), Rectangle(1, 3, 1, 1),
                                        Rectangle(3, 5.5, 0.5, 0.5), Rectangle(3, 4, 0.5, 0.5),
                                        Rectangle(0.5, 4.8, 0.5, 0.4)};
    std::vector<Contour> contours = {outline};
    contours.insert(contours.end(), holes.begin(), holes.end());
    ExpectSameCover(contours, 50.0 - 2.0 - 0.5 - 0.2);
    // Islands in one hole whose cuts end at one corner of it.
    ExpectSameCover({Rectangle(0, 0, 10, 10),
                     {{1, 1}, {9, 5}, {1, 9}},
                     Rectangle(2, 6, 0.5, 0.5),
                     Rectangle(2, 3.5, 0.5, 0.5),
                     Rectangle(1.5, 4.8, 0.5, 0.4)},
                    100.0 - 32.0 + 0.5 + 0.2);
}

TEST(JoinHoles, CoversWhatLiesInAHoleOfAHole) {
    ExpectSameCover({Rectangle(0, 0, 10, 10), Rectangle(2, 2, 6, 6), Rectangle(4, 4, 2, 2)},
                    100.0 - 36.0 + 4.0);
    ExpectSameCover({Rectangle(0, 0, 10, 10), Rectangle(4, 4, 2, 2), Rectangle(2, 2, 6, 6),
                     Rectangle(4.5, 4.5, 1, 1)},
                    100.0 - 36.0 + 4.0 - 1.0);
}

TEST(JoinHoles, TakesHolesThatTouch) {
    struct Case {
        const char* what;
        std::vector<Contour> holes;
        double cut;
    };
    const Case cases[] = {
        {"a corner on a side", {{{10, 5}, {8, 6}, {8, 4}}}, 2.0},
        {"a corner in a corner", {{{10, 10}, {8, 9}, {9, 8}}}, 1.5},
        {"a side on a side", {Rectangle(8, 4, 2, 2)}, 4.0},
        {"a side on the left side", {Rectangle(0, 4, 2, 2)}, 4.0},
        {"a corner on the left side", {{{0, 5}, {2, 4}, {2, 6}}}, 2.0},
        {"a corner on the upper side", {{{5, 10}, {4, 8}, {6, 8}}}, 2.0},
        {"two, side on side", {Rectangle(3, 4, 2, 2), Rectangle(5, 4, 2, 2)}, 8.0},
        {"two, corner on corner", {Rectangle(3, 4, 2, 2), Rectangle(5, 6, 2, 2)}, 8.0},
        {"two, corner on corner", {Rectangle(3, 4, 2, 2), Rectangle(5, 2, 2, 2)}, 8.0},
        {"two, corner on side", {{{5, 5}, {3, 6}, {3, 4}}, Rectangle(5, 4, 2, 2)}, 6.0},
        {"four around a place",
         {Rectangle(3, 3, 2, 2),
          Rectangle(5, 5, 2, 2),
          {{5, 5}, {5, 6}, {4, 6}},
          {{5, 5}, {5, 4}, {6, 4}}},
         9.0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        std::vector<Contour> contours = {Rectangle(0, 0, 10, 10)};
        contours.insert(contours.end(), c.holes.begin(), c.holes.end());
        ExpectSameCover(contours, 100.0 - c.cut);
    }
}

TEST(JoinHoles, WorksInEveryPlane) {
    const std::vector<Contour> contours = {Rectangle(0, 0, 10, 10), Rectangle(4, 4, 2, 2),
                                           Rectangle(1, 1, 2, 2)};
    const Point3D axes[][2] = {{{1, 0, 0}, {0, 1, 0}},     {{0, 1, 0}, {1, 0, 0}},
                               {{0, 1, 0}, {0, 0, 1}},     {{0, 0, 1}, {0, 1, 0}},
                               {{0, 0, 1}, {1, 0, 0}},     {{1, 0, 0}, {0, 0, 1}},
                               {{0.6, 0, 0.8}, {0, 1, 0}}, {{0.36, 0.48, 0.8}, {0.8, -0.6, 0}}};
    for (const auto& [u, v] : axes) {
        std::vector<std::vector<Point3D>> placed;
        for (const Contour& contour : contours) {
            placed.emplace_back();
            for (const Point2D& p : contour) {
                placed.back().push_back({7 + u.x * p.x + v.x * p.y, 8 + u.y * p.x + v.y * p.y,
                                         9 + u.z * p.x + v.z * p.y});
            }
        }
        Contour flat;
        for (const Point3D& p : JoinHoles(placed)) {
            const Point3D off{p.x - 7, p.y - 8, p.z - 9};
            flat.push_back(
                {off.x * u.x + off.y * u.y + off.z * u.z, off.x * v.x + off.y * v.y + off.z * v.z});
        }
        EXPECT_NEAR(SignedArea(flat), 92.0, 1e-9);
        EXPECT_EQ(Crossings(flat), 0);
    }
}

TEST(JoinHoles, GivesTheOutlineWhereItHasNoArea) {
    const Contour line = {{0, 0}, {1, 0}, {2, 0}};
    EXPECT_EQ(Join({line, Rectangle(0, 0, 1, 1)}), line);
}

TEST(JoinHoles, LeavesOutHolesWithoutThreeCorners) {
    EXPECT_EQ(Join({Rectangle(0, 0, 10, 10), {{1, 1}, {2, 2}}}), Rectangle(0, 0, 10, 10));
}

} // namespace
} // namespace Merivane::Archicad
