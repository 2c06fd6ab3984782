#include "Text/Ascii.hpp"

#include <gtest/gtest.h>

#include <string>

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
    EXPECT_EQ(ToUpper("aZ@[`{ \xC3\xA7"), "AZ@[`{ \xC3\xA7");
    EXPECT_EQ(ToLower("aZ@[`{ \xC3\x87"), "az@[`{ \xC3\x87");
    for (int byte = 128; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(ToUpper(text), text);
        EXPECT_EQ(ToLower(text), text);
    }
}

} // namespace
} // namespace Merivane::Text
