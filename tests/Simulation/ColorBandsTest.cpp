#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "ContourFields.hpp"
#include "Simulation/BandRings.hpp"
#include "Simulation/ColorBands.hpp"
#include "Simulation/HoleOwners.hpp"

namespace Merivane::Tests {

using namespace Simulation;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

double AreaOf(const BandPolygon& polygon) {
    double area = MeasureRing(polygon.outer).area;
    for (const auto& hole : polygon.holes) {
        area += MeasureRing(hole).area;
    }
    return area;
}

double AreaOf(const std::vector<ColorBand>& bands) {
    double area = 0.0;
    for (const ColorBand& band : bands) {
        for (const BandPolygon& polygon : band.polygons) {
            area += AreaOf(polygon);
        }
    }
    return area;
}

} // namespace

TEST(BuildBands, AFieldBetweenTwoLevelsIsOneBandRoundItsEdge) {
    const SmallField f{{60, 70, 80}, {90, 60, 70}};
    const auto bands = BuildBands(f.Field(), {50, 100});
    ASSERT_EQ(bands.size(), 1U);
    EXPECT_EQ(bands[0].index, 1U);
    EXPECT_EQ(bands[0].lower, 50);
    EXPECT_EQ(bands[0].upper, 100);
    ASSERT_EQ(bands[0].polygons.size(), 1U);
    EXPECT_EQ(bands[0].polygons[0].outer, (std::vector<Point2D>{{0, 0}, {2, 0}, {2, 1}, {0, 1}}));
    EXPECT_TRUE(bands[0].polygons[0].holes.empty());
}

TEST(BuildBands, WithoutLevelsOneBandCoversAll) {
    const SmallField f{{1, 2, NoValue}, {3, 4, 5}};
    const auto bands = BuildBands(f.Field(), {});
    ASSERT_EQ(bands.size(), 1U);
    EXPECT_EQ(bands[0].index, 0U);
    EXPECT_EQ(bands[0].lower, -Infinity);
    EXPECT_EQ(bands[0].upper, Infinity);
    ASSERT_EQ(bands[0].polygons.size(), 1U);
    EXPECT_EQ(bands[0].polygons[0].outer, (std::vector<Point2D>{{0, 0}, {1, 0}, {1, 1}, {0, 1}}));
}

TEST(BuildBands, BandsMeetAtTheCurve) {
    const SmallField f{{0, 10}, {0, 10}};
    const auto bands = BuildBands(f.Field(), {2.5});
    ASSERT_EQ(bands.size(), 2U);
    EXPECT_EQ(bands[0].lower, -Infinity);
    EXPECT_EQ(bands[0].upper, 2.5);
    EXPECT_EQ(bands[0].polygons[0].outer,
              (std::vector<Point2D>{{0, 0}, {0.25, 0}, {0.25, 1}, {0, 1}}));
    EXPECT_EQ(bands[1].lower, 2.5);
    EXPECT_EQ(bands[1].upper, Infinity);
    EXPECT_EQ(bands[1].polygons[0].outer,
              (std::vector<Point2D>{{0.25, 0}, {1, 0}, {1, 1}, {0.25, 1}}));
}

TEST(BuildBands, ABandWithoutAreaIsLeftOut) {
    const SmallField f{{10, 10}, {10, 10}};
    const auto bands = BuildBands(f.Field(), {5, 20, 30});
    ASSERT_EQ(bands.size(), 1U);
    EXPECT_EQ(bands[0].index, 1U);
}

TEST(BuildBands, AValueEqualToALevelLiesInTheUpperBand) {
    const SmallField f{{5, 5}, {5, 5}};
    const auto bands = BuildBands(f.Field(), {5});
    ASSERT_EQ(bands.size(), 1U);
    EXPECT_EQ(bands[0].index, 1U);
}

TEST(BuildBands, AnIslandIsAClockwiseHoleInTheBandRoundIt) {
    const SmallField f{{0, 0, 0}, {0, 10, 0}, {0, 0, 0}};
    const auto bands = BuildBands(f.Field(), {5});
    ASSERT_EQ(bands.size(), 2U);
    ASSERT_EQ(bands[0].polygons.size(), 1U);
    ASSERT_EQ(bands[0].polygons[0].holes.size(), 1U);
    const auto& hole = bands[0].polygons[0].holes[0];
    EXPECT_EQ(hole, (std::vector<Point2D>{{1, 0.5}, {0.5, 1}, {1, 1.5}, {1.5, 1}}));
    EXPECT_LT(MeasureRing(hole).area, 0);
    ASSERT_EQ(bands[1].polygons.size(), 1U);
    EXPECT_GT(MeasureRing(bands[1].polygons[0].outer).area, 0);
    EXPECT_DOUBLE_EQ(AreaOf(bands), 4.0);
}

