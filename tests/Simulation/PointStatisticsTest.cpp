#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/PointStatistics.hpp"

namespace Merivane::Simulation {
namespace {

CalculationGrid RowOf(const std::vector<bool>& active, const std::vector<bool>& task) {
    CalculationGrid grid;
    grid.columns = static_cast<std::int32_t>(active.size());
    grid.rows = 1;
    grid.active = active;
    grid.task = task;
    return grid;
}

TEST(ComputeStatistics, GivesMeanExtremesAndUniformity) {
    const PointStatistics statistics = ComputeStatistics({300, 100, 200});
    EXPECT_EQ(statistics.count, 3U);
    EXPECT_EQ(statistics.mean, 200.0);
    EXPECT_EQ(statistics.minimum, 100.0);
    EXPECT_EQ(statistics.maximum, 300.0);
    EXPECT_EQ(statistics.uniformity, 0.5);
}

TEST(ComputeStatistics, IsAllZeroForAnEmptySet) {
    EXPECT_EQ(ComputeStatistics({}), PointStatistics{});
}

TEST(ComputeStatistics, DividesNothingWhereEveryValueIsZero) {
    const PointStatistics statistics = ComputeStatistics({0, 0, 0});
    EXPECT_EQ(statistics.count, 3U);
    EXPECT_EQ(statistics.mean, 0.0);
    EXPECT_EQ(statistics.uniformity, 0.0);
}

TEST(ComputeStatistics, HasNoUniformityBelowAMeanOfZero) {
    EXPECT_EQ(ComputeStatistics({-1, -3}).uniformity, 0.0);
    EXPECT_EQ(ComputeStatistics({-1, 1}).uniformity, 0.0);
}

TEST(ComputeStatistics, SumsInInputOrder) {
    EXPECT_EQ(ComputeStatistics({1e16, 1.0, -1e16}).mean, (1e16 + 1.0 - 1e16) / 3.0);
    EXPECT_EQ(ComputeStatistics({1e16, -1e16, 1.0}).mean, 1.0 / 3.0);
}

TEST(TaskStatistics, TakesOnlyPointsOfTheTaskArea) {
    const CalculationGrid grid =
        RowOf({true, false, true, true, true}, {false, false, true, true, false});
    const PointStatistics statistics = TaskStatistics(grid, {1000, 100, 300, 1});
    EXPECT_EQ(statistics.count, 2U);
    EXPECT_EQ(statistics.mean, 200.0);
    EXPECT_EQ(statistics.minimum, 100.0);
    EXPECT_EQ(statistics.maximum, 300.0);
}

TEST(TaskStatistics, StopsWhereValuesOrPointsRunOut) {
    const CalculationGrid grid = RowOf({true, true, true}, {true, true, true});
    EXPECT_EQ(TaskStatistics(grid, {5, 7}).count, 2U);
    EXPECT_EQ(TaskStatistics(grid, {5, 7, 9, 11}).count, 3U);
    EXPECT_EQ(TaskStatistics(grid, {}), PointStatistics{});
    EXPECT_EQ(TaskStatistics({}, {5, 7}), PointStatistics{});
}

TEST(TaskStatistics, SeesNoPointWhereNoneIsInTheTaskArea) {
    EXPECT_EQ(TaskStatistics(RowOf({true, true}, {false, false}), {5, 7}), PointStatistics{});
}

TEST(TaskStatistics, TakesEveryPointOfANarrowZone) {
    const Polygon2D corridor{{{0, 0}, {0.8, 0}, {0.8, 4}, {0, 4}}, {}};
    const CalculationGrid grid = BuildCalculationGrid(corridor, 0.0, {});
    ASSERT_TRUE(grid.narrow);
    const std::vector<double> values(ActiveNodeCount(grid), 150.0);
    EXPECT_EQ(TaskStatistics(grid, values).count, values.size());
}

TEST(TaskStatistics, LeavesTheBandAlongTheWallsOut) {
    const Polygon2D room{{{0, 0}, {3, 0}, {3, 3}, {0, 3}}, {}};
    const CalculationGrid grid = BuildCalculationGrid(room, 0.0, {});
    std::vector<double> values;
    for (const Point2D& p : ActivePoints(grid)) {
        const bool inBand = p.x < 0.5 || p.x > 2.5 || p.y < 0.5 || p.y > 2.5;
        values.push_back(inBand ? 1.0 : 500.0);
    }
    const PointStatistics statistics = TaskStatistics(grid, values);
    EXPECT_EQ(statistics.count, 400U); // 20 x 20 nodes from 0.55 to 2.45
    EXPECT_EQ(statistics.minimum, 500.0);
    EXPECT_EQ(statistics.uniformity, 1.0);
}

} // namespace
} // namespace Merivane::Simulation
