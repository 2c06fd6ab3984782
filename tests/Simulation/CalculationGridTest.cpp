#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/CalculationGrid.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/RandomPolygons.hpp"

namespace Merivane::Simulation {
namespace {

Polygon2D Rectangle(double x, double y, double width, double height) {
    return {{{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}}, {}};
}

std::size_t Count(const std::vector<bool>& bits) {
    return static_cast<std::size_t>(std::count(bits.begin(), bits.end(), true));
}

std::size_t IndexOf(const CalculationGrid& grid, std::int32_t i, std::int32_t j) {
    return static_cast<std::size_t>(j) * static_cast<std::size_t>(grid.columns) +
           static_cast<std::size_t>(i);
}

bool IsActiveAt(const CalculationGrid& grid, std::int32_t i, std::int32_t j) {
    return grid.active[IndexOf(grid, i, j)];
}

bool IsTaskAt(const CalculationGrid& grid, std::int32_t i, std::int32_t j) {
    return grid.task[IndexOf(grid, i, j)];
}

TEST(AutomaticSpacing, FollowsTheAreaOfTheBox) {
    struct Case {
        double width;
        double height;
        double spacing;
    };
    const Case cases[] = {
        {8, 5, 0.1},           // 40 m2 exactly
        {7.9, 5, 0.1},         // below
        {8, 5.0 * 1.21, 0.11}, // above: sqrt(48.4 / 4000)
        {16, 10, 0.2},         // 160 m2
        {40, 25, 0.5},         // 1000 m2 exactly
        {39, 25, std::sqrt(975.0 / 4000.0)},
        {41, 25, 0.5}, // beyond
        {1000, 1000, 0.5},
        {0, 5, 0.1},     // no area
        {-30, -50, 0.1}, // clamped to zero, not a positive product
        {1e-9, 1e-9, 0.1},
        {-3, 5, 0.1},
    };
    for (const Case& c : cases) {
        EXPECT_DOUBLE_EQ(AutomaticSpacing(c.width, c.height), c.spacing)
            << c.width << " x " << c.height;
    }
    EXPECT_EQ(AutomaticSpacing(8, 5), 0.1);
    EXPECT_EQ(AutomaticSpacing(40, 25), 0.5);
}

TEST(BuildCalculationGrid, IsEmptyForFewerThanThreeVertices) {
    const Polygon2D polygons[] = {{}, {{{0, 0}}, {}}, {{{0, 0}, {5, 0}}, {}}};
    for (const Polygon2D& polygon : polygons) {
        CalculationGrid empty;
        empty.z = 3.75;
        EXPECT_EQ(BuildCalculationGrid(polygon, 3.0, {}), empty);
    }
    EXPECT_EQ(CalculationGrid{}.stepX, 0.25);
    EXPECT_EQ(CalculationGrid{}.stepY, 0.25);
}

TEST(BuildCalculationGrid, LaysARoomWithItsFirstAndLastNodeAtTheOffset) {
    // 6 x 4 m: 24 m2, so 0.1 m; 5.9 and 3.9 m between the outermost nodes.
    const CalculationGrid grid = BuildCalculationGrid(Rectangle(1, 2, 6, 4), 3.0, {});
    EXPECT_EQ(grid.columns, 60);
    EXPECT_EQ(grid.rows, 40);
    EXPECT_DOUBLE_EQ(grid.originX, 1.05);
    EXPECT_DOUBLE_EQ(grid.originY, 2.05);
    EXPECT_DOUBLE_EQ(grid.stepX, 0.1);
    EXPECT_DOUBLE_EQ(grid.stepY, 0.1);
    EXPECT_DOUBLE_EQ(NodePosition(grid, 59, 39).x, 6.95);
    EXPECT_DOUBLE_EQ(NodePosition(grid, 59, 39).y, 5.95);
    EXPECT_DOUBLE_EQ(grid.z, 3.75);
    EXPECT_FALSE(grid.narrow);
    EXPECT_EQ(ActiveNodeCount(grid), 2400U);
    // Nodes from 0.55 m on clear the band of 0.5 m: 5 to each side fall away.
    EXPECT_EQ(Count(grid.task), 50U * 30U);
}

TEST(BuildCalculationGrid, NeverStepsWiderThanTheSpacing) {
    struct Case {
        double size;
        double spacing;
        std::int32_t nodes;
    };
    const Case cases[] = {
        {1.0, 0.25, 5},         // divides
        {1.0, 0.3, 5},          // does not: 4 intervals
        {1.0, 1.0, 2},          //
        {1.0, 7.0, 2},          // at least one interval
        {1.0, 0.25 - 1e-12, 5}, // off by rounding only
        {1.0, 1.0 / (4.0 + 0.5e-9), 5},
        {1.0, 1.0 / (4.0 + 2e-9), 6},
        {1.0, 0.249, 6}, // 4.016 intervals
        {0.9, 0.3, 4},   // 0.9 / 0.3 rounds above 3
        {1.0, std::numeric_limits<double>::infinity(), 2},
    };
    for (const Case& c : cases) {
        GridSettings settings;
        settings.wallOffset = 0.0;
        settings.spacing = c.spacing;
        const CalculationGrid grid =
            BuildCalculationGrid(Rectangle(0, 0, c.size, c.size), 0.0, settings);
        EXPECT_EQ(grid.columns, c.nodes) << c.size << " / " << c.spacing;
        EXPECT_EQ(grid.rows, c.nodes);
        EXPECT_DOUBLE_EQ(grid.stepX, c.size / (c.nodes - 1));
    }
}

TEST(BuildCalculationGrid, TakesTheAutomaticSpacingForZeroAndLess) {
    const Polygon2D room = Rectangle(0, 0, 16, 10);
    GridSettings settings;
    settings.spacing = -1.0;
    EXPECT_EQ(BuildCalculationGrid(room, 0.0, settings), BuildCalculationGrid(room, 0.0, {}));
    // The box before the offset decides: 0.2 m, 15.9 m between the outermost nodes.
    EXPECT_EQ(BuildCalculationGrid(room, 0.0, {}).columns, 81);
}

TEST(BuildCalculationGrid, CountsANodeOnALimitAsBeyondIt) {
    GridSettings settings;
    settings.wallOffset = 0.1;
    settings.borderBand = 0.5;
    settings.spacing = 0.1;
    const CalculationGrid grid = BuildCalculationGrid(Rectangle(0.3, 0.7, 3, 2), 0.0, settings);
    EXPECT_TRUE(IsActiveAt(grid, 0, 0));
    EXPECT_FALSE(IsTaskAt(grid, 3, 9));
    EXPECT_TRUE(IsTaskAt(grid, 4, 9)); // exactly 0.5 m from the wall
}

TEST(BuildCalculationGrid, KeepsTheToleranceOnTheLimits) {
    // Nodes every 0.5 m from the edge on.
    struct Case {
        double limit;
        bool reached;
    };
    const Case cases[] = {
        {0.5, true}, {0.5 + 0.5e-9, true}, {0.5 + 2e-9, false}, {0.5 - 1e-9, true}};
    for (const Case& c : cases) {
        GridSettings settings;
        settings.wallOffset = 0.0;
        settings.spacing = 0.5;
        settings.borderBand = c.limit;
        const CalculationGrid band = BuildCalculationGrid(Rectangle(0, 0, 4, 4), 0.0, settings);
        EXPECT_EQ(IsTaskAt(band, 1, 4), c.reached) << c.limit;
    }
}

TEST(BuildCalculationGrid, KeepsTheToleranceOnTheWallOffset) {
    struct Case {
        double nearer; // than the offset is the column's edge to the node at (1, 2)
        bool active;
    };
    const Case cases[] = {{0.0, true}, {0.5e-9, true}, {2e-9, false}, {-1e-9, true}, {1e-3, false}};
    for (const Case& c : cases) {
        Polygon2D room = Rectangle(0, 0, 4, 4);
        const double edge = 1.5 - c.nearer;
        room.holes.push_back({{edge, 1}, {3, 1}, {3, 3}, {edge, 3}});
        GridSettings settings;
        settings.wallOffset = 0.5;
        settings.spacing = 0.5;
        settings.borderBand = 0.0;
        const CalculationGrid grid = BuildCalculationGrid(room, 0.0, settings);
        ASSERT_EQ(NodePosition(grid, 1, 3), (Point2D{1, 2}));
        EXPECT_EQ(IsActiveAt(grid, 1, 3), c.active) << c.nearer;
    }
}

TEST(BuildCalculationGrid, TestsTheRawOffsetAndLaysTheClampedOne) {
    GridSettings settings;
    settings.wallOffset = -0.3;
    settings.spacing = 0.5;
    settings.borderBand = 0.0;
    const CalculationGrid grid = BuildCalculationGrid(Rectangle(0, 0, 2, 2), 0.0, settings);
    EXPECT_EQ(grid.originX, 0.0);
    EXPECT_EQ(ActiveNodeCount(grid), 25U); // nodes on the ring are inside
}

TEST(BuildCalculationGrid, MakesAZoneThinnerThanTwoOffsetsNarrow) {
    // 3 cm wide: the offset is given up on that axis and the nodes run from the box's edge.
    const CalculationGrid grid = BuildCalculationGrid(Rectangle(0, 0, 0.03, 2), 0.0, {});
    EXPECT_EQ(grid.originX, 0.0);
    EXPECT_EQ(grid.originY, 0.05);
    EXPECT_EQ(grid.columns, 2);
    EXPECT_DOUBLE_EQ(grid.stepX, 0.03);
    EXPECT_EQ(grid.rows, 20);
    EXPECT_EQ(ActiveNodeCount(grid), 40U);
    EXPECT_TRUE(grid.narrow);
    EXPECT_EQ(grid.task, grid.active);
}

TEST(BuildCalculationGrid, GivesTheOffsetUpWhereNothingIsLeftOfTheAxis) {
    struct Case {
        double width;
        double originX;
    };
    const Case cases[] = {
        {0.1, 0.0},         // two offsets exactly
        {0.1 + 5e-10, 0.0}, // within 1e-9
        {0.1 + 2e-9, 0.05}, // beyond
    };
    for (const Case& c : cases) {
        const CalculationGrid grid = BuildCalculationGrid(Rectangle(0, 0, c.width, 2), 0.0, {});
        EXPECT_EQ(grid.originX, c.originX) << c.width;
    }
}

TEST(BuildCalculationGrid, MakesAZoneThinnerThanTwoBandsNarrow) {
    const CalculationGrid grid = BuildCalculationGrid(Rectangle(0, 0, 0.8, 5), 0.0, {});
    EXPECT_GT(ActiveNodeCount(grid), 0U);
    EXPECT_TRUE(grid.narrow);
    EXPECT_EQ(grid.task, grid.active);
}

TEST(BuildCalculationGrid, LeavesTheTaskEmptyInAThinPolygonWithoutABand) {
    GridSettings settings;
    settings.borderBand = 0.0;
    const CalculationGrid grid = BuildCalculationGrid(Rectangle(0, 0, 0.03, 2), 0.0, settings);
    EXPECT_EQ(ActiveNodeCount(grid), 40U);
    EXPECT_EQ(Count(grid.task), 0U);
    EXPECT_FALSE(grid.narrow);
}

TEST(BuildCalculationGrid, CountsEveryPointWithoutABand) {
    GridSettings settings;
    settings.borderBand = 0.0;
    const CalculationGrid grid = BuildCalculationGrid(Rectangle(0, 0, 3, 2), 0.0, settings);
    EXPECT_EQ(grid.task, grid.active);
    EXPECT_FALSE(grid.narrow);
}

TEST(BuildCalculationGrid, KeepsNodesOfAHoleClearAndIgnoresItInTheBox) {
    Polygon2D room = Rectangle(0, 0, 6, 4);
    const CalculationGrid whole = BuildCalculationGrid(room, 0.0, {});
    room.holes.push_back({{2, 1}, {4, 1}, {4, 3}, {2, 3}});
    const CalculationGrid grid = BuildCalculationGrid(room, 0.0, {});
    EXPECT_EQ(grid.columns, whole.columns);
    EXPECT_EQ(grid.stepX, whole.stepX);
    EXPECT_FALSE(IsActiveAt(grid, 29, 19)); // (2.95, 1.95)
    EXPECT_FALSE(IsTaskAt(grid, 29, 19));
    EXPECT_TRUE(IsActiveAt(grid, 19, 19)); // (1.95, 1.95): at 0.05 m from the hole
    EXPECT_FALSE(IsTaskAt(grid, 19, 19));
    EXPECT_FALSE(IsActiveAt(grid, 20, 19)); // (2.05, 1.95): in the hole
}

TEST(BuildCalculationGrid, KeepsPointsOnTheRingOfAHoleInactiveWhileOthersClearTheOffset) {
    Polygon2D room = Rectangle(0, 0, 4, 4);
    room.holes.push_back({{1.5, 1.5}, {2.5, 1.5}, {2.5, 2.5}, {1.5, 2.5}});
    GridSettings settings;
    settings.spacing = 0.5;
    settings.wallOffset = 0.5;
    settings.borderBand = 0.0;
    const CalculationGrid grid = BuildCalculationGrid(room, 0.0, settings);
    EXPECT_EQ(grid.columns, 7);
    EXPECT_FALSE(IsActiveAt(grid, 2, 2)); // (1.5, 1.5) on the ring
    EXPECT_TRUE(IsActiveAt(grid, 1, 1));
}

TEST(BuildCalculationGrid, TakesPointsOnTheRingOfAHoleWhereNoneClearsTheOffset) {
    // The offset leaves nodes only in the column (9) and on its ring (16).
    Polygon2D room = Rectangle(0, 0, 4, 4);
    room.holes.push_back({{1, 1}, {3, 1}, {3, 3}, {1, 3}});
    GridSettings settings;
    settings.spacing = 0.5;
    settings.wallOffset = 1.0;
    const CalculationGrid grid = BuildCalculationGrid(room, 0.0, settings);
    EXPECT_EQ(grid.columns, 5);
    EXPECT_EQ(ActiveNodeCount(grid), 16U);
    EXPECT_TRUE(IsActiveAt(grid, 0, 2));
    EXPECT_FALSE(IsActiveAt(grid, 2, 2));
    EXPECT_TRUE(grid.narrow);
}

TEST(BuildCalculationGrid, CoversAPolygonWithoutAreaWithItsRing) {
    const CalculationGrid grid = BuildCalculationGrid({{{0, 0}, {2, 0}, {1, 0}}, {}}, 0.0, {});
    EXPECT_EQ(grid.rows, 2);
    EXPECT_EQ(grid.stepY, 0.1); // no extent: the spacing
    EXPECT_EQ(grid.originY, 0.0);
    EXPECT_EQ(ActiveNodeCount(grid), static_cast<std::size_t>(grid.columns));
    EXPECT_TRUE(grid.narrow);
}

TEST(GridNodeCount, IsTheNumberOfNodesThatAreLaid) {
    Tests::Random random(3);
    for (int round = 0; round < 100; ++round) {
        const Polygon2D polygon = Tests::RandomPolygon(random);
        const CalculationGrid grid = BuildCalculationGrid(polygon, 0.0, {});
        EXPECT_EQ(GridNodeCount(polygon, {}), static_cast<double>(grid.active.size()));
    }
    EXPECT_EQ(GridNodeCount({{{0, 0}, {1, 1}}, {}}, {}), 0.0);
}

TEST(GridNodeCount, GoesBeyondTheMaximumWithoutOverflow) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    GridSettings fine;
    fine.spacing = 1e-320;
    GridSettings endless;
    endless.wallOffset = infinity;
    struct Case {
        Polygon2D polygon;
        GridSettings settings;
    };
    const Case cases[] = {
        {Rectangle(0, 0, 1e9, 1e9), {}},
        {Rectangle(0, 0, 1e300, 1e300), {}},
        {Rectangle(0, 0, 1e300, 1e-300), {}},
        {Rectangle(-1e308, 0, 1.5e308, 1), {}},
        {{{{-1e308, 0}, {1e308, 0}, {0, 1}}, {}}, {}},
        {{{{-1e308, 0}, {1e308, 0}, {0, 1}}, {}}, endless},
        {Rectangle(0, 0, infinity, 1), {}},
        {{{{0, 0}, {nan, 0}, {0, 1}}, {}}, {}},
        {{{{nan, nan}, {nan, nan}, {nan, nan}}, {}}, {}},
        {Rectangle(0, 0, 5, 5), fine},
    };
    for (const Case& c : cases) {
        EXPECT_GT(GridNodeCount(c.polygon, c.settings), static_cast<double>(MaximumGridNodes));
        const CalculationGrid grid = BuildCalculationGrid(c.polygon, 1.0, c.settings);
        EXPECT_EQ(grid.columns, 0);
        EXPECT_EQ(grid.rows, 0);
        EXPECT_EQ(grid.stepX, 0.25);
        EXPECT_TRUE(grid.active.empty());
    }
}

TEST(GridNodeCount, RefusesOneNodeBeyondTwentyMillion) {
    GridSettings settings;
    settings.wallOffset = 0.0;
    settings.spacing = 1.0;
    settings.borderBand = 0.0;
    // 2 x 10,000,000 nodes; then one column more.
    EXPECT_EQ(GridNodeCount(Rectangle(0, 0, 9'999'999, 1), settings), 20e6);
    EXPECT_EQ(BuildCalculationGrid(Rectangle(0, 0, 9'999'999, 1), 0, settings).columns, 10'000'000);
    EXPECT_EQ(GridNodeCount(Rectangle(0, 0, 1e7, 1), settings), 20e6 + 2);
    EXPECT_EQ(BuildCalculationGrid(Rectangle(0, 0, 1e7, 1), 0, settings).columns, 0);
}

TEST(ActivePoints, GoByRowsThenByColumns) {
    CalculationGrid grid;
    grid.originX = 10;
    grid.originY = 20;
    grid.stepX = 1;
    grid.stepY = 2;
    grid.columns = 3;
    grid.rows = 2;
    grid.active = {true, false, true, false, true, true};
    grid.task = {true, false, false, false, true, true};
    EXPECT_EQ(ActivePoints(grid), (std::vector<Point2D>{{10, 20}, {12, 20}, {11, 22}, {12, 22}}));
    EXPECT_EQ(ActiveNodeCount(grid), 4U);
    EXPECT_EQ(TaskSelection(grid), (std::vector<bool>{true, false, true, true}));
}

TEST(TaskSelection, CountsANodeBeyondTheTaskBitsAsClear) {
    CalculationGrid grid;
    grid.columns = 3;
    grid.rows = 1;
    grid.active = {true, true, true};
    grid.task = {true};
    EXPECT_EQ(TaskSelection(grid), (std::vector<bool>{true, false, false}));
    EXPECT_TRUE(TaskSelection({}).empty());
}

// The rules once more, node by node, with distances and crossings of the test's own.
double ReferenceDistance(const Polygon2D& polygon, Point2D p) {
    double nearest = std::numeric_limits<double>::infinity();
    const auto take = [&](const std::vector<Point2D>& ring) {
        for (std::size_t k = 0; ring.size() >= 2 && k < ring.size(); ++k) {
            const Point2D a = ring[k];
            const Point2D b = ring[(k + 1) % ring.size()];
            const double squared = std::pow(b.x - a.x, 2) + std::pow(b.y - a.y, 2);
            double t = 0.0;
            if (squared > 0.0) {
                t = ((p.x - a.x) * (b.x - a.x) + (p.y - a.y) * (b.y - a.y)) / squared;
                t = std::clamp(t, 0.0, 1.0);
            }
            nearest = std::min(
                nearest, std::hypot(p.x - a.x - t * (b.x - a.x), p.y - a.y - t * (b.y - a.y)));
        }
    };
    take(polygon.outer);
    for (const auto& hole : polygon.holes) {
        take(hole);
    }
    return nearest;
}

bool ReferenceEvenOdd(const std::vector<Point2D>& ring, Point2D p) {
    bool inside = false;
    for (std::size_t k = 0; k < ring.size(); ++k) {
        const Point2D a = ring[k];
        const Point2D b = ring[(k + 1) % ring.size()];
        if ((a.y > p.y) != (b.y > p.y) && a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y) > p.x) {
            inside = !inside;
        }
    }
    return inside;
}

