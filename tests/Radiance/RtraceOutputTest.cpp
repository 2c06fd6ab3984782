#include <gtest/gtest.h>

#include "Radiance/RtraceOutput.hpp"

namespace Merivane::Radiance {
namespace {

TEST(IlluminanceFromRgb, WeighsTheChannelsByLuminance) {
    EXPECT_DOUBLE_EQ(IlluminanceFromRgb(1, 1, 1), 179.0);
    EXPECT_DOUBLE_EQ(IlluminanceFromRgb(1, 0, 0), 179.0 * 0.265);
    EXPECT_DOUBLE_EQ(IlluminanceFromRgb(0, 1, 0), 179.0 * 0.67);
    EXPECT_DOUBLE_EQ(IlluminanceFromRgb(0, 0, 1), 179.0 * 0.065);
}

TEST(ParseIlluminance, ReadsOneValueALine) {
    struct Case {
        std::string text;
        std::uint64_t expected;
        bool accepted;
        std::size_t values;
    };
    const Case cases[] = {
        {"1 1 1\n2 2 2\n", 2, true, 2},
        {"1\t1\t1\t\r\n2 2 2", 2, true, 2},
        {"1 1 1\n\n", 1, true, 1},
        {" \t\n1 1 1\n  ", 1, true, 1}, // blanks alone are an empty line
        {"texto\n1 1 1\n", 1, true, 1}, // stray text is skipped
        {"# 1 1 1\n1 1 1\n", 1, true, 1},
        {"1 1 1 9 9\n", 1, true, 1}, // what follows the third number is not looked at
        {"1.5e-03 2E1 +3\n", 1, true, 1},
        {"", 0, true, 0},
        {"", 1, false, 0},
        {"1 1 1\n", 2, false, 1},
        {"1 1 1\n1 1 1\n", 1, false, 2},
        {"1 1\n1 1 1\n", 1, false, 0}, // two numbers only
        {"1\n", 1, false, 0},
        {"1 1 x\n", 1, false, 0},
        {"nan nan nan\n", 1, false, 0}, // no illuminance
        {"1 inf 1\n", 1, false, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        std::vector<double> values = {-1, -1, -1};
        EXPECT_EQ(ParseIlluminance(c.text, c.expected, values), c.accepted);
        EXPECT_EQ(values.size(), c.values);
    }
}

TEST(ParseIlluminance, GivesLux) {
    std::vector<double> values;
    ASSERT_TRUE(ParseIlluminance("1 2 3\n0 0 0\n", 2, values));
    EXPECT_DOUBLE_EQ(values[0], 179.0 * (0.265 + 2 * 0.67 + 3 * 0.065));
    EXPECT_EQ(values[1], 0.0);
}

TEST(ParseIlluminance, NeverTakesAnOutputThatWasCutForWhole) {
    const std::string text = "1.25 2.5 3.75\n4.125 5.25 6.375\n7.5 8.5 9.5\n";
    for (std::size_t length = 0; length < text.size(); ++length) {
        std::vector<double> values;
        const bool whole = length >= text.size() - 3; // the last number has begun
        EXPECT_EQ(ParseIlluminance(text.substr(0, length), 3, values), whole) << length;
    }
}

TEST(JoinOutputs, PutsLinesOneBehindTheOtherAndCounts) {
    std::string joined = "alt";
    EXPECT_TRUE(JoinOutputs({"1 1 1\n2 2 2", "", "\n3 3 3\r\n\n"}, 3, joined));
    EXPECT_EQ(joined, "1 1 1\n2 2 2\n3 3 3\n");
    EXPECT_FALSE(JoinOutputs({"1 1 1\n"}, 2, joined));
    EXPECT_EQ(joined, "1 1 1\n");
    EXPECT_FALSE(JoinOutputs({"1\n2\n"}, 1, joined));
    EXPECT_TRUE(JoinOutputs({}, 0, joined));
    EXPECT_EQ(joined, "");
}

} // namespace
} // namespace Merivane::Radiance
