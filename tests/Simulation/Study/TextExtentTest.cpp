#include <gtest/gtest.h>

#include "Simulation/Study/TextExtent.hpp"

namespace Merivane::Simulation {
namespace {

TEST(EstimateTextWidth, GrowsWithTheTextAndItsHeight) {
    EXPECT_EQ(EstimateTextWidth("", 2.0), 0.0);
    EXPECT_DOUBLE_EQ(EstimateTextWidth("500", 2.0), 3 * EstimateTextWidth("0", 2.0));
    EXPECT_DOUBLE_EQ(EstimateTextWidth("500", 4.0), 2 * EstimateTextWidth("500", 2.0));
    EXPECT_GT(EstimateTextWidth("500", 2.0, true), EstimateTextWidth("500", 2.0));
}

TEST(EstimateTextWidth, KnowsNarrowLettersFromWideOnes) {
    EXPECT_LT(EstimateTextWidth("il.", 1.0), EstimateTextWidth("W", 1.0));
    EXPECT_LT(EstimateTextWidth(" ", 1.0), EstimateTextWidth("0", 1.0));
}

TEST(EstimateTextWidth, CountsLettersNotBytes) {
    EXPECT_DOUBLE_EQ(EstimateTextWidth("NÃO", 1.0), EstimateTextWidth("NAO", 1.0));
    EXPECT_DOUBLE_EQ(EstimateTextWidth("çãéíõü", 1.0), EstimateTextWidth("caeiou", 1.0));
    EXPECT_DOUBLE_EQ(EstimateTextWidth("≥", 1.0), EstimateTextWidth("≤", 1.0));
    EXPECT_LT(EstimateTextWidth("²", 1.0), EstimateTextWidth("2", 1.0));
}

TEST(EstimateTextWidth, GivesUnknownLettersAnEm) {
    EXPECT_GE(EstimateTextWidth("明", 1.0), 1.37);
    EXPECT_GE(EstimateTextWidth("Æ", 1.0, true), 1.49);
    EXPECT_GE(EstimateTextWidth("😀", 1.0), 1.37);
}

TEST(EstimateTextWidth, LeavesOutControlCharacters) {
    EXPECT_DOUBLE_EQ(EstimateTextWidth("a\tb\n", 1.0), EstimateTextWidth("ab", 1.0));
}

TEST(EstimateTextWidth, SurvivesTextThatIsNotUtf8) {
    for (const std::string& broken : {std::string("\xC3"), std::string("\xE2\x89"),
                                      std::string("\x80\xFF"), std::string("\xF0\x9F\x98")}) {
        EXPECT_GE(EstimateTextWidth(broken, 1.0), 1.37);
    }
    EXPECT_GE(EstimateTextWidth("\xC3ll", 1.0), EstimateTextWidth("ll", 1.0));
}

TEST(TextLinePitch, LeavesRoomForAccentsAndDescenders) {
    EXPECT_DOUBLE_EQ(TextLinePitch(2.0), 2 * TextLinePitch(1.0));
    EXPECT_GE(TextLinePitch(1.0), 1.5);
}

} // namespace
} // namespace Merivane::Simulation