bool ReferenceInside(const Polygon2D& polygon, Point2D p) {
    if (polygon.outer.size() < 3) {
        return false;
    }
    if (ReferenceDistance(polygon, p) <= 1e-9) {
        return true;
    }
    if (!ReferenceEvenOdd(polygon.outer, p)) {
        return false;
    }
    for (const auto& hole : polygon.holes) {
        if (hole.size() >= 3 && ReferenceEvenOdd(hole, p)) {
            return false;
        }
    }
    return true;
}

void ReferenceBits(const Polygon2D& polygon, const GridSettings& settings, CalculationGrid& grid) {
    const auto nodes = static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows);
    grid.active.assign(nodes, false);
    grid.task.assign(nodes, false);
    grid.narrow = false;
    std::vector<bool> inside(nodes);
    const auto columns = static_cast<std::size_t>(grid.columns);
    for (std::size_t n = 0; n < nodes; ++n) {
        const std::size_t i = n % columns;
        const std::size_t j = n / columns;
        const Point2D p{grid.originX + static_cast<double>(i) * grid.stepX,
                        grid.originY + static_cast<double>(j) * grid.stepY};
        inside[n] = ReferenceInside(polygon, p);
        if (inside[n]) {
            const double d = ReferenceDistance(polygon, p);
            grid.active[n] = d >= settings.wallOffset - 1e-9;
            grid.task[n] = grid.active[n] && d >= settings.borderBand - 1e-9;
        }
    }
    const bool anyTask = Count(grid.task) > 0;
    if (Count(grid.active) == 0) {
        grid.active = inside;
    }
    if (!anyTask && settings.borderBand > 0.0) {
        grid.task = grid.active;
        grid.narrow = true;
    }
}

