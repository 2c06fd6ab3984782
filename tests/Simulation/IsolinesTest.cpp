#include <gtest/gtest.h>

#include "ContourFields.hpp"
#include "Simulation/Isolines.hpp"

namespace Merivane::Tests {

using namespace Simulation;

TEST(ExtractIsolines, RunsWhereTheLinearInterpolationReachesTheLevel) {
    const SmallField f{{0, 10, 20}, {0, 10, 20}};
    const auto curves = ExtractIsolines(f.Field(), {5, 15});
    ASSERT_EQ(curves.size(), 2U);
    EXPECT_EQ(curves[0].level, 5);
    EXPECT_FALSE(curves[0].closed);
    EXPECT_EQ(curves[0].points, (std::vector<Point2D>{{0.5, 0}, {0.5, 1}}));
    EXPECT_EQ(curves[1].level, 15);
    EXPECT_EQ(curves[1].points, (std::vector<Point2D>{{1.5, 0}, {1.5, 1}}));
}

TEST(ExtractIsolines, ReckonsInThePlaceAndTheStepsOfTheGrid) {
    SmallField f{{0, 10}, {0, 10}};
    f.grid.originX = 100;
    f.grid.originY = -20;
    f.grid.stepX = 0.4;
    f.grid.stepY = 0.5;
    const auto curves = ExtractIsolines(f.Field(), {2.5});
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_NEAR(curves[0].points[0].x, 100.1, 1e-12);
    EXPECT_EQ(curves[0].points[0].y, -20);
    EXPECT_EQ(curves[0].points[1].y, -19.5);
}

TEST(ExtractIsolines, AClosedCurveEndsWithThePointItBeganWithOnTheLeftOfItsLowestUprightEdge) {
    const SmallField f{{0, 0, 0}, {0, 10, 0}, {0, 0, 0}};
    const auto curves = ExtractIsolines(f.Field(), {5});
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_TRUE(curves[0].closed);
    EXPECT_EQ(curves[0].points,
              (std::vector<Point2D>{{1, 0.5}, {0.5, 1}, {1, 1.5}, {1.5, 1}, {1, 0.5}}));
}

TEST(ExtractIsolines, AClosedCurveRoundALowStartsTheSameWay) {
    const SmallField f{{9, 9, 9}, {9, 1, 9}, {9, 9, 9}};
    const auto curves = ExtractIsolines(f.Field(), {5});
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_EQ(curves[0].points,
              (std::vector<Point2D>{{1, 0.5}, {0.5, 1}, {1, 1.5}, {1.5, 1}, {1, 0.5}}));
}

TEST(ExtractIsolines, OpenCurvesComeBeforeClosedOnesAndEachKindByItsKeys) {
    const SmallField f{
        {0, 0, 0, 0, 0, 0, 9}, {0, 9, 0, 9, 0, 0, 9}, {0, 0, 0, 0, 0, 0, 9}, {9, 0, 0, 0, 0, 0, 9}};
    const auto curves = ExtractIsolines(f.Field(), {4.5});
    ASSERT_EQ(curves.size(), 4U);
    EXPECT_EQ(curves[0].points.front(), (Point2D{0.5, 0})); // key 0, round the lower left corner
    EXPECT_EQ(curves[1].points.front(), (Point2D{5.5, 0}));
    EXPECT_FALSE(curves[1].closed);
    EXPECT_EQ(curves[2].points.front(), (Point2D{1, 1.5}));
    EXPECT_TRUE(curves[2].closed);
    EXPECT_EQ(curves[3].points.front(), (Point2D{3, 1.5}));
}

TEST(ExtractIsolines, LevelsComeInListOrder) {
    const SmallField f{{0, 0, 0, 40}, {0, 40, 0, 40}, {0, 0, 0, 40}};
    std::vector<double> levels;
    for (const IsoCurve& curve : ExtractIsolines(f.Field(), {10, 20, 30})) {
        levels.push_back(curve.level);
    }
    EXPECT_EQ(levels, (std::vector<double>{10, 10, 20, 20, 30, 30}));
}

TEST(ExtractIsolines, AValueEqualToALevelLiesAboveAndAFlatAreaYieldsNoCurve) {
    const SmallField flat{{5, 5, 5}, {5, 5, 5}};
    EXPECT_TRUE(ExtractIsolines(flat.Field(), {5}).empty());
    const SmallField edge{{5, 5, 0}, {5, 5, 0}};
    const auto curves = ExtractIsolines(edge.Field(), {5});
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_EQ(curves[0].points, (std::vector<Point2D>{{1, 0}, {1, 1}}));
    const SmallField above{{5, 5, 9}, {5, 5, 9}};
    EXPECT_TRUE(ExtractIsolines(above.Field(), {5}).empty());
}

TEST(ExtractIsolines, ASaddleJoinsTheHighCornersOrTheLowOnes) {
    const SmallField high{{1, 9}, {9, 1}}; // centre 5
    const auto joined = ExtractIsolines(high.Field(), {5});
    ASSERT_EQ(joined.size(), 2U);
    EXPECT_EQ(joined[0].points, (std::vector<Point2D>{{0.5, 0}, {1, 0.5}}));
    EXPECT_EQ(joined[1].points, (std::vector<Point2D>{{0, 0.5}, {0.5, 1}}));
    const SmallField low{{1, 8.5}, {9, 1}};
    const auto apart = ExtractIsolines(low.Field(), {5});
    ASSERT_EQ(apart.size(), 2U);
    EXPECT_EQ(apart[0].points.back(), (Point2D{0, 0.5}));
}

TEST(ExtractIsolines, ACurveThatRunsIntoTheAreaWithoutValuesIsOpen) {
    const SmallField f{{0, 0, 0, 0}, {0, 10, NoValue, 0}, {0, 0, 0, 0}};
    const auto curves = ExtractIsolines(f.Field(), {5});
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_FALSE(curves[0].closed);
    EXPECT_EQ(curves[0].points, (std::vector<Point2D>{{1, 0.5}, {0.5, 1}, {1, 1.5}}));
}

TEST(ExtractIsolines, NothingOutsideTheLevels) {
    const SmallField f{{10, 20}, {30, 40}};
    EXPECT_TRUE(ExtractIsolines(f.Field(), {5, 50}).empty());
}

TEST(ExtractIsolines, NothingWithoutCellsOrLevelsOrValues) {
    const SmallField f{{0, 10}, {0, 10}};
    EXPECT_TRUE(ExtractIsolines(f.Field(), {}).empty());
    EXPECT_TRUE(ExtractIsolines({nullptr, f.values}, {5}).empty());
    EXPECT_TRUE(ExtractIsolines({&f.grid, {0, 10, 0}}, {5}).empty());
    const SmallField row{{0, 10, 0, 10}};
    EXPECT_TRUE(ExtractIsolines(row.Field(), {5}).empty());
    const SmallField column{{0}, {10}, {0}};
    EXPECT_TRUE(ExtractIsolines(column.Field(), {5}).empty());
    const CalculationGrid empty;
    EXPECT_TRUE(ExtractIsolines({&empty, {}}, {5}).empty());
}

} // namespace Merivane::Tests
