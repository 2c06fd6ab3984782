#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/GridField.hpp"
#include "Simulation/RandomPolygons.hpp"

namespace Merivane::Simulation {
namespace {

CalculationGrid FullGrid(std::int32_t columns, std::int32_t rows) {
    CalculationGrid grid;
    grid.originX = 1.0;
    grid.originY = 2.0;
    grid.stepX = 0.5;
    grid.stepY = 0.25;
    grid.columns = columns;
    grid.rows = rows;
    grid.active.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), true);
    return grid;
}

TEST(MakeGridField, GivesTheValuesToTheActiveNodesInOrder) {
    CalculationGrid grid = FullGrid(3, 2);
    grid.active = {true, false, true, false, true, true};
    const GridField field = MakeGridField(grid, {1, 2, 3, 4});
    EXPECT_EQ(field.grid, &grid);
    ASSERT_EQ(field.values.size(), 6U);
    EXPECT_EQ(field.values[0], 1);
    EXPECT_TRUE(std::isnan(field.values[1]));
    EXPECT_EQ(field.values[2], 2);
    EXPECT_TRUE(std::isnan(field.values[3]));
    EXPECT_EQ(field.values[4], 3);
    EXPECT_EQ(field.values[5], 4);
}

TEST(MakeGridField, LeavesTheRestWithoutValueWhenValuesRunOut) {
    const CalculationGrid grid = FullGrid(2, 2);
    const GridField field = MakeGridField(grid, {7});
    EXPECT_EQ(field.values[0], 7);
    for (std::size_t n = 1; n < 4; ++n) {
        EXPECT_TRUE(std::isnan(field.values[n]));
    }
}

TEST(MakeGridField, LeavesValuesBeyondTheLastNodeOut) {
    const CalculationGrid grid = FullGrid(2, 1);
    EXPECT_EQ(MakeGridField(grid, {1, 2, 3}).values, (std::vector<double>{1, 2}));
    EXPECT_TRUE(MakeGridField({}, {1, 2}).values.empty());
}

double Bilinear(Point2D p) {
    return 3.0 + 2.0 * p.x - 5.0 * p.y + 0.7 * p.x * p.y;
}

TEST(SampleGrid, IsExactForABilinearFunctionInsideTheLattice) {
    const CalculationGrid grid = FullGrid(9, 7);
    std::vector<double> field;
    for (const Point2D& p : ActivePoints(grid)) {
        field.push_back(Bilinear(p));
    }
    Tests::Random random(6);
    for (int k = 0; k < 500; ++k) {
        const Point2D p{Tests::Uniform(random, 1.0, 4.9), Tests::Uniform(random, 2.0, 3.4)};
        EXPECT_NEAR(SampleGrid(grid, field, p), Bilinear(p), 1e-12);
    }
}

TEST(SampleGrid, ReturnsTheValueOfANodeItStandsOn) {
    CalculationGrid grid = FullGrid(4, 4);
    std::vector<double> field(16);
    for (std::size_t n = 0; n < 16; ++n) {
        field[n] = static_cast<double>(n) * 10.0;
    }
    EXPECT_EQ(SampleGrid(grid, field, {1.5, 2.25}), 50.0);
    // On the last column there is no cell; the search finds the node itself.
    EXPECT_EQ(SampleGrid(grid, field, {2.5, 2.75}), 150.0);
    EXPECT_EQ(SampleGrid(grid, field, {2.5 + 0.9e-6, 2.75}), 150.0);
    EXPECT_NE(SampleGrid(grid, field, {2.5 + 1.1e-6, 2.75}), 150.0);
}

TEST(SampleGrid, WeighsByInverseSquaredDistanceWhereACornerIsMissing) {
    CalculationGrid grid = FullGrid(2, 2);
    grid.active[3] = false;
    const std::vector<double> field{10, 20, 30, std::numeric_limits<double>::quiet_NaN()};
    // Squared distances of (1.1, 2.1) to the three nodes.
    const double a = 0.01 + 0.01;
    const double b = 0.16 + 0.01;
    const double c = 0.01 + 0.0225;
    EXPECT_NEAR(SampleGrid(grid, field, {1.1, 2.1}),
                (10 / a + 20 / b + 30 / c) / (1 / a + 1 / b + 1 / c), 1e-12);
}

