#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "Workbench/Display/PatternLines.hpp"

namespace Merivane::Workbench {
namespace {

using Rings = std::vector<std::vector<Drawing::Point>>;

const Rings Square = {{{0.5, 0.5}, {10.5, 0.5}, {10.5, 10.5}, {0.5, 10.5}}};

double TotalLength(const std::vector<std::pair<Drawing::Point, Drawing::Point>>& lines) {
    double total = 0.0;
    for (const auto& [from, to] : lines) {
        total += std::hypot(to.x - from.x, to.y - from.y);
    }
    return total;
}

TEST(PatternLines, StandOnMultiplesOfTheirDistance) {
    const auto lines = PatternLines(Square, 0.0, 2.0);
    ASSERT_EQ(lines.size(), 5U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_NEAR(lines[i].first.y, 2.0 * static_cast<double>(i + 1), 1e-12);
        EXPECT_NEAR(lines[i].first.x, 0.5, 1e-12);
        EXPECT_NEAR(lines[i].second.x, 10.5, 1e-12);
    }
}

TEST(PatternLines, LeaveHolesOut) {
    Rings rings = Square;
    rings.push_back({{3, 3}, {7, 3}, {7, 7}, {3, 7}});
    EXPECT_NEAR(TotalLength(PatternLines(rings, 0.0, 2.0)), 50.0 - 2 * 4.0, 1e-9); // at 4 and 6
}

TEST(PatternLines, CoverAnAreaByTheirLengthWhateverTheirAngle) {
    for (const double angle : {0.3, std::numbers::pi / 4.0, -1.0}) {
        EXPECT_NEAR(TotalLength(PatternLines(Square, angle, 0.05)) * 0.05, 100.0, 0.2) << angle;
    }
}

TEST(PatternLines, AreNoneOfNothingAndOfAnEndlessRegion) {
    EXPECT_TRUE(PatternLines({}, 0.0, 2.0).empty());
    EXPECT_TRUE(PatternLines({{{0, 0}, {1, 0}, {1, 50'000}}}, 0.0, 2.0).empty());
}

} // namespace
} // namespace Merivane::Workbench
