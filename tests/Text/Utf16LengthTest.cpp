#include "Text/Utf16Length.hpp"

#include <gtest/gtest.h>

namespace Merivane::Text {
namespace {

const std::string Lamp = "\xF0\x9F\x92\xA1"; // U+1F4A1, a surrogate pair

TEST(Utf16Length, CountsPairsAsTwoAndBrokenBytesAsOne) {
    EXPECT_EQ(Utf16Length(""), 0U);
    EXPECT_EQ(Utf16Length("abc"), 3U);
    EXPECT_EQ(Utf16Length("ção"), 3U);
    EXPECT_EQ(Utf16Length("€"), 1U);
    EXPECT_EQ(Utf16Length(Lamp), 2U);
    EXPECT_EQ(Utf16Length("\xE7\xE3o"), 3U); // Windows-1252
    EXPECT_EQ(Utf16Length("a\xF0\x9F"), 3U); // cut
}

TEST(TruncateUtf16, KeepsWholeCharacters) {
    struct Case {
        std::string text;
        std::size_t units;
        std::string expected;
    };
    const Case cases[] = {
        {"", 0, ""},
        {"abc", 4, "abc"},
        {"abc", 3, "abc"},
        {"abc", 2, "ab"},
        {"abc", 0, ""},
        {"ção", 2, "çã"},
        {"€€", 1, "€"},
        {"a" + Lamp, 3, "a" + Lamp},
        {"a" + Lamp, 2, "a"}, // not half a pair
        {"a" + Lamp, 1, "a"},
        {Lamp + "b", 2, Lamp},
        {"\xE7\xE3o", 2, "\xE7\xE3"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(TruncateUtf16(c.text, c.units), c.expected);
    }
}

} // namespace
} // namespace Merivane::Text