TEST(BuildBands, AHoleGoesToTheSmallestRingThatContainsIt) {
    // A low with a high in it with a low in it: the innermost hole belongs to the inner ring.
    const SmallField f{{9, 9, 9, 9, 9, 9, 9}, {9, 0, 0, 0, 0, 0, 9}, {9, 0, 9, 9, 9, 0, 9},
                       {9, 0, 9, 0, 9, 0, 9}, {9, 0, 9, 9, 9, 0, 9}, {9, 0, 0, 0, 0, 0, 9},
                       {9, 9, 9, 9, 9, 9, 9}};
    const auto bands = BuildBands(f.Field(), {5});
    ASSERT_EQ(bands.size(), 2U);
    const auto& high = bands[1].polygons;
    ASSERT_EQ(high.size(), 2U);
    EXPECT_EQ(high[0].outer.size(), 4U); // the edge of the field
    ASSERT_EQ(high[0].holes.size(), 1U);
    ASSERT_EQ(high[1].holes.size(), 1U);
    EXPECT_GT(std::abs(MeasureRing(high[0].holes[0]).area), 10);
    EXPECT_LT(std::abs(MeasureRing(high[1].holes[0]).area), 1);
    EXPECT_NEAR(AreaOf(bands), 36.0, 1e-12);
}

TEST(BuildBands, AHoleIsLookedForAMillionthOfTheShorterStepBesideItsFirstEdge) {
    // The band from 5 to 10 is a hair round a dark square: a hole in a hair that is thinner than
    // the distance at which its polygon is looked for has none.
    const struct {
        double hair; ///< how thick it is beside the hole's first edge, in steps along x
        double stepX;
        double stepY;
        std::size_t holes;
    } cases[] = {
        {0.9e-6, 1, 1, 0},  {1.1e-6, 1, 1, 1},  {0.9e-6, 10, 10, 0}, {1.1e-6, 10, 10, 1},
        {1.1e-6, 1, 10, 1}, {0.9e-6, 1, 10, 0}, {0.11e-6, 10, 1, 1}, {0.09e-6, 10, 1, 0},
    };
    for (const auto& c : cases) {
        const double b = 7.5 / c.hair;
        SmallField f{
            {b, b, b, b, b}, {b, 0, 0, 0, b}, {b, 0, 0, 0, b}, {b, 0, 0, 0, b}, {b, b, b, b, b}};
        f.grid.stepX = c.stepX;
        f.grid.stepY = c.stepY;
        const auto bands = BuildBands(f.Field(), {5, 10});
        ASSERT_EQ(bands.size(), 3U);
        ASSERT_EQ(bands[1].polygons.size(), 1U);
        EXPECT_EQ(bands[1].polygons[0].holes.size(), c.holes)
            << c.hair << " " << c.stepX << " x " << c.stepY;
    }
}

TEST(BuildBands, ALineOfNodesAtALevelIsNoPolygonAndNoHole) {
    const SmallField f{{4, 4, 4, 4, 4}, {4, 5, 5, 5, 4}, {4, 4, 4, 4, 4}};
    const auto bands = BuildBands(f.Field(), {5});
    ASSERT_EQ(bands.size(), 1U);
    EXPECT_EQ(bands[0].index, 0U);
    ASSERT_EQ(bands[0].polygons.size(), 1U);
    EXPECT_EQ(bands[0].polygons[0].outer, (std::vector<Point2D>{{0, 0}, {4, 0}, {4, 2}, {0, 2}}));
    EXPECT_TRUE(bands[0].polygons[0].holes.empty());
}

