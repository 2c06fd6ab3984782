// Our numbers against libdouble-conversion, bit by bit and digit by digit. A run takes 200 000 of
// them; VANTORO_JSON_NUMBERS=10000000 in the environment takes as many as one likes.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include <double-conversion/double-conversion.h>
#include <gtest/gtest.h>

#include "Catalog/Json.hpp"

namespace Merivane::Catalog {
namespace {

using double_conversion::DoubleToStringConverter;
using double_conversion::StringToDoubleConverter;

// Half of them any bits at all, the other half what files hold: integers, and short decimals.
double RandomNumber(std::mt19937_64& random) {
    const std::uint64_t bits = random();
    double number = 0.0;
    switch (bits % 4) {
    case 0:
        return static_cast<double>(static_cast<std::int64_t>(random()) >> (random() % 64));
    case 1:
        number = static_cast<double>(random() % 100000000);
        return number / std::pow(10.0, static_cast<double>(random() % 12));
    default:
        const std::uint64_t any = random();
        std::memcpy(&number, &any, sizeof number);
        return std::isfinite(number) ? number : 0.5;
    }
}

struct Shortest {
    std::string digits;
    int point = 0; // position of the decimal point from the first digit
};

Shortest ShortestDigits(double number) {
    std::array<char, DoubleToStringConverter::kBase10MaximalLength + 1> digits;
    bool negative = false;
    int length = 0;
    Shortest shortest;
    DoubleToStringConverter::DoubleToAscii(number, DoubleToStringConverter::SHORTEST, 0,
                                           digits.data(), static_cast<int>(digits.size()),
                                           &negative, &length, &shortest.point);
    shortest.digits.assign(digits.data(), static_cast<std::size_t>(length));
    return shortest;
}

// Bytes of the shorter of the plain and the exponent form, without the sign.
std::size_t ShortestLength(const Shortest& shortest) {
    const int count = static_cast<int>(shortest.digits.size());
    int plain = shortest.point;
    if (shortest.point <= 0) {
        plain = count + 2 - shortest.point; // "0.00ddd"
    } else if (shortest.point < count) {
        plain = count + 1; // "dd.ddd"
    }
    const int exponentDigits = std::abs(shortest.point - 1) < 100 ? 2 : 3;
    const int withExponent = count + (count > 1 ? 1 : 0) + 2 + exponentDigits;
    return static_cast<std::size_t>(std::min(plain, withExponent));
}

// The digits of a written number without sign, point, exponent and zeros at the ends.
std::string SignificantDigits(const std::string& text) {
    std::string digits;
    for (const char c : text.substr(0, text.find('e'))) {
        if (c >= '0' && c <= '9' && !(c == '0' && digits.empty())) {
            digits.push_back(c);
        }
    }
    const std::size_t last = digits.find_last_not_of('0');
    return digits.substr(0, last == std::string::npos ? 0 : last + 1);
}

std::uint64_t BitsOf(double number) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

TEST(JsonNumber, IsShortestAndExactAgainstAnotherLibrary) {
    const char* const asked = std::getenv("VANTORO_JSON_NUMBERS");
    const long count = asked ? std::strtol(asked, nullptr, 10) : 200000;
    const StringToDoubleConverter peer(StringToDoubleConverter::NO_FLAGS, 0.0, 0.0, nullptr,
                                       nullptr);
    constexpr double ExactIntegersEnd = 9007199254740992.0; // 2^53
    std::mt19937_64 random(53);
    for (long i = 0; i < count; ++i) {
        const double number = RandomNumber(random);
        std::string text = JsonWrite(JsonValue::MakeNumber(number));
        text.pop_back(); // the line feed
        SCOPED_TRACE(text);

        JsonValue back;
        ASSERT_TRUE(JsonParse(text, back).ok);
        ASSERT_EQ(BitsOf(back.number), BitsOf(number));
        int consumed = 0;
        ASSERT_EQ(
            BitsOf(peer.StringToDouble(text.data(), static_cast<int>(text.size()), &consumed)),
            BitsOf(number));

        const Shortest shortest = ShortestDigits(number);
        ASSERT_EQ(text.size() - (std::signbit(number) ? 1 : 0), ShortestLength(shortest));
        // A whole number beyond 2^53 that is written plain has more than its significant digits.
        if (std::fabs(number) < ExactIntegersEnd || text.find('e') != std::string::npos) {
            ASSERT_EQ(SignificantDigits(text), number == 0.0 ? "" : shortest.digits);
        }
    }
}

// Texts of 1 to 40 digits, most of them no double's own text: reading must round as the peer does.
TEST(JsonNumber, RoundsLongTextsAsAnotherLibrary) {
    const StringToDoubleConverter peer(StringToDoubleConverter::NO_FLAGS, 0.0, 0.0, nullptr,
                                       nullptr);
    std::mt19937_64 random(54);
    for (int i = 0; i < 100000; ++i) {
        std::string text = "0.";
        for (auto digits = 1 + random() % 40; digits > 0; --digits) {
            text.push_back(static_cast<char>('0' + random() % 10));
        }
        text += 'e';
        text += std::to_string(static_cast<int>(random() % 600) - 300);
        int consumed = 0;
        const double expected =
            peer.StringToDouble(text.data(), static_cast<int>(text.size()), &consumed);
        JsonValue value;
        ASSERT_TRUE(JsonParse(text, value).ok) << text;
        ASSERT_EQ(BitsOf(value.number), BitsOf(expected)) << text;
    }
}

} // namespace
} // namespace Merivane::Catalog
