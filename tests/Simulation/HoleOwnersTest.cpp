#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "Simulation/HoleOwners.hpp"

namespace Merivane::Tests {

using namespace Simulation;
using Ring = std::vector<Point2D>;

namespace {

std::vector<OuterRing> Measured(const std::vector<Ring>& rings) {
    std::vector<OuterRing> outers;
    outers.reserve(rings.size());
    for (const Ring& ring : rings) {
        outers.push_back({ring, MeasureRing(ring)});
    }
    return outers;
}

Ring Square(double x, double y, double size) {
    return {{x, y}, {x + size, y}, {x + size, y + size}, {x, y + size}};
}

/// A star about `centre`, counter-clockwise.
Ring Star(Point2D centre, std::size_t points, std::mt19937& random) {
    std::uniform_real_distribution<double> unit(0.2, 1.0);
    Ring ring;
    for (std::size_t k = 0; k < points; ++k) {
        const double angle =
            6.283185307179586 * static_cast<double>(k) / static_cast<double>(points);
        const double radius = 3 * unit(random);
        ring.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
    }
    return ring;
}

bool IsInside(const Ring& ring, Point2D p) {
    bool inside = false;
    Point2D a = ring.back();
    for (const Point2D& b : ring) {
        if ((a.y > p.y) != (b.y > p.y) && a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y) > p.x) {
            inside = !inside;
        }
        a = b;
    }
    return inside;
}

} // namespace

TEST(MeasureRing, GivesTheSignedAreaAndTheBox) {
    const RingMeasure measure = MeasureRing(Ring{{1, 2}, {4, 2}, {4, 6}});
    EXPECT_DOUBLE_EQ(measure.area, 6.0);
    EXPECT_EQ(measure.left, 1);
    EXPECT_EQ(measure.right, 4);
    EXPECT_EQ(measure.bottom, 2);
    EXPECT_EQ(measure.top, 6);
    EXPECT_DOUBLE_EQ(MeasureRing(Ring{{4, 6}, {4, 2}, {1, 2}}).area, -6.0);
}

TEST(MeasureRing, KeepsTheDigitsOfASmallRingFarFromTheOrigin) {
    const double far = 1048576; // 2^20 m
    EXPECT_DOUBLE_EQ(MeasureRing(Square(far, far, 0.0009765625)).area, 0.00000095367431640625);
}

TEST(FindOwners, ChoosesTheSmallestRingThatContainsThePoint) {
    const std::vector<Ring> rings{Square(0, 0, 10), Square(2, 2, 4), Square(20, 0, 1)};
    const std::vector<Point2D> points{{3, 3}, {8, 8}, {20.5, 0.5}, {15, 0.5}, {3, 30}, {3, -1}};
    EXPECT_EQ(FindOwners(points, Measured(rings), 0.5),
              (std::vector<std::size_t>{1, 0, 2, NoOwner, NoOwner, NoOwner}));
}

TEST(FindOwners, OfEqualRingsTheFirst) {
    const std::vector<Ring> rings{Square(0, 0, 4), Square(1, 1, 4)};
    const std::vector<Point2D> points{{2, 2}};
    EXPECT_EQ(FindOwners(points, Measured(rings), 0.5), std::vector<std::size_t>{0});
}

TEST(FindOwners, ALeftOrLowerEdgeBelongsToItsRingARightOrUpperOneDoesNot) {
    const std::vector<Ring> rings{Square(0, 0, 4)};
    const std::vector<Point2D> points{{0, 2}, {2, 0}, {0, 0}, {4, 2}, {2, 4}, {4, 0}, {0, 4}};
    EXPECT_EQ(FindOwners(points, Measured(rings), 0.5),
              (std::vector<std::size_t>{0, 0, 0, NoOwner, NoOwner, NoOwner, NoOwner}));
}

TEST(FindOwners, NoRingsNoOwner) {
    const std::vector<Point2D> points{{2, 2}};
    EXPECT_EQ(FindOwners(points, {}, 0.5), std::vector<std::size_t>{NoOwner});
    EXPECT_TRUE(FindOwners({}, {}, 0.5).empty());
}

TEST(FindOwners, GivesWhatLookingThroughEveryEdgeGives) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> unit(0.0, 10.0);
    for (int round = 0; round < 60; ++round) {
        std::vector<Ring> rings;
        rings.reserve(12);
        for (std::size_t k = 0; k < 12; ++k) {
            rings.push_back(Star({unit(random), unit(random)}, 3 + random() % 60, random));
        }
        std::vector<Point2D> points;
        points.reserve(62);
        for (int k = 0; k < 60; ++k) {
            points.push_back({unit(random), unit(random)});
        }
        points.push_back(rings[0][0]); // a vertex of a ring, and its height
        points.push_back({points[0].x, rings[1][1].y});
        const auto outers = Measured(rings);
        std::vector<std::size_t> expected;
        for (const Point2D& p : points) {
            expected.push_back(NoOwner);
            for (std::size_t r = 0; r < rings.size(); ++r) {
                const double area = outers[r].measure.area;
                if (IsInside(rings[r], p) &&
                    (expected.back() == NoOwner || area < outers[expected.back()].measure.area)) {
                    expected.back() = r;
                }
            }
        }
        for (const double height : {0.05, 0.7, 100.0, 1e-9}) {
            ASSERT_EQ(FindOwners(points, outers, height), expected) << round << " " << height;
        }
    }
}

} // namespace Merivane::Tests