TEST(BuildCalculationGrid, FollowsTheRulesNodeByNodeOnRandomPolygons) {
    Tests::Random random(4);
    for (int round = 0; round < 300; ++round) {
        const Polygon2D polygon = Tests::RandomPolygon(random);
        GridSettings settings;
        settings.wallOffset = 0.05 * Tests::UniformInt(random, -1, 12);
        settings.borderBand = 0.05 * Tests::UniformInt(random, -1, 20);
        settings.spacing = 0.05 * Tests::UniformInt(random, 0, 6);
        const CalculationGrid grid = BuildCalculationGrid(polygon, 0.0, settings);
        CalculationGrid reference = grid;
        ReferenceBits(polygon, settings, reference);
        ASSERT_EQ(grid, reference) << "round " << round;
    }
}

TEST(BuildCalculationGrid, KeepsTheTaskWithinTheActiveNodes) {
    Tests::Random random(5);
    for (int round = 0; round < 200; ++round) {
        GridSettings settings;
        settings.wallOffset = Tests::Uniform(random, 0.0, 1.5);
        settings.borderBand = Tests::Uniform(random, -0.1, 1.0);
        const CalculationGrid grid =
            BuildCalculationGrid(Tests::RandomPolygon(random), 0.0, settings);
        for (std::size_t n = 0; n < grid.active.size(); ++n) {
            ASSERT_TRUE(grid.active[n] || !grid.task[n]) << "round " << round;
        }
    }
}

} // namespace
} // namespace Merivane::Simulation
