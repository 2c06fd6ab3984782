#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/GridField.hpp"
#include "Simulation/Isolines.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/RandomPolygons.hpp"
#include "Simulation/TaskOutline.hpp"

namespace Merivane::Simulation {
namespace {

double Area(const IsoCurve& curve) {
    double doubled = 0.0;
    for (std::size_t i = 0; i + 1 < curve.points.size(); ++i) {
        const Point2D& a = curve.points[i];
        const Point2D& b = curve.points[i + 1];
        doubled += a.x * b.y - b.x * a.y;
    }
    return std::abs(doubled) / 2.0;
}

std::vector<double> SortedAreas(const std::vector<IsoCurve>& curves) {
    std::vector<double> areas;
    for (const IsoCurve& curve : curves) {
        EXPECT_TRUE(curve.closed);
        EXPECT_EQ(curve.points.front(), curve.points.back());
        areas.push_back(Area(curve));
    }
    std::sort(areas.begin(), areas.end());
    return areas;
}

// True when `all` holds the points of `kept` in their order.
bool IsSubsequence(const std::vector<Point2D>& kept, const std::vector<Point2D>& all) {
    std::size_t next = 0;
    for (const Point2D& point : all) {
        if (next < kept.size() && kept[next] == point) {
            ++next;
        }
    }
    return next == kept.size();
}

TEST(BuildTaskOutline, OfARoomIsTheRoomWithoutItsBand) {
    const Polygon2D room{{{1, 1}, {7, 1}, {7, 5}, {1, 5}}, {}};
    const std::vector<IsoCurve> curves = BuildTaskOutline(room, 0.5);
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_EQ(curves[0].level, 0.5);
    EXPECT_NEAR(SortedAreas(curves)[0], 5.0 * 3.0, 1e-3);
    for (const Point2D& point : curves[0].points) {
        EXPECT_NEAR(DistanceToBoundary(room, point), 0.5, 0.01);
    }
}

TEST(BuildTaskOutline, KeepsOnlyTheCornersOfStraightRuns) {
    const Polygon2D room{{{0, 0}, {6, 0}, {6, 4}, {0, 4}}, {}};
    const std::vector<IsoCurve> curves = BuildTaskOutline(room, 0.5);
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_LE(curves[0].points.size(), 20U); // of some 1600 before
    EXPECT_GE(curves[0].points.size(), 5U);
}

TEST(BuildTaskOutline, GoesAroundAColumnAtTheSameDistance) {
    const Polygon2D room{{{0, 0}, {6, 0}, {6, 4}, {0, 4}},
                         {{{2.5, 1.5}, {3.5, 1.5}, {3.5, 2.5}, {2.5, 2.5}}}};
    const std::vector<double> areas = SortedAreas(BuildTaskOutline(room, 0.5));
    ASSERT_EQ(areas.size(), 2U);
    const double pi = 3.141592653589793;
    EXPECT_NEAR(areas[0], 1.0 + 4 * 0.5 + pi * 0.25, 1e-3); // rounded corners
    EXPECT_NEAR(areas[1], 15.0, 1e-3);
}

TEST(BuildTaskOutline, FallsApartWhereTheZoneIsNarrowerThanTwoBands) {
    const Polygon2D rooms{{{0, 0},
                           {3, 0},
                           {3, 1.1},
                           {5, 1.1},
                           {5, 0},
                           {8, 0},
                           {8, 3},
                           {5, 3},
                           {5, 1.9},
                           {3, 1.9},
                           {3, 3},
                           {0, 3}},
                          {}};
    const std::vector<double> areas = SortedAreas(BuildTaskOutline(rooms, 0.5));
    ASSERT_EQ(areas.size(), 2U);
    EXPECT_NEAR(areas[0], areas[1], 1e-3);
    EXPECT_GT(areas[0], 4.0); // it bulges towards the corridor
    EXPECT_LT(areas[0], 4.2);
}

// Points of the outline near the middle of the lower wall, which is bent inwards there by
// `bend` [m].
std::size_t PointsAtBend(double bend) {
    const Polygon2D room{{{0, 0}, {3, bend}, {6, 0}, {6, 4}, {0, 4}}, {}};
    std::size_t count = 0;
    // Off the rows of nodes, where points of a curve all but coincide.
    for (const IsoCurve& curve : BuildTaskOutline(room, 0.5037)) {
        for (const Point2D& point : curve.points) {
            count += point.y < 1.0 && std::abs(point.x - 3.0) < 1.0 ? 1 : 0;
        }
    }
    return count;
}

TEST(BuildTaskOutline, TakesABendBelowTheToleranceAsStraight) {
    EXPECT_EQ(PointsAtBend(0.0), 0U);
    EXPECT_EQ(PointsAtBend(1.3e-9), 0U); // turns by 0.87e-9
    EXPECT_GE(PointsAtBend(1.8e-9), 1U); // by 1.2e-9
}

// The curves before thinning, traced as the rules ask for with steps of `step`.
std::vector<IsoCurve> ReferenceCurves(const Polygon2D& polygon, double band, double step) {
    const CalculationGrid grid =
        BuildCalculationGrid(polygon, 0.0, GridSettings{0.0, 0.0, 0.0, step});
    std::vector<double> distances;
    for (const Point2D& point : ActivePoints(grid)) {
        distances.push_back(DistanceToBoundary(polygon, point));
    }
    return ExtractIsolines(MakeGridField(grid, distances), {band});
}

TEST(BuildTaskOutline, IsTracedInStepsOfACentimetreUntilAQuarterMillionNodes) {
    struct Case {
        double width;
        double height;
        double step;
    };
    const Case cases[] = {
        {3, 2, 0.01},
        {6, 4, 0.01},                        // 24 m2
        {10, 5, std::sqrt(50.0 / 250000.0)}, // coarser from 25 m2 on
    };
    for (const Case& c : cases) {
        // Its slanted side and its column leave corners where the step shows.
        const Polygon2D zone{{{0, 0}, {c.width, 0}, {c.width, c.height}, {0.3, c.height}},
                             {{{1.4, 0.9}, {1.6, 0.9}, {1.5, 1.1}}}};
        const std::vector<IsoCurve> curves = BuildTaskOutline(zone, 0.3);
        const std::vector<IsoCurve> whole = ReferenceCurves(zone, 0.3, c.step);
        ASSERT_EQ(curves.size(), whole.size());
        for (std::size_t k = 0; k < curves.size(); ++k) {
            EXPECT_EQ(curves[k].points.front(), whole[k].points.front());
            EXPECT_EQ(curves[k].points.back(), whole[k].points.back());
            EXPECT_TRUE(IsSubsequence(curves[k].points, whole[k].points));
        }
    }
}

TEST(BuildTaskOutline, IsNothingWithoutATaskArea) {
    const Polygon2D corridor{{{0, 0}, {0.8, 0}, {0.8, 5}, {0, 5}}, {}};
    EXPECT_TRUE(BuildTaskOutline(corridor, 0.5).empty());
    EXPECT_EQ(BuildTaskOutline(corridor, 0.3).size(), 1U);
}

TEST(BuildTaskOutline, IsNothingWithoutAPolygonOrABand) {
    const Polygon2D room{{{0, 0}, {6, 0}, {6, 4}, {0, 4}}, {}};
    EXPECT_TRUE(BuildTaskOutline({{{0, 0}, {6, 0}}, {}}, 0.5).empty());
    EXPECT_TRUE(BuildTaskOutline(room, 0.0).empty());
    EXPECT_TRUE(BuildTaskOutline(room, -0.5).empty());
    EXPECT_TRUE(BuildTaskOutline(room, std::nan("")).empty());
    EXPECT_EQ(BuildTaskOutline(room, 0.1).size(), 1U);
}

TEST(BuildTaskOutline, IsNothingForAPolygonBeyondAnyGrid) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(BuildTaskOutline({{{0, 0}, {1e12, 0}, {0, 1e-9}}, {}}, 0.5).empty());
    EXPECT_TRUE(BuildTaskOutline({{{0, 0}, {infinity, 0}, {0, 1}}, {}}, 0.5).empty());
}

TEST(BuildTaskOutline, LiesAtTheBandOnRandomZones) {
    Tests::Random random(12);
    for (int round = 0; round < 6; ++round) {
        Polygon2D zone;
        zone.outer = Tests::StarRing(random, {20, -7}, 4.0, 6.0, 30);
        zone.holes.push_back(Tests::StarRing(random, {20, -7}, 0.3, 0.6, 9));
        const std::vector<IsoCurve> curves = BuildTaskOutline(zone, 0.5);
        EXPECT_GE(curves.size(), 2U);
        for (const IsoCurve& curve : curves) {
            EXPECT_TRUE(curve.closed);
            for (const Point2D& point : curve.points) {
                ASSERT_TRUE(IsInsidePolygon(zone, point));
                ASSERT_NEAR(DistanceToBoundary(zone, point), 0.5, 0.03); // a step of about 0.02
            }
        }
    }
}

} // namespace
} // namespace Merivane::Simulation
