#include <gtest/gtest.h>

#include "Simulation/RingSimplification.hpp"

namespace Merivane::Tests {

using namespace Simulation;
using Ring = std::vector<Point2D>;

TEST(SimplifyRing, TakesStraightThroughVerticesOut) {
    EXPECT_EQ(SimplifyRing({{0, 0}, {1, 0}, {2, 0}, {2, 2}, {1, 2}, {0, 2}, {0, 1}}),
              (Ring{{0, 0}, {2, 0}, {2, 2}, {0, 2}}));
}

TEST(SimplifyRing, TakesAStraightThroughFirstVertexOut) {
    EXPECT_EQ(SimplifyRing({{1, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 0}}),
              (Ring{{2, 0}, {2, 2}, {0, 2}, {0, 0}}));
}

TEST(SimplifyRing, LeavesARingThatCarriesNothingSpare) {
    const Ring ring{{0, 0}, {2, 0}, {2, 2}, {0, 2}};
    EXPECT_EQ(SimplifyRing(ring), ring);
}

TEST(SimplifyRing, TakesAVertexNearerThanATenthOfAMillimetreOut) {
    const struct {
        double distance;
        std::size_t left;
    } cases[] = {{0.000099, 4}, {0.0001, 5}, {0.000101, 5}};
    for (const auto& c : cases) {
        EXPECT_EQ(SimplifyRing({{0, 0}, {2, 0}, {2, c.distance}, {1, 2}, {0, 2}}).size(), c.left);
    }
}

TEST(SimplifyRing, TheSineOfAStraightTurnIsAtMostAThousandMillionth) {
    EXPECT_EQ(SimplifyRing({{0, 0}, {1, 0.9e-9}, {2, 0}, {1, 2}}).size(), 4U); // both halves turn
    EXPECT_EQ(SimplifyRing({{0, 0}, {1, 0}, {2, 0.9e-9}, {1, 2}}).size(), 3U);
    EXPECT_EQ(SimplifyRing({{0, 0}, {1, 0}, {2, 1.1e-9}, {1, 2}}).size(), 4U);
}

TEST(SimplifyRing, TheSineOfATurnDoesNotDependOnTheLengthOfTheEdges) {
    EXPECT_EQ(SimplifyRing({{0, 0}, {10, 0}, {20, 0.9e-8}, {10, 20}}).size(), 3U);
    EXPECT_EQ(SimplifyRing({{0, 0}, {10, 0}, {20, 1.1e-8}, {10, 20}}).size(), 4U);
    EXPECT_EQ(SimplifyRing({{0, 0}, {0.01, 0}, {0.02, 0.9e-11}, {0, 20}}).size(), 3U);
    EXPECT_EQ(SimplifyRing({{0, 0}, {0.01, 0}, {0.02, 1.1e-11}, {0, 20}}).size(), 4U);
}

TEST(SimplifyRing, AnEdgeOfAThousandMillionthOfAMillimetreHasNoDirection) {
    // Of the two vertices that stand as good as in one place, the first stays when the edge
    // between them is too short to tell that it goes straight on.
    const struct {
        double distance;
        double left;
    } cases[] = {{0.9e-12, 0.0}, {1e-12, 0.0}, {1.1e-12, 1.1e-12}};
    for (const auto& c : cases) {
        EXPECT_EQ(SimplifyRing({{0, 0}, {c.distance, 0}, {2, 1}, {-1, 1}, {-1, 0}}),
                  (c.left == 0.0 ? Ring{{0, 0}, {2, 1}, {-1, 1}, {-1, 0}}
                                 : Ring{{c.left, 0}, {2, 1}, {-1, 1}, {-1, 0}}))
            << c.distance;
    }
}

TEST(SimplifyRing, ASpikeThatFoldsBackStays) {
    const Ring ring{{0, 0}, {3, 0}, {2, 0}, {2, 2}};
    EXPECT_EQ(SimplifyRing(ring), ring);
}

TEST(SimplifyRing, GoesRoundAgainUntilNothingFallsAway) {
    // The first vertex becomes straight only when the last has gone.
    EXPECT_EQ(SimplifyRing({{1, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 0}, {0, 0.00005}}),
              (Ring{{2, 0}, {2, 2}, {0, 2}, {0, 0}}));
}

TEST(SimplifyRing, StopsBelowThreeVertices) {
    EXPECT_EQ(SimplifyRing({}), Ring{});
    EXPECT_EQ(SimplifyRing({{1, 1}, {1, 1}}), (Ring{{1, 1}, {1, 1}}));
    EXPECT_EQ(SimplifyRing({{1, 1}, {1, 1}, {1, 1}, {1, 1}}).size(), 2U);
}

} // namespace Merivane::Tests
