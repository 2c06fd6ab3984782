#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "Simulation/StoredText.hpp"

namespace Merivane::Simulation {
namespace {

TEST(TakeHeaderLine, TakesTheLineAndItsEnd) {
    std::string_view rest = "Name 1\nnext\n";
    EXPECT_TRUE(TakeHeaderLine(rest, "Name 1"));
    EXPECT_EQ(rest, "next\n");
    EXPECT_FALSE(TakeHeaderLine(rest, "Name 1"));
    EXPECT_EQ(rest, "");
    EXPECT_FALSE(TakeHeaderLine(rest, "Name 1"));
}

TEST(TakeHeaderLine, NeedsNoLineEndAndNothingElse) {
    for (const std::string text : {"Name 1 ", "Name 1\r\n", " Name 1", "Name", "Name 12"}) {
        std::string_view rest = text;
        EXPECT_FALSE(TakeHeaderLine(rest, "Name 1")) << text;
    }
    std::string_view rest = "Name 1";
    EXPECT_TRUE(TakeHeaderLine(rest, "Name 1"));
}

struct Taken {
    const char* text;
    bool read;
    double value;
    const char* rest;
};

TEST(TakeInteger, StopsAtTheFirstByteThatIsNoDigit) {
    const Taken cases[] = {
        {"12 34", true, 12, " 34"},
        {" \t\n\v\f\r7", true, 7, ""},
        {"-5x", true, -5, "x"},
        {"+5", true, 5, ""},
        {"1.5", true, 1, ".5"},
        {"0x10", true, 0, "x10"},
        {"2147483647", true, 2147483647.0, ""},
        {"2147483648", false, 0, ""},
        {"-2147483648", true, -2147483648.0, ""},
        {"-2147483649", false, 0, ""},
        {"", false, 0, ""},
        {"  ", false, 0, ""},
        {"x", false, 0, "x"},
        {"+-5", false, 0, "-5"},
        {"-", false, 0, ""},
    };
    for (const Taken& c : cases) {
        SCOPED_TRACE(c.text);
        std::string_view rest = c.text;
        std::int32_t value = 99;
        EXPECT_EQ(TakeInteger(rest, value), c.read);
        EXPECT_EQ(value, c.read ? static_cast<std::int32_t>(c.value) : 99);
        EXPECT_EQ(rest, c.rest);
    }
}

TEST(TakeNumber, ReadsDecimalFormsOnly) {
    const Taken cases[] = {
        {"1.5 2", true, 1.5, " 2"},  {".5", true, 0.5, ""},     {"5.", true, 5, ""},
        {"-2e3x", true, -2000, "x"}, {"+1E-2", true, 0.01, ""}, {"1.2.3", true, 1.2, ".3"},
        {"1,5", true, 1, ",5"},      {"0x10", true, 0, "x10"},  {"1e-999", true, 0, ""},
        {"1e999", false, 0, ""},     {"inf", false, 0, "inf"},  {"nan", false, 0, "nan"},
        {"1e", false, 0, ""},        {"1e+", false, 0, ""},     {".", false, 0, ""},
        {"", false, 0, ""},          {".e5", false, 0, "e5"},   {"-", false, 0, ""},
        {"--1", false, 0, "-1"},
    };
    for (const Taken& c : cases) {
        SCOPED_TRACE(c.text);
        std::string_view rest = c.text;
        double value = 99.0;
        EXPECT_EQ(TakeNumber(rest, value), c.read);
        EXPECT_EQ(value, c.read ? c.value : 99.0);
        EXPECT_EQ(rest, c.rest);
    }
}

TEST(TakeNumber, AgreesWithStreamExtraction) {
    for (const char* text : {"1", " 2.5e1 ", "-7.25", "1e", "abc", "3e5,", "12abc", "", ".", "1..2",
                             "4e+2", "+6", "- 6", "1e308", "2e308", "00012", "1-2"}) {
        SCOPED_TRACE(text);
        std::istringstream stream(text);
        stream.imbue(std::locale::classic());
        double expected = 0.0;
        const bool extracted = static_cast<bool>(stream >> expected);
        std::string_view rest = text;
        double value = 0.0;
        EXPECT_EQ(TakeNumber(rest, value), extracted);
        if (extracted) {
            EXPECT_EQ(value, expected);
        }
    }
}

} // namespace
} // namespace Merivane::Simulation
