#include <gtest/gtest.h>

#include "Document/OutlineCheck.hpp"

namespace Merivane::Document {

using Simulation::Point2D;
using Ring = std::vector<Point2D>;

namespace {

const Ring Square = {{0, 0}, {4, 0}, {4, 4}, {0, 4}};

} // namespace

TEST(OutlineCheck, AcceptsRingsOfBothDirectionsAndHolesThatTouch) {
    const Ring clockwise(Square.rbegin(), Square.rend());
    EXPECT_EQ(JudgeOutline({clockwise, {}}).fault, OutlineFault::None);
    const Ring columnAtTheWall = {{0, 1}, {1, 1}, {1, 2}, {0, 2}};
    const Ring columnInTheRoom = {{2, 2}, {3, 2}, {3, 3}, {2, 3}};
    EXPECT_EQ(JudgeOutline({Square, {columnAtTheWall, columnInTheRoom}}).fault, OutlineFault::None);
    const Ring withinTolerance = {{-1e-7, 1}, {1, 1}, {1, 2}, {-1e-7, 2}};
    EXPECT_EQ(JudgeOutline({Square, {withinTolerance}}).fault, OutlineFault::None);
    const Ring pinched = {{0, 0}, {2, 0}, {1, 1}, {2, 2}, {0, 2}, {1, 1}};
    EXPECT_EQ(JudgeOutline({pinched, {}}).fault, OutlineFault::None);
}

TEST(OutlineCheck, FindsWhereARingCrossesItself) {
    const OutlineJudgement bowTie = JudgeOutline({{{0, 0}, {2, 2}, {2, 0}, {0, 2}}, {}});
    EXPECT_EQ(bowTie.fault, OutlineFault::SelfCrossing);
    EXPECT_EQ(bowTie.ring, -1);
    EXPECT_NEAR(bowTie.place.x, 1.0, 1e-12);
    EXPECT_NEAR(bowTie.place.y, 1.0, 1e-12);
    const OutlineJudgement hole = JudgeOutline({Square, {{{1, 1}, {3, 3}, {3, 1}, {1, 3}}}});
    EXPECT_EQ(hole.fault, OutlineFault::SelfCrossing);
    EXPECT_EQ(hole.ring, 0);
}

TEST(OutlineCheck, FindsHolesThatCrossOrLeaveTheOutline) {
    const Ring inside = {{1, 1}, {2, 1}, {2, 2}, {1, 2}};
    const Ring across = {{3, 1}, {5, 1}, {5, 2}, {3, 2}};
    const Ring outside = {{5, 1}, {6, 1}, {6, 2}, {5, 2}};
    const Ring overlapping = {{1.5, 1.5}, {3, 1.5}, {3, 3}, {1.5, 3}};
    EXPECT_EQ(JudgeOutline({Square, {inside, across}}).fault, OutlineFault::HoleCrossing);
    EXPECT_EQ(JudgeOutline({Square, {inside, across}}).ring, 1);
    EXPECT_EQ(JudgeOutline({Square, {inside, overlapping}}).fault, OutlineFault::HoleCrossing);
    const OutlineJudgement left = JudgeOutline({Square, {inside, outside}});
    EXPECT_EQ(left.fault, OutlineFault::HoleOutside);
    EXPECT_EQ(left.ring, 1);
    EXPECT_EQ(left.place, (Point2D{5, 1}));
}

TEST(OutlineCheck, FindsRingsWithoutAnArea) {
    EXPECT_EQ(JudgeOutline({{{0, 0}, {1, 0}, {2, 0}}, {}}).fault, OutlineFault::NoArea);
    const OutlineJudgement hole = JudgeOutline({Square, {{{1, 1}, {2, 2}, {3, 3}}}});
    EXPECT_EQ(hole.fault, OutlineFault::NoArea);
    EXPECT_EQ(hole.ring, 0);
    const double far = 99000.0;
    const Ring small = {{far, far}, {far + 0.01, far}, {far + 0.01, far + 0.01}};
    EXPECT_EQ(JudgeOutline({small, {}}).fault, OutlineFault::None);
}

TEST(OutlineCheck, DropsVerticesThatRepeatTheirNeighbour) {
    EXPECT_EQ(WithoutRepeats({{0, 0}, {0, 0}, {1, 0}, {1, 1}, {1, 1}, {0, 0}}),
              (Ring{{0, 0}, {1, 0}, {1, 1}}));
    EXPECT_EQ(WithoutRepeats({{2, 2}, {2, 2}, {2, 2}}), (Ring{{2, 2}}));
    EXPECT_EQ(WithoutRepeats({}), Ring{});
    EXPECT_EQ(WithoutRepeats(Square), Square);
}

} // namespace Merivane::Document
