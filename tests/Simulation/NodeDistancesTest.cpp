#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/NodeDistances.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/RandomPolygons.hpp"

namespace Merivane::Simulation {
namespace {

CalculationGrid Lattice(double x, double y, double step, std::int32_t columns, std::int32_t rows) {
    CalculationGrid grid;
    grid.originX = x;
    grid.originY = y;
    grid.stepX = step;
    grid.stepY = step;
    grid.columns = columns;
    grid.rows = rows;
    return grid;
}

// What the two functions for single points say, node by node.
std::vector<double> OneByOne(const Polygon2D& polygon, const CalculationGrid& grid) {
    std::vector<double> distances;
    for (std::int32_t j = 0; j < grid.rows; ++j) {
        for (std::int32_t i = 0; i < grid.columns; ++i) {
            const Point2D node = NodePosition(grid, i, j);
            distances.push_back(IsInsidePolygon(polygon, node) ? DistanceToBoundary(polygon, node)
                                                               : OutsideNode);
        }
    }
    return distances;
}

TEST(NodeDistances, AreBitForBitThoseOfSinglePointsOnRandomPolygons) {
    Tests::Random random(1);
    for (int round = 0; round < 200; ++round) {
        const Polygon2D polygon = Tests::RandomPolygon(random);
        const Bounds2D bounds = OuterBounds(polygon);
        const double step = round % 2 == 0 ? 0.05 : Tests::Uniform(random, 0.04, 0.3);
        const CalculationGrid grid =
            Lattice(bounds.minimum.x - 2 * step, bounds.minimum.y - 2 * step, step,
                    Tests::UniformInt(random, 1, 90), Tests::UniformInt(random, 1, 70));
        ASSERT_EQ(NodeDistances(polygon, grid), OneByOne(polygon, grid)) << "round " << round;
    }
}

TEST(NodeDistances, AreBitForBitThoseOfSinglePointsForManyEdgesFarFromTheOrigin) {
    Tests::Random random(2);
    Polygon2D polygon;
    polygon.outer = Tests::StarRing(random, {3.2e5, 7.4e6}, 8.0, 12.0, 1500);
    for (int k = 0; k < 20; ++k) {
        polygon.holes.push_back(Tests::StarRing(
            random, {3.2e5 + Tests::Uniform(random, -5, 5), 7.4e6 + Tests::Uniform(random, -5, 5)},
            0.2, 0.4, 30));
    }
    const CalculationGrid grid = Lattice(3.2e5 - 12.5, 7.4e6 - 12.5, 0.25, 101, 101);
    EXPECT_EQ(NodeDistances(polygon, grid), OneByOne(polygon, grid));
}

TEST(NodeDistances, CountNodesOnARingAsInsideAtDistanceZero) {
    const Polygon2D polygon{{{0, 0}, {2, 0}, {2, 2}, {0, 2}}, {{{0.5, 0.5}, {1.5, 0.5}, {1, 1.5}}}};
    const std::vector<double> distances = NodeDistances(polygon, Lattice(-0.5, -0.5, 0.5, 7, 7));
    EXPECT_EQ(distances[0], OutsideNode);         // (-0.5, -0.5)
    EXPECT_EQ(distances[8], 0.0);                 // (0, 0)
    EXPECT_EQ(distances[2 * 7 + 2], 0.0);         // (0.5, 0.5), a vertex of the hole
    EXPECT_EQ(distances[2 * 7 + 3], 0.0);         // (1, 0.5), on the hole's edge
    EXPECT_EQ(distances[3 * 7 + 3], OutsideNode); // (1, 1), in the hole
    EXPECT_EQ(distances[5 * 7 + 5], 0.0);         // (2, 2)
    EXPECT_EQ(distances[48], OutsideNode);        // (2.5, 2.5)
}

TEST(NodeDistances, CountNodesWithinANanometreOfARingAsInside) {
    const Polygon2D square{{{0, 0}, {2, 0}, {2, 2}, {0, 2}}, {}};
    const std::vector<double> near = NodeDistances(square, Lattice(-0.5e-9, 1, 1, 1, 1));
    EXPECT_NEAR(near[0], 0.5e-9, 1e-20);
    const std::vector<double> off = NodeDistances(square, Lattice(-2e-9, 1, 1, 1, 1));
    EXPECT_EQ(off[0], OutsideNode);
}

TEST(NodeDistances, AreNoneWithoutNodesAndOutsideWithoutPolygon) {
    const Polygon2D square{{{0, 0}, {2, 0}, {2, 2}, {0, 2}}, {}};
    EXPECT_TRUE(NodeDistances(square, Lattice(0, 0, 1, 0, 5)).empty());
    EXPECT_TRUE(NodeDistances(square, Lattice(0, 0, 1, 5, 0)).empty());
    EXPECT_EQ(NodeDistances({{{0, 0}, {2, 0}}, {}}, Lattice(0, 0, 1, 2, 1)),
              (std::vector<double>{OutsideNode, OutsideNode}));
}

TEST(NodeDistances, SurviveVerticesThatAreNoNumbers) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const Polygon2D polygons[] = {
        {{{0, 0}, {nan, 0}, {2, 2}, {0, 2}}, {}},
        {{{0, 0}, {2, 0}, {2, 2}, {0, 2}}, {{{1, 1}, {nan, nan}, {1, 1.5}}}},
        {{{0, 0}, {infinity, 0}, {2, infinity}, {0, 2}}, {}},
        {{{-1e300, 0}, {1e300, 1}, {1e300, 2}, {-1e300, 3}, {0, 1e300}}, {}},
    };
    for (const Polygon2D& polygon : polygons) {
        const CalculationGrid grid = Lattice(-0.5, -0.5, 0.25, 20, 20);
        EXPECT_EQ(NodeDistances(polygon, grid), OneByOne(polygon, grid));
    }
}

} // namespace
} // namespace Merivane::Simulation