TEST(SampleGrid, WidensTheWindowUntilItFindsANode) {
    CalculationGrid grid = FullGrid(40, 40);
    std::fill(grid.active.begin(), grid.active.end(), false);
    grid.active[39 * 40 + 39] = true;
    std::vector<double> field(1600, std::numeric_limits<double>::quiet_NaN());
    field[39 * 40 + 39] = 123.0;
    // From cell (8, 8) the window of 32 reaches column 40; from cell (6, 6) only column 38, and 64
    // is beyond the limit of 42.
    EXPECT_DOUBLE_EQ(SampleGrid(grid, field, {1.0 + 8.5 * 0.5, 2.0 + 8.5 * 0.25}), 123.0);
    EXPECT_DOUBLE_EQ(SampleGrid(grid, field, {1.0 + 7.5 * 0.5, 2.0 + 7.5 * 0.25}), 123.0);
    EXPECT_EQ(SampleGrid(grid, field, {1.0 + 6.5 * 0.5, 2.0 + 6.5 * 0.25}), 0.0);
}

TEST(SampleGrid, IsZeroWithoutActiveNodesAndFarAway) {
    CalculationGrid grid = FullGrid(5, 5);
    const std::vector<double> field(25, 8.0);
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(SampleGrid(grid, field, {1e6, 0}), 0.0);
    EXPECT_EQ(SampleGrid(grid, field, {1e300, -1e300}), 0.0);
    EXPECT_EQ(SampleGrid(grid, field, {infinity, 2}), 0.0);
    EXPECT_EQ(SampleGrid(grid, field, {nan, 2}), 0.0);
    EXPECT_EQ(SampleGrid({}, {}, {0, 0}), 0.0);
    std::fill(grid.active.begin(), grid.active.end(), false);
    EXPECT_EQ(SampleGrid(grid, field, {1.3, 2.3}), 0.0);
}

// The search as it is told, window by window, without the clipping.
double ReferenceSample(const CalculationGrid& grid, const std::vector<double>& field, Point2D p) {
    const double fx = (p.x - grid.originX) / grid.stepX;
    const double fy = (p.y - grid.originY) / grid.stepY;
    const int i = static_cast<int>(std::floor(fx));
    const int j = static_cast<int>(std::floor(fy));
    const auto index = [&](int a, int b) {
        return static_cast<std::size_t>(b) * static_cast<std::size_t>(grid.columns) +
               static_cast<std::size_t>(a);
    };
    const auto active = [&](int a, int b) {
        return a >= 0 && b >= 0 && a < grid.columns && b < grid.rows && grid.active[index(a, b)];
    };
    const auto f = [&](int a, int b) { return field[index(a, b)]; };
    if (active(i, j) && active(i + 1, j) && active(i, j + 1) && active(i + 1, j + 1)) {
        const double u = fx - i;
        const double v = fy - j;
        return ((1 - u) * f(i, j) + u * f(i + 1, j)) * (1 - v) +
               ((1 - u) * f(i, j + 1) + u * f(i + 1, j + 1)) * v;
    }
    for (int r = 2; r <= std::max(grid.columns, grid.rows) + 2; r *= 2) {
        double sum = 0.0;
        double weights = 0.0;
        for (int b = j + 1 - r; b <= j + r; ++b) {
            for (int a = i + 1 - r; a <= i + r; ++a) {
                if (!active(a, b)) {
                    continue;
                }
                const double squared = std::pow(grid.originX + a * grid.stepX - p.x, 2) +
                                       std::pow(grid.originY + b * grid.stepY - p.y, 2);
                if (squared < 1e-12) {
                    return f(a, b);
                }
                sum += f(a, b) / squared;
                weights += 1.0 / squared;
            }
        }
        if (weights > 0.0) {
            return sum / weights;
        }
    }
    return 0.0;
}

TEST(SampleGrid, FollowsTheRulesOnRandomGrids) {
    Tests::Random random(7);
    for (int round = 0; round < 200; ++round) {
        CalculationGrid grid =
            FullGrid(Tests::UniformInt(random, 1, 14), Tests::UniformInt(random, 1, 14));
        const int share = Tests::UniformInt(random, 0, 100);
        std::vector<double> field;
        for (std::size_t n = 0; n < grid.active.size(); ++n) {
            grid.active[n] = Tests::UniformInt(random, 0, 99) < share;
            field.push_back(grid.active[n] ? Tests::Uniform(random, 1, 900)
                                           : std::numeric_limits<double>::quiet_NaN());
        }
        for (int k = 0; k < 30; ++k) {
            const Point2D p{Tests::Uniform(random, -1, 9), Tests::Uniform(random, 1, 6)};
            const double reference = ReferenceSample(grid, field, p);
            ASSERT_NEAR(SampleGrid(grid, field, p), reference, 1e-9 * (1 + reference))
                << "round " << round;
        }
    }
}

} // namespace
} // namespace Merivane::Simulation
