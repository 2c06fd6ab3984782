#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "Simulation/PrintedValue.hpp"
#include "Simulation/RandomPolygons.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {
namespace {

TEST(FormatDecimal, PrintsTheRoundedValueWithADecimalComma) {
    struct Case {
        double value;
        int decimals;
        std::string text;
    };
    const Case cases[] = {
        {0.695, 2, "0,70"},
        {0.6949, 2, "0,69"},
        {0.7, 2, "0,70"},
        {74.5, 0, "75"},
        {74.49999, 0, "74"},
        {75.5, 0, "76"}, // away from zero, not to the even one
        {299.5, 0, "300"},
        {18.95, 1, "19,0"},
        {18.94, 1, "18,9"},
        {0.0, 0, "0"},
        {0.0, 2, "0,00"},
        {-0.0, 2, "0,00"},
        {-0.004, 2, "0,00"}, // never minus zero
        {-0.4, 0, "0"},
        {-0.5, 0, "-1"},
        {-0.005, 2, "-0,01"},
        {-12.34, 1, "-12,3"},
        {1234567.0, 0, "1234567"},
        {1e15, 2, "1000000000000000,00"},
        {9007199254740993.0, 0, "9007199254740992"},
        {1e22, 1, "10000000000000000000000,0"},
        {5e-324, 2, "0,00"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FormatDecimal(c.value, c.decimals), c.text) << c.value;
    }
}

TEST(FormatDecimal, PrintsTheLargestNumbers) {
    const double largest = std::numeric_limits<double>::max();
    const std::string text = FormatDecimal(largest, 2); // scaled by 100 it would be infinite
    EXPECT_EQ(text.size(), 309U + 3U);
    EXPECT_EQ(text.substr(0, 4), "1797");
    EXPECT_EQ(text.substr(309), ",00");
    EXPECT_EQ(FormatDecimal(-largest, 0).substr(0, 5), "-1797");
    EXPECT_EQ(FormatDecimal(std::numeric_limits<double>::infinity(), 1), "inf");
    EXPECT_EQ(FormatDecimal(-std::numeric_limits<double>::infinity(), 1), "-inf");
}

TEST(FormatDecimal, TellsExactlyWhatIsCompared) {
    Tests::Random random(8);
    for (int k = 0; k < 20000; ++k) {
        const int decimals = Tests::UniformInt(random, 0, 4);
        const double value = Tests::Uniform(random, -1, 1) * std::pow(10.0, k % 8);
        std::string text = FormatDecimal(value, decimals);
        std::replace(text.begin(), text.end(), ',', '.');
        double read = 0.0;
        ASSERT_TRUE(Text::ReadEntireNumber(text, read));
        ASSERT_EQ(read, PrintedValue(value, decimals)) << text;
    }
}

TEST(PrintedValue, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(PrintedValue(0.695, 2), 0.7);
    EXPECT_EQ(PrintedValue(299.5, 0), 300.0);
    EXPECT_EQ(PrintedValue(-299.5, 0), -300.0);
    EXPECT_EQ(PrintedValue(2.5, 0), 3.0);
    EXPECT_EQ(PrintedValue(0.25, 1), 0.3);
    EXPECT_EQ(PrintedValue(299.49, 0), 299.0);
    EXPECT_FALSE(std::signbit(PrintedValue(-0.1, 0)));
}

TEST(PrintedValue, LeavesWhatHasNoDecimalsAlone) {
    EXPECT_EQ(PrintedValue(1e308, 2), 1e308);
    EXPECT_EQ(PrintedValue(1e22, 0), 1e22);
    EXPECT_TRUE(std::isnan(PrintedValue(std::numeric_limits<double>::quiet_NaN(), 2)));
}

TEST(PrintedValue, DoesNotChangeWhatWasPrinted) {
    Tests::Random random(9);
    for (int k = 0; k < 20000; ++k) {
        const double printed = PrintedValue(Tests::Uniform(random, -5000, 5000), k % 3);
        ASSERT_EQ(PrintedValue(printed, k % 3), printed);
    }
}

TEST(MeetsMinimum, ComparesWhatStandsOnTheSheet) {
    struct Case {
        double value;
        double limit;
        int decimals;
        bool meets;
    };
    const Case cases[] = {
        {0.695, 0.7, 2, true},         // prints 0,70
        {0.6949, 0.7, 2, false},       // prints 0,69
        {299.5, 300, 0, true},         // prints 300
        {299.49, 300, 0, false},       // prints 299
        {300, 300, 0, true},           //
        {0.4, 0.4, 2, true},           //
        {0.7, 0.7 + 0.9e-9, 2, true},  // within the tolerance
        {0.7, 0.7 + 1.5e-9, 2, false}, // beyond it
        {19.95, 20.0, 1, true},        // 199.5 away from zero
    };
    for (const Case& c : cases) {
        EXPECT_EQ(MeetsMinimum(c.value, c.limit, c.decimals), c.meets) << c.value;
    }
}

} // namespace
} // namespace Merivane::Simulation
