#include <gtest/gtest.h>

#include "Simulation/CellSegments.hpp"

namespace Merivane::Tests {

using namespace Simulation;

TEST(CellSegments, JoinsTheEdgesOfEveryCase) {
    struct Case {
        double c0, c1, c2, c3; // level 5
        std::vector<EdgePair> pairs;
    };
    const Case cases[] = {
        {0, 0, 0, 0, {}},       {9, 9, 9, 9, {}},       {9, 0, 0, 0, {{3, 0}}},
        {0, 9, 9, 9, {{3, 0}}}, {0, 9, 0, 0, {{0, 1}}}, {9, 0, 9, 9, {{0, 1}}},
        {9, 9, 0, 0, {{3, 1}}}, {0, 0, 9, 9, {{3, 1}}}, {0, 0, 9, 0, {{1, 2}}},
        {9, 9, 0, 9, {{1, 2}}}, {0, 9, 9, 0, {{0, 2}}}, {9, 0, 0, 9, {{0, 2}}},
        {9, 9, 9, 0, {{3, 2}}}, {0, 0, 0, 9, {{3, 2}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.c0 << " " << c.c1 << " " << c.c2 << " " << c.c3);
        const CellSegmentList list = CellSegments(c.c0, c.c1, c.c2, c.c3, 5);
        ASSERT_EQ(list.count, c.pairs.size());
        for (std::size_t k = 0; k < list.count; ++k) {
            EXPECT_EQ(list.pairs[k], c.pairs[k]);
        }
    }
}

TEST(CellSegments, ASaddleKeepsTheHighCornersJoinedFromACentreAtTheLevelUp) {
    const std::array<EdgePair, 2> cutUpwards{{{3, 0}, {1, 2}}};
    const std::array<EdgePair, 2> cutDownwards{{{3, 2}, {0, 1}}};
    struct Case {
        double c0, c1, c2, c3; // level 5
        std::array<EdgePair, 2> pairs;
    };
    const Case cases[] = {
        {9, 1, 9, 1, cutDownwards},  // centre 5: corners 0 and 2 joined, 1 and 3 cut off
        {8.99, 1, 9, 1, cutUpwards}, // just below
        {9.01, 1, 9, 1, cutDownwards}, {1, 9, 1, 9, cutUpwards}, // centre 5: corners 1 and 3 joined
        {1, 8.99, 1, 9, cutDownwards}, {1, 9.01, 1, 9, cutUpwards},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.c0 << " " << c.c1);
        const CellSegmentList list = CellSegments(c.c0, c.c1, c.c2, c.c3, 5);
        EXPECT_EQ(list.count, 2U);
        EXPECT_EQ(list.pairs, c.pairs);
    }
}

TEST(CellSegments, AValueEqualToTheLevelLiesAbove) {
    EXPECT_EQ(CellSegments(5, 0, 0, 0, 5).count, 1U);
    EXPECT_EQ(CellSegments(4.999, 0, 0, 0, 5).count, 0U);
    EXPECT_EQ(CellSegments(5, 5, 5, 5, 5).count, 0U);
    EXPECT_EQ(CellSegments(5, 9, 9, 9, 5).count, 0U);
}

} // namespace Merivane::Tests
