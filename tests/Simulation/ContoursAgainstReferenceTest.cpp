// Fast and slow way to contours, on random fields of every kind that has ever been hard: values
// equal to levels, flat areas, saddles, holes that touch in a node, values that are not finite.
#include <cmath>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "ContourReference.hpp"
#include "Simulation/ColorBands.hpp"
#include "Simulation/Isolines.hpp"
#include "Simulation/RingSimplification.hpp"

namespace Merivane::Tests {

using namespace Simulation;

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

enum class Kind { Random, Whole, Smooth, Flat, Infinite, Huge };

struct Case {
    Kind kind;
    double missing; ///< part of the nodes without value
    int columns;
    int rows;
    int rounds;
};

double RandomValue(Kind kind, double x, double y, std::mt19937& random) {
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    const double u = unit(random);
    switch (kind) {
    case Kind::Random:
        return 10 * u;
    case Kind::Whole:
        return std::floor(8 * u);
    case Kind::Smooth:
        return 4 + 4 * std::sin(x) * std::cos(y) + 0.1 * u;
    case Kind::Flat:
        return u < 0.8 ? 3.0 : std::floor(8 * u);
    case Kind::Infinite:
        return u < 0.1 ? Infinity : u < 0.2 ? -Infinity : 10 * u;
    case Kind::Huge:
        return u < 0.2 ? 1.7e308 : u < 0.4 ? -1.7e308 : 10 * u;
    }
    return 0.0;
}

struct Sample {
    CalculationGrid grid;
    GridField field;
};

void Fill(Sample& sample, const Case& c, std::mt19937& random) {
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    sample.grid.columns = c.columns;
    sample.grid.rows = c.rows;
    sample.grid.originX = 10 * unit(random);
    sample.grid.originY = -10 * unit(random);
    sample.grid.stepX = 0.05 + unit(random);
    sample.grid.stepY = 0.05 + unit(random);
    sample.field.grid = &sample.grid;
    sample.field.values.clear();
    for (int j = 0; j < c.rows; ++j) {
        for (int i = 0; i < c.columns; ++i) {
            const double value = RandomValue(c.kind, 0.3 * i, 0.4 * j, random);
            sample.field.values.push_back(unit(random) < c.missing ? NaN : value);
        }
    }
}

const Case Cases[] = {
    {Kind::Random, 0.0, 2, 2, 200},     {Kind::Random, 0.2, 3, 3, 400},
    {Kind::Random, 0.0, 9, 7, 100},     {Kind::Random, 0.3, 12, 9, 200},
    {Kind::Whole, 0.0, 3, 3, 300},      {Kind::Whole, 0.0, 12, 9, 200},
    {Kind::Whole, 0.3, 12, 9, 300},     {Kind::Whole, 0.5, 20, 20, 100},
    {Kind::Smooth, 0.0, 40, 30, 20},    {Kind::Smooth, 0.05, 40, 30, 30},
    {Kind::Flat, 0.0, 12, 12, 150},     {Kind::Flat, 0.4, 15, 12, 200},
    {Kind::Infinite, 0.1, 10, 10, 200}, {Kind::Huge, 0.1, 10, 10, 200},
    {Kind::Random, 0.1, 60, 50, 10},    {Kind::Whole, 0.1, 2, 30, 100},
    {Kind::Whole, 0.1, 30, 2, 100},
};

const LevelList LevelChoices[] = {
    {1, 2, 3, 4, 5, 6, 7}, {3}, {0.5, 2.5, 2.6}, {2, 2.0000000000000004, 5}, {}, {3, 100},
};

/// The same bits, or both not a number.
bool Same(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool Same(const std::vector<Point2D>& a, const std::vector<Point2D>& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](auto p, auto q) {
               return Same(p.x, q.x) && Same(p.y, q.y);
           });
}

std::string Difference(const std::vector<IsoCurve>& fast, const std::vector<IsoCurve>& slow) {
    if (fast.size() != slow.size()) {
        return std::to_string(fast.size()) + " curves, not " + std::to_string(slow.size());
    }
    for (std::size_t k = 0; k < fast.size(); ++k) {
        if (fast[k].level != slow[k].level || fast[k].closed != slow[k].closed ||
            !Same(fast[k].points, slow[k].points)) {
            return "curve " + std::to_string(k);
        }
    }
    return {};
}

