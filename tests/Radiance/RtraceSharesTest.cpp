#include <gtest/gtest.h>

#include "Radiance/RtraceShares.hpp"

namespace Merivane::Radiance {
namespace {

std::string NumberedLines(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += std::to_string(i) + "\n";
    }
    return text;
}

TEST(ProcessCountFor, GivesEachProcessWorkAndLeavesTwoProcessorsFree) {
    struct Case {
        std::uint64_t points;
        std::uint32_t processors;
        std::int32_t count;
    };
    const Case cases[] = {
        {0, 16, 1},        {1, 16, 1},        {299, 16, 1},
        {300, 16, 2},      {301, 16, 2},      {3000, 16, 14},
        {1'000'000, 2, 1}, {100000, 1, 1},    {100000, 0, 1},
        {100000, 3, 1},    {100000, 4, 2},    {100000, 66, 64},
        {100000, 65, 63},  {100000, 256, 64}, {9599, 256, 63},
        {9600, 256, 64},   {9750, 256, 64},   {UINT64_MAX, UINT32_MAX, 64},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ProcessCountFor(c.points, c.processors), c.count)
            << c.points << " points, " << c.processors << " processors";
    }
}

TEST(NonEmptyLines, SplitAtLineFeedAndDropOneCarriageReturn) {
    using Lines = std::vector<std::string_view>;
    EXPECT_EQ(NonEmptyLines(""), Lines{});
    EXPECT_EQ(NonEmptyLines("a"), Lines{"a"});
    EXPECT_EQ(NonEmptyLines("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(NonEmptyLines("\n\r\n a \r\n\nb\r\r\n"), (Lines{" a ", "b\r"}));
    EXPECT_EQ(NonEmptyLines("a\rb\n"), Lines{"a\rb"});
}

TEST(SeedPoints, ThinsToAboutAHundredLines) {
    struct Case {
        std::size_t lines;
        std::size_t step;
        std::size_t seeds;
    };
    const Case cases[] = {
        {1, 2, 1},       {2, 2, 1},       {3, 2, 2},       {150, 2, 75},
        {299, 2, 150},   {300, 3, 100},   {301, 3, 101},   {2300, 23, 100},
        {2399, 23, 105}, {2400, 24, 100}, {2500, 24, 105}, {10000, 24, 417},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.lines);
        const std::string seeds = SeedPoints(NumberedLines(c.lines));
        const auto lines = NonEmptyLines(seeds);
        ASSERT_EQ(lines.size(), c.seeds);
        EXPECT_EQ(lines[0], "0");
        EXPECT_EQ(lines.back(), std::to_string((c.seeds - 1) * c.step));
        EXPECT_TRUE(seeds.ends_with('\n'));
    }
    EXPECT_EQ(SeedPoints(""), "");
    EXPECT_EQ(SeedPoints("a\r\n\nb\nc"), "a\nc\n");
}

TEST(SplitPoints, SharesContiguousLinesEvenly) {
    const std::vector<std::string> shares = SplitPoints(NumberedLines(150), 4);
    ASSERT_EQ(shares.size(), 4u);
    EXPECT_EQ(NonEmptyLines(shares[0]).size(), 37u);
    EXPECT_EQ(NonEmptyLines(shares[1]).size(), 38u);
    EXPECT_EQ(NonEmptyLines(shares[2]).size(), 37u);
    EXPECT_EQ(NonEmptyLines(shares[3]).size(), 38u);
    EXPECT_EQ(NonEmptyLines(shares[1]).front(), "37");
    EXPECT_EQ(shares[0] + shares[1] + shares[2] + shares[3], NumberedLines(150));
}

TEST(SplitPoints, LosesNothingWhateverTheCounts) {
    for (std::size_t lines = 0; lines < 40; ++lines) {
        for (std::int32_t count = 1; count <= 12; ++count) {
            std::string all;
            std::size_t smallest = lines;
            std::size_t largest = 0;
            for (const std::string& share : SplitPoints(NumberedLines(lines), count)) {
                all += share;
                smallest = std::min(smallest, NonEmptyLines(share).size());
                largest = std::max(largest, NonEmptyLines(share).size());
            }
            EXPECT_EQ(all, NumberedLines(lines));
            EXPECT_LE(largest - smallest, 1u);
        }
    }
    EXPECT_TRUE(SplitPoints("a\n", 0).empty());
    EXPECT_TRUE(SplitPoints("a\n", -3).empty());
}

} // namespace
} // namespace Merivane::Radiance
