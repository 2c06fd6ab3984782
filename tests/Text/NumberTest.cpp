#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include <locale.h>

#include "Support/CommaLocale.hpp"
#include "Text/Number.hpp"

namespace Merivane::Text {
namespace {

using Tests::CommaLocale;

struct Reading {
    std::size_t length = 0;
    double value = 0.0;
};

/// The C library's own answer in the locale "C".
Reading ReadByStrtod(const std::string& text) {
    static locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    char* end = nullptr;
    const double value = strtod_l(text.c_str(), &end, cLocale);
    return {static_cast<std::size_t>(end - text.c_str()), value};
}

/// Bits of a value; all NaN of one sign are alike.
std::uint64_t Bits(double value) {
    const double plain =
        std::isnan(value) ? std::copysign(std::numeric_limits<double>::quiet_NaN(), value) : value;
    return std::bit_cast<std::uint64_t>(plain);
}

void ExpectAsStrtod(const std::string& text) {
    const Reading expected = ReadByStrtod(text);
    double value = 0.0;
    const std::size_t length = ReadNumber(text, value);
    if (length != expected.length || Bits(value) != Bits(expected.value)) {
        ADD_FAILURE() << "\"" << text << "\": read " << length << " bytes, " << value << "; strtod "
                      << expected.length << " bytes, " << expected.value;
    }
}

const std::string EdgeTokens[] = {
    // plain, sign and point
    "0",
    "-0",
    "+0",
    "1",
    "-1",
    "+1",
    "1.",
    ".5",
    "-.5",
    "+.5",
    ".",
    "-",
    "+",
    "",
    "-.",
    "+-1",
    "-+1",
    "--1",
    "++1",
    "- 1",
    "1 2",
    "1.2.3",
    "1,5",
    "00012",
    "1.50000",
    "0.1",
    "123456789012345",
    // white space before a number
    " 1",
    "\t\n\v\f\r-2",
    "   ",
    "\xC2\xA0\x31",
    // exponents
    "1e5",
    "1E5",
    "1e+5",
    "1e-5",
    "1e",
    "1e+",
    "1e-",
    "1e 5",
    "1e5.5",
    "e5",
    ".e5",
    "1.e5",
    ".5e1",
    "1e0005",
    "1d5",
    "1f",
    "1e+-5",
    "0e999999999999",
    "0e-999999999999",
    "-0e5",
    // the ends of the range
    "1.7976931348623157e308",
    "1.7976931348623158e308",
    "1.7976931348623159e308",
    "1e308",
    "1e309",
    "-1e309",
    "1e400",
    "1e99999999999999999999",
    "2.2250738585072014e-308",
    "2.225073858507201e-308",
    "5e-324",
    "4.9406564584124654e-324",
    "2.4703282292062328e-324",
    "2.4703282292062327e-324",
    "2e-324",
    "1e-324",
    "1e-400",
    "-1e-400",
    "1e-99999999999999999999",
    "0.00000000000000000000000000000000000000000000000001e60",
    "100000000000000000000000e-400",
    // halfway between two doubles
    "9007199254740993",
    "9007199254740992.5",
    "9007199254740993.00000000000000000001",
    "0.500000000000000166533453693773481063544750213623046875",
    "1.00000000000000011102230246251565",
    "8.41e21",
    "9.5e-7",
    // hexadecimal
    "0x1",
    "0X1",
    "-0x1",
    "0x",
    "0xg",
    "0x.",
    "0x.p1",
    "0x.8",
    "0x1.",
    "0x1.8p1",
    "0x1p",
    "0x1p+",
    "0x1p-",
    "0x1p 1",
    "0x1p+5",
    "0xAbCdEf",
    "0x1.fffffffffffffp1023",
    "0x1.fffffffffffff8p1023",
    "0x1.fffffffffffff7p1023",
    "0x1p1024",
    "-0x1p1024",
    "0x1p-1074",
    "0x1p-1075",
    "0x1.8p-1075",
    "0x1.00001p-1075",
    "0x1p-1076",
    "0x1p-2000",
    "0x0p0",
    "-0x0p9999",
    "0x1p99999999999999999999",
    "0x1p-99999999999999999999",
    "0x0.00000000000000000000000000000000001p200",
    "0x1.00000000000008",
    "0x1.000000000000080000001",
    "0x1.00000000000018",
    "0x123456789abcdef01",
    "0x1e5",
    "00x1",
    "0x-1",
    "0x+1",
    "0x1.p1",
    "0x0.1p-1074",
    "0x0.8p-1074",
    "0x0.80001p-1074",
    "0xffffffffffffffffffffffffffffffffffffffffp-1200",
    // names
    "inf",
    "INF",
    "Inf",
    "-inf",
    "+inf",
    "infinity",
    "INFINITY",
    "-Infinity",
    "infinit",
    "infinityx",
    "in",
    "i",
    "nan",
    "NaN",
    "NAN",
    "-nan",
    "+nan",
    "na",
    "n",
    "nan(",
    "nan()",
    "nan(123)",
    "nan(0x7)",
    "nan(a_Z9)",
    "nan(a b)",
    "nan(-)",
    "nan(1",
    "nanx",
    "nan()x",
    "infe5",
    "1inf",
    "1nan",
    "inf inf",
    "\xEF\xBB\xBF\x31",
};

TEST(ReadNumber, ReadsEveryEdgeAsStrtodDoesInTheCLocale) {
    for (const std::string& token : EdgeTokens) {
        ExpectAsStrtod(token);
        ExpectAsStrtod(token + " ");
        ExpectAsStrtod(token + "x");
        ExpectAsStrtod(token + ",5");
        ExpectAsStrtod("  -" + token);
        ExpectAsStrtod("+" + token);
    }
}

constexpr std::string_view Pieces[] = {
    "0",   "1", "9", "5", ".", "e",   "E",  "-",  "+",   "0x",   "p",    "a",  "f",  "P", "inf",
    "nan", "(", ")", ",", " ", "000", "99", "17", "308", "e-30", "e+30", "1.", ".0", "_", "X"};

/// A token that looks like a number, more or less.
std::string RandomToken(std::mt19937_64& random) {
    std::string token;
    const std::size_t count = 1 + random() % 8;
    for (std::size_t i = 0; i < count; ++i) {
        token += Pieces[random() % std::size(Pieces)];
    }
    return token;
}

TEST(ReadNumber, ReadsRandomTokensAsStrtodDoes) {
    std::mt19937_64 random(20);
    for (int i = 0; i < 300000 && !::testing::Test::HasFailure(); ++i) {
        ExpectAsStrtod(RandomToken(random));
    }
}

TEST(ReadNumber, ReadsRandomDoublesInEveryPrintedFormAsStrtodDoes) {
    std::mt19937_64 random(21);
    const char* formats[] = {"%.17g", "%.16g", "%.5g", "%.25g", "%a", "%.3a", "%.20e", "%A"};
    for (int i = 0; i < 100000 && !::testing::Test::HasFailure(); ++i) {
        const auto value = std::bit_cast<double>(random());
        char text[512];
        std::snprintf(text, sizeof text, formats[static_cast<std::size_t>(i) % std::size(formats)],
                      value);
        ExpectAsStrtod(text);
    }
}

TEST(ReadNumber, ReadsLongDigitRunsAsStrtodDoes) {
    std::mt19937_64 random(22);
    for (int i = 0; i < 3000 && !::testing::Test::HasFailure(); ++i) {
        const bool hexadecimal = random() % 4 == 0;
        std::string token = hexadecimal ? "0x" : "";
        const std::size_t digits = 1 + random() % 900;
        const std::size_t point = random() % (2 * digits);
        for (std::size_t d = 0; d < digits; ++d) {
            if (d == point) {
                token += '.';
            }
            token += random() % 3 == 0 ? '0' : static_cast<char>('0' + random() % 10);
        }
        token += hexadecimal ? "p" : "e";
        token += std::to_string(static_cast<int>(random() % 2400) - 1500);
        ExpectAsStrtod(token);
    }
}

TEST(ReadNumber, WeighsManyZerosAgainstAHugeExponentAsStrtodDoes) {
    const std::string small = "0." + std::string(5000, '0') + "1";
    const std::string large = "1" + std::string(5000, '0');
    for (const char* token : {"e4000", "e9999"}) {
        ExpectAsStrtod(small + token);
    }
    for (const char* token : {"e-4000", "e-9999"}) {
        ExpectAsStrtod(large + token);
    }
    for (const char* token : {"p19000", "p30000"}) {
        ExpectAsStrtod(("0x" + small).append(token));
    }
    for (const char* token : {"p-19000", "p-30000"}) {
        ExpectAsStrtod(("0x" + large).append(token));
    }
}

TEST(ReadNumber, StopsAtTheEndOfTheViewAndNotAtThatOfTheBytesBehindIt) {
    const std::string bytes = "12.75e3";
    double value = 0.0;
    EXPECT_EQ(ReadNumber(std::string_view(bytes).substr(0, 4), value), 4U);
    EXPECT_EQ(value, 12.7);
    EXPECT_EQ(ReadNumber(std::string_view(bytes).substr(0, 6), value), 5U);
    EXPECT_EQ(value, 12.75);
}

TEST(ReadNumber, LeavesTheValueAloneWhenThereIsNone) {
    for (const char* text : {"", "  ", "x", "-", "+-1", ".", "e5", "- 1"}) {
        double value = 7.0;
        EXPECT_EQ(ReadNumber(text, value), 0U) << text;
        EXPECT_EQ(value, 7.0) << text;
    }
}

TEST(ReadEntireNumber, RefusesWhatIsLeftOver) {
    for (const char* text : {"", " ", "1 ", "1x", "1,5", "1e", "0x", "nan(", "--1", "1\v"}) {
        double value = 7.0;
        EXPECT_FALSE(ReadEntireNumber(text, value)) << text;
        EXPECT_EQ(value, 7.0) << text;
    }
    double value = 0.0;
    EXPECT_FALSE(ReadEntireNumber(std::string_view("1\0", 2), value)); // no end of text inside
    EXPECT_TRUE(ReadEntireNumber(" \t-1.5e2", value));
    EXPECT_EQ(value, -150.0);
}

TEST(FormatShortest, WritesThePlainOrTheExponentFormWhicheverIsShorter) {
    struct Case {
        double value;
        std::string text;
    };
    const Case cases[] = {
        {0.0, "0"},
        {-0.0, "-0"},
        {0.1, "0.1"},
        {1500.0, "1500"},
        {100000.0, "1e+05"},
        {123456.0, "123456"},
        {1e20, "1e+20"},
        {0.001, "0.001"},
        {0.0012, "0.0012"},
        {0.0001, "1e-04"},
        {-2.5, "-2.5"},
        {1.0 / 3.0, "0.3333333333333333"},
        {5e-324, "5e-324"},
        {1.7976931348623157e308, "1.7976931348623157e+308"},
        {std::numeric_limits<double>::infinity(), "inf"},
        {-std::numeric_limits<double>::infinity(), "-inf"},
        {std::numeric_limits<double>::quiet_NaN(), "nan"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FormatShortest(c.value), c.text);
    }
}

TEST(AppendShortest, WritesBehindWhatTheTextHolds) {
    std::string text = "a ";
    AppendShortest(text, 0.1);
    AppendShortest(text, -1.7976931348623157e308);
    EXPECT_EQ(text, "a 0.1-1.7976931348623157e+308");
}

TEST(FormatShortest, ReadsBackAsTheSameDoubleAndHasNoDigitToSpare) {
    std::mt19937_64 random(23);
    for (int i = 0; i < 200000 && !::testing::Test::HasFailure(); ++i) {
        const auto value = std::bit_cast<double>(random());
        if (!std::isfinite(value)) {
            continue;
        }
        const std::string text = FormatShortest(value);
        double back = 0.0;
        ASSERT_TRUE(ReadEntireNumber(text, back)) << text;
        ASSERT_EQ(Bits(back), Bits(value)) << text;
        // No precision of the C library that reads back gives a shorter mantissa.
        char scientific[64];
        int precision = 0;
        do {
            std::snprintf(scientific, sizeof scientific, "%.*e", precision++, value);
        } while (Bits(ReadByStrtod(scientific).value) != Bits(value));
        ASSERT_LE(text.size(), std::string(scientific).size()) << text << " " << scientific;
    }
}

// Most numbers of a file are short decimals, which are written another way than the rest.
TEST(FormatShortest, WritesShortDecimalsAsTheStandardLibraryDoes) {
    const auto expectAsToChars = [](double value) {
        char buffer[64];
        const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
        ASSERT_EQ(FormatShortest(value), std::string(buffer, end));
    };
    std::mt19937_64 random(25);
    for (int i = 0; i < 100000 && !::testing::Test::HasFailure(); ++i) {
        const auto digits = static_cast<double>(random() >> (random() % 64));
        const double value = digits / std::pow(10.0, static_cast<double>(random() % 24));
        expectAsToChars(i % 2 == 0 ? value : -value);
        expectAsToChars(std::nextafter(value, 0.0));
        expectAsToChars(std::nextafter(value, 1e300));
    }
    for (int exponent = -30; exponent <= 30; ++exponent) {
        for (const double mantissa : {1.0, 1.5, 1.25, 9.0, 9.99, 123.0}) {
            expectAsToChars(mantissa * std::pow(10.0, exponent));
        }
    }
}

TEST(FormatFixed, WritesAsTheCFormatDoes) {
    std::mt19937_64 random(24);
    std::uniform_real_distribution<double> size(-12.0, 12.0);
    for (int i = 0; i < 20000 && !::testing::Test::HasFailure(); ++i) {
        const double value = std::pow(10.0, size(random)) * (i % 2 == 0 ? 1.0 : -1.0);
        const int digits = i % 12;
        char text[512];
        std::snprintf(text, sizeof text, "%.*f", digits, value);
        EXPECT_EQ(FormatFixed(value, digits), text);
        std::snprintf(text, sizeof text, "%.*g", digits, value);
        EXPECT_EQ(FormatGeneral(value, digits), text);
    }
    EXPECT_EQ(FormatFixed(0.125, 2), "0.12"); // half to even, as printf does
    EXPECT_EQ(FormatFixed(-0.0, 1), "-0.0");
    EXPECT_EQ(FormatFixed(1e308, 3).size(), 309U + 4U);
    EXPECT_EQ(FormatFixed(-1.7976931348623157e308, 40).size(), 1U + 309U + 1U + 40U);
    EXPECT_EQ(FormatGeneral(1234567.0), "1.23457e+06");
    EXPECT_EQ(FormatGeneral(0.0001), "0.0001");
}

TEST(Number, IsTheSameWhateverLocaleTheHostHasSet) {
    const CommaLocale locale;
    std::ostringstream stream;
    stream << 1.5;
    ASSERT_EQ(stream.str(), "1,5") << "the locale of the test must have a comma";

    double value = 0.0;
    EXPECT_EQ(ReadNumber("1.5", value), 3U);
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(ReadNumber("1,5", value), 1U);
    EXPECT_EQ(value, 1.0);
    EXPECT_EQ(ReadNumber("0x1.8p1", value), 7U);
    EXPECT_EQ(value, 3.0);
    EXPECT_EQ(FormatShortest(1234.5), "1234.5");
    EXPECT_EQ(FormatFixed(1234.5, 2), "1234.50");
    EXPECT_EQ(FormatGeneral(0.25), "0.25");
}

TEST(Number, ReadsEveryEdgeAlikeUnderTheCommaOfTheCLibrary) {
    const CommaLocale locale;
    if (!locale.cLocale) {
        GTEST_SKIP() << "no C locale with a comma here, and no localedef to make one";
    }
    ASSERT_EQ(std::strtod("1,5", nullptr), 1.5);
    for (const std::string& token : EdgeTokens) {
        ExpectAsStrtod(token);
    }
}

} // namespace
} // namespace Merivane::Text
