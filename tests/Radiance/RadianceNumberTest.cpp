#include <locale>

#include <gtest/gtest.h>

#include "Radiance/RadianceNumber.hpp"

namespace Merivane::Radiance {
namespace {

TEST(FormatNumber, PrintsFixedDecimalsAndDropsTheSignOfTwoZerosOnly) {
    struct Case {
        double value;
        int decimals;
        std::string text;
    };
    const Case cases[] = {
        {1.5, 6, "1.500000"},
        {-1.5, 6, "-1.500000"},
        {0.0000005, 6, "0.000000"}, // the double lies just under the half
        {0.00000051, 6, "0.000001"},
        {-0.00000051, 6, "-0.000001"},
        {-0.0000004, 6, "0.000000"},
        {-0.0, 6, "0.000000"},
        {-0.0, 0, "0"},
        {-0.4, 0, "0"},
        {-0.0, 4, "-0.0000"}, // four decimals keep the sign
        {-0.00004, 4, "-0.0000"},
        {0.5, 4, "0.5000"},
        {123456789.25, 2, "123456789.25"},
        {1e21, 1, "1000000000000000000000.0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(FormatNumber(c.value, c.decimals), c.text);
    }
}

// What a program's user may have set: 1.234.567,5.
struct CommaNumbers : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST(FormatNumber, KeepsThePointWhateverTheLocale) {
    const std::locale before = std::locale::global(std::locale({}, new CommaNumbers));
    const std::string text = FormatNumber(1234567.5, 6);
    std::locale::global(before);
    EXPECT_EQ(text, "1234567.500000");
}

} // namespace
} // namespace Merivane::Radiance
