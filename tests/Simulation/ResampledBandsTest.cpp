#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include "Simulation/ColorBands.hpp"
#include "Simulation/GridField.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/RandomPolygons.hpp"
#include "Simulation/ResampledBands.hpp"

namespace Merivane::Simulation {
namespace {

const Polygon2D Room{{{0, 0}, {4, 0}, {4, 3}, {0, 3}}, {}};

double RingArea(const std::vector<Point2D>& ring) {
    double doubled = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Point2D& a = ring[i];
        const Point2D& b = ring[i + 1 < ring.size() ? i + 1 : 0];
        doubled += a.x * b.y - b.x * a.y;
    }
    return doubled / 2.0;
}

double BandArea(const ColorBand& band) {
    double area = 0.0;
    for (const BandPolygon& polygon : band.polygons) {
        area += RingArea(polygon.outer);
        for (const std::vector<Point2D>& hole : polygon.holes) {
            area += RingArea(hole);
        }
    }
    return area;
}

TEST(ResampleBands, CoverThePolygonUpToHalfACentimetre) {
    const CalculationGrid grid = BuildCalculationGrid(Room, 0.0, {});
    const std::vector<double> values(ActiveNodeCount(grid), 100.0);
    const std::vector<ColorBand> bands = ResampleBands(grid, values, Room, {50, 200}, 0.05);
    ASSERT_EQ(bands.size(), 1U);
    EXPECT_EQ(bands[0].index, 1U);
    EXPECT_NEAR(BandArea(bands[0]), 3.99 * 2.99, 1e-9);
}

TEST(ResampleBands, AreNoneWithoutPointsOrWithAnotherNumberOfValues) {
    const CalculationGrid grid = BuildCalculationGrid(Room, 0.0, {});
    std::vector<double> values(ActiveNodeCount(grid), 100.0);
    EXPECT_TRUE(ResampleBands({}, {}, Room, {50}, 0.05).empty());
    values.pop_back();
    EXPECT_TRUE(ResampleBands(grid, values, Room, {50}, 0.05).empty());
    values.resize(values.size() + 2, 100.0);
    EXPECT_TRUE(ResampleBands(grid, values, Room, {50}, 0.05).empty());
    values.pop_back();
    EXPECT_FALSE(ResampleBands(grid, values, Room, {50}, 0.05).empty());
}

TEST(ResampleBands, AreNoneWithoutAFineNode) {
    const CalculationGrid grid = BuildCalculationGrid(Room, 0.0, {});
    const std::vector<double> values(ActiveNodeCount(grid), 100.0);
    EXPECT_TRUE(ResampleBands(grid, values, {}, {50}, 0.05).empty());
    EXPECT_TRUE(ResampleBands(grid, values, {{{0, 0}, {1, 0}}, {}}, {50}, 0.05).empty());
    EXPECT_TRUE(ResampleBands(grid, values, {{{0, 0}, {1e12, 0}, {0, 1e-9}}, {}}, {50}, 0.05)
                    .empty()); // beyond any grid
}

// The bands of the mesh that the rules ask for, step by step.
std::vector<ColorBand> ReferenceBands(const CalculationGrid& grid,
                                      const std::vector<double>& values, const Polygon2D& polygon,
                                      const LevelList& levels, double step) {
    const CalculationGrid fine =
        BuildCalculationGrid(polygon, grid.z, GridSettings{0.0, 0.0, 0.005, step});
    const GridField field = MakeGridField(grid, values);
    std::vector<double> fineValues;
    for (const Point2D& point : ActivePoints(fine)) {
        fineValues.push_back(SampleGrid(grid, field.values, point));
    }
    return BuildBands(MakeGridField(fine, fineValues), levels);
}

void ExpectSameBands(const std::vector<ColorBand>& a, const std::vector<ColorBand>& b) {
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t k = 0; k < a.size(); ++k) {
        EXPECT_EQ(a[k].index, b[k].index);
        EXPECT_EQ(a[k].polygons, b[k].polygons);
    }
}

TEST(ResampleBands, MeshFinelyUntilTwentyThousandNodes) {
    struct Case {
        double width;
        double height;
        double step;
    };
    const Case cases[] = {
        {6, 4, 0.05},                       // 24 m2
        {10, 5, 0.05},                      // 50 m2 exactly
        {10, 8, std::sqrt(80.0 / 20000.0)}, // coarser from there on
        {20, 25, std::sqrt(500.0 / 20000.0)},
    };
    for (const Case& c : cases) {
        // A slanted side, so that the area covered tells the step.
        const Polygon2D zone{{{0, 0}, {c.width, 0}, {c.width, c.height}, {1, c.height}}, {}};
        const CalculationGrid grid = BuildCalculationGrid(zone, 0.0, {});
        std::vector<double> values;
        for (const Point2D& p : ActivePoints(grid)) {
            values.push_back(100.0 + 50.0 * std::sin(p.x) + 30.0 * p.y);
        }
        const LevelList levels{80, 120, 200, 400};
        const std::vector<ColorBand> bands = ResampleBands(grid, values, zone, levels, 0.05);
        ExpectSameBands(bands, ReferenceBands(grid, values, zone, levels, c.step));
    }
}

TEST(ResampleBands, TakeTheMinimumSpacingOfTheCaller) {
    const CalculationGrid grid = BuildCalculationGrid(Room, 0.0, {});
    std::vector<double> values;
    for (const Point2D& p : ActivePoints(grid)) {
        values.push_back(100.0 * p.x * p.y);
    }
    ExpectSameBands(ResampleBands(grid, values, Room, {100, 300}, 0.2),
                    ReferenceBands(grid, values, Room, {100, 300}, 0.2));
}

TEST(ResampleBands, StayWithinTheValuesThatWereCalculated) {
    Tests::Random random(13);
    for (int round = 0; round < 10; ++round) {
        Polygon2D zone;
        zone.outer = Tests::StarRing(random, {0, 0}, 2.0, 3.0, 12);
        const CalculationGrid grid = BuildCalculationGrid(zone, 0.0, {});
        std::vector<double> values;
        for (std::size_t k = 0; k < ActiveNodeCount(grid); ++k) {
            values.push_back(Tests::Uniform(random, 101, 299));
        }
        const std::vector<ColorBand> bands =
            ResampleBands(grid, values, zone, {100, 150, 250, 300}, 0.05);
        ASSERT_FALSE(bands.empty());
        EXPECT_GE(bands.front().index, 1U);
        EXPECT_LE(bands.back().index, 3U);
    }
}

} // namespace
} // namespace Merivane::Simulation
