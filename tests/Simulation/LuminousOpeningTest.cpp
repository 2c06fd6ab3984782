#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "Simulation/LuminousOpening.hpp"

namespace Merivane::Simulation {
namespace {

constexpr double Pi = std::numbers::pi;

Photometry::IesFile Sides(double width, double length, double height, int units = 2) {
    Photometry::IesFile file;
    file.width = width;
    file.length = length;
    file.height = height;
    file.unitsType = units;
    return file;
}

TEST(DeclaredOpening, IsInMetresWhateverTheSigns) {
    struct Case {
        Photometry::IesFile file;
        double width;
        double length;
        double height;
        bool round;
    };
    const Case cases[] = {
        {Sides(0.3, 1.2, 0.07), 0.3, 1.2, 0.07, false},
        {Sides(1, 4, 0.5, 1), 0.3048, 1.2192, 0.1524, false}, // feet
        {Sides(-0.2, 0, 0), 0.2, 0, 0, true},                 // up to 1995
        {Sides(-0.2, -0.2, 0.1), 0.2, 0.2, 0.1, true},        // 2002
        {Sides(0.3, -0.2, 0), 0.3, 0.2, 0, true},
        {Sides(0, -0.2, 0), 0.2, 0.2, 0, true}, // the diameter stands in the length
        {Sides(-0.2, -0.2, -0.2), 0.2, 0.2, 0.2, true},
        {Sides(0, 0, -0.1), 0, 0, 0.1, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.file.width);
        const LuminousOpening opening = DeclaredOpening(c.file);
        EXPECT_DOUBLE_EQ(opening.width, c.width);
        EXPECT_DOUBLE_EQ(opening.length, c.length);
        EXPECT_DOUBLE_EQ(opening.height, c.height);
        EXPECT_EQ(opening.round, c.round);
    }
}

TEST(DeclaredOpening, OfAPieceIsScaledAlongItsLongerSide) {
    EXPECT_DOUBLE_EQ(DeclaredOpening(Sides(1, 4, 0, 1), 0.5).length, 0.6096);
    EXPECT_DOUBLE_EQ(DeclaredOpening(Sides(1, 4, 0, 1), 0.5).width, 0.3048);
    EXPECT_DOUBLE_EQ(DeclaredOpening(Sides(4, 1, 0), 0.5).width, 2.0);
    EXPECT_DOUBLE_EQ(DeclaredOpening(Sides(-4, 0, 0), 0.5).width, 4.0);
}

TEST(ApparentArea, OfABoxIsThatOfItsThreeFaces) {
    const LuminousOpening box{.width = 0.3, .length = 1.2, .height = 0.1};
    const double s = std::sqrt(0.5);
    struct Case {
        std::array<double, 3> direction;
        double area;
    };
    const Case cases[] = {
        {{0, 0, -1}, 0.36},
        {{0, 0, 1}, 0.0},  // the back does not shine
        {{1, 0, 0}, 0.03}, // the short end, seen along C0
        {{-1, 0, 0}, 0.03},
        {{0, 1, 0}, 0.12},
        {{0, -1, 0}, 0.12},
        {{s, 0, -s}, s * 0.39},
        {{0, s, s}, s * 0.12}, // from above: the side alone
        {{2.0 / 3, -1.0 / 3, -2.0 / 3}, 0.24 + 0.02 + 0.04},
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(ApparentArea(box, c.direction), c.area, 1e-15);
    }
}

TEST(ApparentArea, OfARoundOneIsThatOfACylinder) {
    const LuminousOpening drum{.width = 0.4, .length = 0.9, .height = 0.1, .round = true};
    struct Case {
        std::array<double, 3> direction;
        double area;
    };
    const Case cases[] = {
        {{0, 0, -1}, Pi * 0.04}, // a disk of 0.4 m
        {{0, 0, 1}, 0.0},        // from above
        {{0.6, 0.8, 0}, 0.04},   // the mantle, from any side
        {{0.36, -0.48, -0.8}, 0.6 * 0.04 + 0.8 * Pi * 0.04},
        {{0.6, 0, 0.8}, 0.6 * 0.04},
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(ApparentArea(drum, c.direction), c.area, 1e-15);
    }
}

TEST(DownwardArea, IsThatOfTheFace) {
    EXPECT_DOUBLE_EQ(DownwardArea({.width = 0.3, .length = 1.2, .height = 0.1}), 0.36);
    EXPECT_DOUBLE_EQ(DownwardArea({.width = 0.2, .round = true}), Pi * 0.01);
    EXPECT_EQ(DownwardArea({.width = 0.3, .length = 0, .height = 0.1}), 0.0);
    EXPECT_EQ(DownwardArea({}), 0.0);
}

} // namespace
} // namespace Merivane::Simulation
