#include <string>

#include <gtest/gtest.h>

#include "Text/Ascii.hpp"

namespace Merivane::Text {
namespace {

TEST(Ascii, TakesSixCharactersForWhiteSpaceAndNoOther) {
    const std::string white = " \t\n\v\f\r";
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        EXPECT_EQ(IsWhiteSpace(c), white.find(c) != std::string::npos) << byte;
    }
}

TEST(Ascii, TrimsBothEndsAndKeepsWhatStandsBetween) {
    struct Case {
        std::string text;
        std::string trimmed;
    };
    const Case cases[] = {
        {"", ""},
        {" \t\r\n\v\f", ""},
        {"a", "a"},
        {"  a b\t c \r\n", "a b\t c"},
        {"\xC2\xA0x\xC2\xA0", "\xC2\xA0x\xC2\xA0"}, // a no-break space is no white space here
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Trim(c.text), c.trimmed) << '"' << c.text << '"';
    }
}

TEST(Ascii, ChangesTheCaseOfAsciiLettersOnly) {
    const std::string small = "abcdefghijklmnopqrstuvwxyz";
    const std::string large = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    EXPECT_EQ(ToUpper(small + large), large + large);
    EXPECT_EQ(ToLower(small + large), small + small);
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        if ((small + large).find(text) == std::string::npos) {
            EXPECT_EQ(ToUpper(text), text) << byte;
            EXPECT_EQ(ToLower(text), text) << byte;
        }
    }
}

TEST(Ascii, TakesTenCharactersForDigits) {
    const std::string digits = "0123456789";
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        EXPECT_EQ(IsDigit(c), digits.find(c) != std::string::npos) << byte;
    }
}

} // namespace
} // namespace Merivane::Text
