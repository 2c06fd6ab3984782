#include <gtest/gtest.h>

#include "Workbench/Display/PenLook.hpp"

namespace Merivane::Workbench {
namespace {

TEST(PenLook, RepeatsAfterTwentyAndTakesWhatIsNoPenForTheFirst) {
    EXPECT_EQ(LookOfPen(1).width, 0.25);
    EXPECT_EQ(LookOfPen(7).width, 0.50);
    EXPECT_EQ(LookOfPen(27).width, 0.50);
    EXPECT_EQ(LookOfPen(255).color, LookOfPen(15).color);
    for (const int pen : {0, -1, 256}) {
        EXPECT_EQ(LookOfPen(pen).color, LookOfPen(1).color) << pen;
        EXPECT_EQ(LookOfPen(pen).width, LookOfPen(1).width) << pen;
    }
}

TEST(PenLook, TellsGoodFromBadByColour) {
    const Drawing::Color good = LookOfPen(2).color;
    const Drawing::Color bad = LookOfPen(3).color;
    EXPECT_GT(good.green, good.red);
    EXPECT_GT(bad.red, bad.green);
}

} // namespace
} // namespace Merivane::Workbench