std::string Difference(const BandPolygon& fast, const BandPolygon& slow) {
    if (!Same(fast.outer, slow.outer)) {
        return "outer ring";
    }
    if (fast.holes.size() != slow.holes.size()) {
        return std::to_string(fast.holes.size()) + " holes, not " +
               std::to_string(slow.holes.size());
    }
    for (std::size_t h = 0; h < fast.holes.size(); ++h) {
        if (!Same(fast.holes[h], slow.holes[h])) {
            return "hole " + std::to_string(h);
        }
    }
    return {};
}

std::string Difference(const std::vector<ColorBand>& fast, const std::vector<ColorBand>& slow) {
    if (fast.size() != slow.size()) {
        return std::to_string(fast.size()) + " bands, not " + std::to_string(slow.size());
    }
    for (std::size_t k = 0; k < fast.size(); ++k) {
        std::string where = "band " + std::to_string(slow[k].index);
        if (fast[k].index != slow[k].index || fast[k].lower != slow[k].lower ||
            fast[k].upper != slow[k].upper || fast[k].polygons.size() != slow[k].polygons.size()) {
            return where;
        }
        for (std::size_t p = 0; p < fast[k].polygons.size(); ++p) {
            const auto difference = Difference(fast[k].polygons[p], slow[k].polygons[p]);
            if (!difference.empty()) {
                return where.append(", polygon ")
                    .append(std::to_string(p))
                    .append(", ")
                    .append(difference);
            }
        }
    }
    return {};
}

template <typename Check> void ForEachSample(Check check) {
    std::mt19937 random(20240611);
    for (const Case& c : Cases) {
        for (int round = 0; round < c.rounds && !::testing::Test::HasFailure(); ++round) {
            Sample sample;
            Fill(sample, c, random);
            const LevelList& levels =
                LevelChoices[static_cast<std::size_t>(round) % std::size(LevelChoices)];
            SCOPED_TRACE("kind " + std::to_string(static_cast<int>(c.kind)) + ", " +
                         std::to_string(c.columns) + " x " + std::to_string(c.rows) + ", round " +
                         std::to_string(round));
            check(sample.field, levels, c.kind);
        }
    }
}

} // namespace

TEST(ContoursAgainstReference, CurvesAreTheSameBitForBit) {
    std::size_t curves = 0;
    ForEachSample([&](const GridField& field, const LevelList& levels, Kind) {
        const auto slow = ReferenceIsolines(field, levels);
        EXPECT_EQ(Difference(ExtractIsolines(field, levels), slow), "");
        curves += slow.size();
    });
    EXPECT_GT(curves, 10000U);
}

TEST(ContoursAgainstReference, BandsAreTheSameBitForBitAndNothingIsGivenUp) {
    std::size_t holes = 0;
    ForEachSample([&](const GridField& field, const LevelList& levels, Kind) {
        BandTrouble trouble;
        const auto slow = ReferenceBands(field, levels, trouble);
        EXPECT_EQ(Difference(BuildBands(field, levels), slow), "");
        EXPECT_EQ(trouble.openLoops, 0);
        EXPECT_EQ(trouble.abandonedRings, 0);
        for (const ColorBand& band : slow) {
            for (const BandPolygon& polygon : band.polygons) {
                holes += polygon.holes.size();
            }
        }
    });
    EXPECT_GT(holes, 1000U);
}

TEST(ContoursAgainstReference, RingsAreSimplifiedTheSameBitForBit) {
    std::mt19937 random(7);
    for (int round = 0; round < 20000; ++round) {
        std::vector<Point2D> ring(random() % 12);
        // A lattice so coarse and steps so small that every rule has its turn.
        const double step = round % 2 == 0 ? 1.0 : 0.00005;
        for (Point2D& point : ring) {
            point = {step * static_cast<double>(random() % 4), static_cast<double>(random() % 3)};
        }
        ASSERT_TRUE(Same(SimplifyRing(ring), ReferenceSimplify(ring))) << "round " << round;
    }
}

} // namespace Merivane::Tests
