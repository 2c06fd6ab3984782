#include "Simulation/Glare/TableReading.hpp"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace Merivane::Simulation {
namespace {

TEST(NearestReflectanceSet, CountsCeilingAndWallsAndKeepsTheEarlierOnATie) {
    struct Case {
        double ceiling, walls;
        std::size_t set;
    };
    const Case cases[] = {
        {0.7, 0.5, 0},
        {0.7, 0.3, 1},
        {0.5, 0.5, 2},
        {0.5, 0.3, 3},
        {0.3, 0.3, 4},
        {1.0, 1.0, 0},
        {0, 0, 4},
        {0.9, 0, 1},
        {0.3, 0.5, 2},         // 0.2 off both
                               // 2 and 4
        {0.6, 0.5, 0},         // a tie
        {0.6 - 2e-12, 0.5, 0}, // nearer to 2, by less than 1e-12 of the square
        {0.6 - 3e-12, 0.5, 2},
        {0.7, 0.4, 0},
        {0.7, 0.4 - 3e-12, 1},
        {0.6, 0.4, 0}, // between four
    };
    for (const Case& c : cases) {
        EXPECT_EQ(NearestReflectanceSet(c.ceiling, c.walls), c.set) << c.ceiling << " " << c.walls;
    }
}

TEST(NearestStandardRoom, CountsProportionsAndKeepsTheEarlierOnATie) {
    struct Case {
        double x, y;
        UgrRoomSize room;
    };
    const double middle = std::sqrt(8.0); // of 2 and 4
    const Case cases[] = {
        {2, 2, {2, 2}},
        {12, 8, {12, 8}},
        {0, 0, {2, 2}},
        {-1, 100, {2, 12}},
        {100, 100, {8, 12}}, // there is no 12 x 12; a tie with 12 x 8
        {12, 12, {8, 12}},
        {12.1, 12, {12, 8}},
        {8, 2, {4, 2}}, // half and twice are as far: 8 x 4 is later
        {3, 2.4, {4, 2}},
        {100, 0.01, {4, 2}}, // 12 x 4 is nearer in length, and less so in width
        {5e4, 0, {4, 2}},    // no width counts as a millionth
        {2e5, 0, {12, 4}},
        {2e5, 1e-9, {12, 4}},
        {middle, 2, {2, 2}},
        {middle * (1 + 5e-13), 2, {2, 2}}, // nearer to 4, by less than 1e-12 of the square
        {middle * (1 + 1e-12), 2, {4, 2}},
        {2, 2.449, {2, 2}}, // of 2 and 3: 2.4495
        {2, 2.45, {2, 3}},
    };
    for (const Case& c : cases) {
        const UgrRoomSize room = NearestStandardRoom(c.x, c.y);
        EXPECT_EQ(std::pair(room.x, room.y), std::pair(c.room.x, c.room.y)) << c.x << " x " << c.y;
    }
}

TEST(TableReading, TakesTheFirstEntryWhereNothingIsNear) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(NearestReflectanceSet(nan, 0.5), 0U);
    EXPECT_EQ(NearestStandardRoom(2, std::numeric_limits<double>::infinity()).x, 2);
    EXPECT_EQ(NearestStandardRoom(2, std::numeric_limits<double>::infinity()).y, 2);
}

} // namespace
} // namespace Merivane::Simulation
