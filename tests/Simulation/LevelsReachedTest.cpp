#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "Simulation/LevelsReached.hpp"

namespace Merivane::Tests {

using namespace Simulation;

TEST(CountLevelsReached, AValueEqualToALevelHasReachedIt) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(CountLevelsReached({49.9, 50, 50.1, 100, nan, infinity, -infinity}, 7, {50, 100}),
              (std::vector<std::int32_t>{0, 1, 1, 2, -1, 2, 0}));
    EXPECT_EQ(CountLevelsReached({1, nan}, 2, {}), (std::vector<std::int32_t>{0, -1}));
    EXPECT_TRUE(CountLevelsReached({1}, 0, {50}).empty());
}

TEST(CountLevelsReached, CountsTheSameWhateverStandsBesideAValue) {
    std::mt19937 random(3);
    const LevelList levels{10, 20, 30, 40, 50, 60, 70, 80, 90};
    for (const std::size_t size : {1U, 31U, 32U, 33U, 64U, 200U}) {
        std::vector<double> values(size);
        for (double& value : values) {
            const auto dice = random() % 120;
            value =
                dice > 110 ? std::numeric_limits<double>::quiet_NaN() : static_cast<double>(dice);
        }
        const auto reached = CountLevelsReached(values, size, levels);
        for (std::size_t n = 0; n < size; ++n) {
            std::int32_t expected = values[n] == values[n] ? 0 : -1;
            for (const double level : levels) {
                expected += values[n] >= level ? 1 : 0;
            }
            EXPECT_EQ(reached[n], expected) << values[n];
        }
    }
}

} // namespace Merivane::Tests
