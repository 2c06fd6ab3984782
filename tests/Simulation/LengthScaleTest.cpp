#include <gtest/gtest.h>

#include "Simulation/LengthScale.hpp"

namespace Merivane::Simulation {
namespace {

TEST(AppliedLengthScale, IsNoneWithinATinyDifference) {
    struct Case {
        double told;
        double applied;
    };
    const Case cases[] = {{1.0, 1.0},   {1.0 + 0.9e-12, 1.0}, {1.0 - 0.9e-12, 1.0},
                          {0.75, 0.75}, {2.0, 2.0},           {1.0 + 2e-12, 1.0 + 2e-12}};
    for (const Case& c : cases) {
        SceneLuminaire luminaire;
        luminaire.lengthScale = c.told;
        EXPECT_EQ(AppliedLengthScale(luminaire), c.applied);
    }
}

TEST(ScaleLongerSide, TakesTheLengthOnATieAndLeavesRoundOnes) {
    struct Case {
        double width;
        double length;
        double scaledWidth;
        double scaledLength;
    };
    const Case cases[] = {{0.3, 1.2, 0.3, 0.6},    {1.2, 0.3, 0.6, 0.3},   {1.0, 1.0, 1.0, 0.5},
                          {0.0, 0.0, 0.0, 0.0},    {-0.2, 1.0, -0.2, 1.0}, {0.2, -1.0, 0.2, -1.0},
                          {-0.2, -0.2, -0.2, -0.2}};
    for (Case c : cases) {
        ScaleLongerSide(c.width, c.length, 0.5);
        EXPECT_EQ(c.width, c.scaledWidth);
        EXPECT_EQ(c.length, c.scaledLength);
    }
}

} // namespace
} // namespace Merivane::Simulation