TEST(BuildBands, ANodeWithoutValueTakesItsFourCellsAway) {
    const SmallField f{
        {5, 5, 5, 5, 5}, {5, 5, 5, 5, 5}, {5, 5, NoValue, 5, 5}, {5, 5, 5, 5, 5}, {5, 5, 5, 5, 5}};
    const auto bands = BuildBands(f.Field(), {10});
    ASSERT_EQ(bands.size(), 1U);
    ASSERT_EQ(bands[0].polygons.size(), 1U);
    EXPECT_EQ(bands[0].polygons[0].outer, (std::vector<Point2D>{{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
    ASSERT_EQ(bands[0].polygons[0].holes.size(), 1U);
    EXPECT_EQ(bands[0].polygons[0].holes[0],
              (std::vector<Point2D>{{1, 1}, {1, 3}, {3, 3}, {3, 1}}));
}

TEST(BuildBands, TwoRingsThatTouchInANodeAreKeptApartByTheLeftmostTurn) {
    const SmallField f{{NoValue, 5, 5}, {5, 5, 5}, {5, 5, NoValue}};
    const auto bands = BuildBands(f.Field(), {10});
    ASSERT_EQ(bands.size(), 1U);
    ASSERT_EQ(bands[0].polygons.size(), 2U);
    EXPECT_EQ(bands[0].polygons[0].outer, (std::vector<Point2D>{{0, 0}, {1, 0}, {1, 1}, {0, 1}}));
    EXPECT_EQ(bands[0].polygons[1].outer, (std::vector<Point2D>{{1, 1}, {2, 1}, {2, 2}, {1, 2}}));
}

TEST(BuildBands, RingsThatTouchInACrossedNeighbourhoodLoseNothing) {
    // Bands pass the node where the two cells touch; every piece must come back.
    const SmallField f{{NoValue, 2, 9}, {7, 5, 1}, {3, 8, NoValue}};
    const auto bands = BuildBands(f.Field(), {2.5, 4, 6});
    EXPECT_NEAR(AreaOf(bands), 2.0, 1e-12);
}

TEST(BuildBands, ASaddleSplitsTheBandThatItsCentreIsNotIn) {
    const SmallField joined{{1, 9}, {9, 1}}; // centre 5, at the level
    const auto high = BuildBands(joined.Field(), {5});
    EXPECT_EQ(high[0].polygons.size(), 2U);
    EXPECT_EQ(high[1].polygons.size(), 1U);
    const SmallField apart{{1, 8.9}, {9, 1}};
    const auto low = BuildBands(apart.Field(), {5});
    EXPECT_EQ(low[0].polygons.size(), 1U);
    EXPECT_EQ(low[1].polygons.size(), 2U);
}

TEST(BuildBands, NothingWithoutCellsOrValues) {
    const SmallField f{{0, 10}, {0, 10}};
    EXPECT_TRUE(BuildBands({nullptr, f.values}, {5}).empty());
    EXPECT_TRUE(BuildBands({&f.grid, {0, 10, 0}}, {5}).empty());
    const SmallField row{{0, 10, 0, 10}};
    EXPECT_TRUE(BuildBands(row.Field(), {5}).empty());
    const SmallField column{{0}, {10}, {0}};
    EXPECT_TRUE(BuildBands(column.Field(), {5}).empty());
    const SmallField none{{NoValue, 1}, {1, 1}};
    EXPECT_TRUE(BuildBands(none.Field(), {5}).empty());
}

namespace {

/// A room under a light, with columns cut out, and noise of `noise` times the value.
GridField MakeRoom(const CalculationGrid& grid, bool holes, double noise) {
    std::mt19937 random(99);
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    GridField field{&grid, {}};
    for (int j = 0; j < grid.rows; ++j) {
        for (int i = 0; i < grid.columns; ++i) {
            const double x = i * grid.stepX - 6;
            const double y = j * grid.stepY - 5;
            const double lux = 20 + 28000 / ((x * x + y * y + 5) * (x * x + y * y + 5));
            const bool missing = holes && (i / 20 + j / 15) % 4 == 1 && i % 20 < 9 && j % 15 < 7;
            field.values.push_back(missing ? NoValue : lux * (1 + noise * unit(random)));
        }
    }
    return field;
}

double CoveredArea(const GridField& field) {
    const CalculationGrid& grid = *field.grid;
    int cells = 0;
    for (std::ptrdiff_t j = 0; j + 1 < grid.rows; ++j) {
        for (std::ptrdiff_t i = 0; i + 1 < grid.columns; ++i) {
            const double* low = field.values.data() + j * grid.columns + i;
            const double* high = low + grid.columns;
            cells += std::isnan(low[0] + low[1] + high[0] + high[1]) ? 0 : 1;
        }
    }
    return cells * grid.stepX * grid.stepY;
}

} // namespace

TEST(BuildBands, AreasSumToTheCoveredCells) {
    CalculationGrid grid;
    grid.columns = 160;
    grid.rows = 125;
    grid.stepX = grid.stepY = 0.1;
    const struct {
        bool holes;
        double noise;
    } cases[] = {{false, 0.0}, {true, 0.0}, {true, 0.3}};
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.holes << " " << c.noise);
        const GridField field = MakeRoom(grid, c.holes, c.noise);
        const double covered = CoveredArea(field);
        double whole = 0.0;
        std::size_t rings = 0;
        ForEachBandRing(BuildContourMesh(field, DefaultLevels(), MeshBorder::Corners),
                        [&](std::size_t, const std::vector<Point2D>& ring) {
                            whole += MeasureRing(ring).area;
                            ++rings;
                        });
        EXPECT_NEAR(whole, covered, 1e-9);
        EXPECT_NEAR(AreaOf(BuildBands(field, DefaultLevels())), covered, 1e-6);
        EXPECT_GT(rings, c.noise > 0 ? 1000U : 9U);
    }
}

} // namespace Merivane::Tests
