#include "Simulation/Glare/RoomBackground.hpp"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "Simulation/Glare/RoomSamples.hpp"
#include "Simulation/Glare/UgrTable.hpp"
#include "Support/PlainRadiosity/PlainRadiosity.hpp"

namespace Merivane::Simulation {
namespace {

using Tests::RoomOf;

struct NamedRoom {
    const char* name;
    UgrRoom room;
};

const NamedRoom SmallRooms[] = {
    {"2H x 3H", RoomOf(4, 6, 2)},
    {"2H x 4H, H no power of two", RoomOf(2.74, 5.48, 1.37)},
    {"odd lattices", RoomOf(2.5, 3.5, 1)},
    {"grid that does not fit the patches", RoomOf(3.3, 4.1, 1.3)},
    {"one luminaire", RoomOf(0.3, 0.35, 1.3)},
    {"higher than wide", RoomOf(1.5, 2, 3)},
};

TEST(RoomBackground, AgreesWithThePlainAlgorithm) {
    double worst = 0.0;
    for (const NamedRoom& named : SmallRooms) {
        for (const bool crosswise : {false, true}) {
            UgrRoom room = named.room;
            room.crosswise = crosswise;
            const std::array<double, 4> fast = RoomBackground(room, Tests::SkewLuminaire());
            const std::array<double, 4> plain =
                Tests::PlainBackground(room, Tests::SkewLuminaire());
            for (std::size_t k = 0; k < 4; ++k) {
                EXPECT_NEAR(fast[k] / plain[k], 1.0, 1e-4) << named.name << " " << crosswise << k;
                worst = std::max(worst, std::abs(fast[k] / plain[k] - 1));
            }
        }
    }
    std::cout << "largest relative difference " << worst << '\n';
}

TEST(RoomBackground, DiffersBetweenTheEndsWhereTheLuminaireIsSkew) {
    const std::array<double, 4> skew = RoomBackground(RoomOf(4, 6, 2), Tests::SkewLuminaire());
    EXPECT_GT(std::abs(skew[0] / skew[1] - 1), 0.005);
    EXPECT_GT(std::abs(skew[2] / skew[3] - 1), 0.005);
    const std::array<double, 4> even = RoomBackground(RoomOf(4, 6, 2), Tests::EvenLuminaire());
    EXPECT_NEAR(even[0] / even[1], 1.0, 1e-12);
    EXPECT_NEAR(even[2] / even[3], 1.0, 1e-12);
}

TEST(RoomBackgrounds, AreThoseOfEachReflectanceSet) {
    const std::vector<ReflectanceSet> sets(ReflectanceSets.begin(), ReflectanceSets.end());
    UgrRoom room = RoomOf(2, 3, 1);
    const auto together = RoomBackgrounds(room, Tests::SkewLuminaire(), sets);
    ASSERT_EQ(together.size(), sets.size());
    for (std::size_t i = 0; i < sets.size(); ++i) {
        room.ceilingReflectance = sets[i].ceiling;
        room.wallReflectance = sets[i].walls;
        room.floorReflectance = sets[i].floor;
        const std::array<double, 4> alone = RoomBackground(room, Tests::SkewLuminaire());
        for (std::size_t k = 0; k < 4; ++k) {
            EXPECT_NEAR(together[i][k] / alone[k], 1.0, 1e-5) << i << " " << k;
        }
    }
    EXPECT_TRUE(RoomBackgrounds(room, Tests::SkewLuminaire(), {}).empty());
}

TEST(RoomBackground, IsNothingWithoutLightARoomOrReflectance) {
    const std::array<double, 4> none{};
    UgrRoom black = RoomOf(2, 3, 1);
    black.ceilingReflectance = black.wallReflectance = black.floorReflectance = 0.0;
    EXPECT_EQ(RoomBackground(black, Tests::SkewLuminaire()), none);
    EXPECT_EQ(RoomBackground(RoomOf(2, 3, 1), {}), none);
    EXPECT_EQ(RoomBackground(RoomOf(0, 3, 1), Tests::SkewLuminaire()), none);
    EXPECT_EQ(RoomBackground(RoomOf(2, 3, -2), Tests::SkewLuminaire()), none);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(RoomBackground(RoomOf(2, nan, 1), Tests::SkewLuminaire()), none);
}

// A cavity that is the same all over: every eye sees about the mean reflected light.
TEST(RoomBackground, IsTheMeanOfTheRoomWhereItIsNearlyUniform) {
    UgrRoom cube = RoomOf(2.2, 2.2, 1);
    cube.ceilingReflectance = cube.wallReflectance = cube.floorReflectance = 0.95;
    const std::array<double, 4> light = RoomBackground(cube, Tests::EvenLuminaire());
    const double flux = 81 * 1000 * std::numbers::pi;
    const double mean = flux / (6 * 2.2 * 2.2) * 0.95 / 0.05;
    for (const double value : light) {
        EXPECT_NEAR(value / mean, 1.0, 0.1);
    }
}

TEST(EvaluateRoom, AgreesWithThePlainAlgorithm) {
    double worst = 0.0;
    for (const NamedRoom& named : SmallRooms) {
        for (const bool fieldLimit : {false, true}) {
            const GlareOptions options{false, fieldLimit};
            const auto fast = EvaluateRoom(Tests::SkewLuminaire(), named.room, options);
            const auto plain =
                Tests::PlainEvaluateRoom(Tests::SkewLuminaire(), named.room, options);
            for (std::size_t k = 0; k < 4; ++k) {
                EXPECT_EQ(fast[k].sources, plain[k].sources);
                EXPECT_EQ(fast[k].valid, plain[k].valid);
                EXPECT_NEAR(fast[k].ugr, plain[k].ugr, 0.005) << named.name << " " << k;
                worst = std::max(worst, std::abs(fast[k].ugr - plain[k].ugr));
            }
        }
    }
    std::cout << "largest difference " << worst << " UGR\n";
}

} // namespace
} // namespace Merivane::Simulation
