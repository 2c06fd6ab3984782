#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Text/Utf8.hpp"

namespace Merivane::Text {
namespace {

TEST(TruncateUtf8, CutsOnlyWhatIsTooLongAndNeverInsideACharacter) {
    struct Case {
        std::string text;
        std::size_t maximum;
        std::string cut;
    };
    const Case cases[] = {
        {"", 0, ""},
        {"abc", 3, "abc"},
        {"abcd", 3, "abc"},
        {"ab\xC3\xA7", 4, "ab\xC3\xA7"},
        {"ab\xC3\xA7", 3, "ab"},
        {"ab\xC3\xA7", 2, "ab"},
        {"\xE2\x82\xAC", 2, ""},
        {"\xE2\x82\xACx", 3, "\xE2\x82\xAC"},
        {"x\xF0\x9F\x92\xA1y", 5, "x\xF0\x9F\x92\xA1"},
        {"x\xF0\x9F\x92\xA1y", 4, "x"},
        {"x\xF0\x9F\x92\xA1y", 3, "x"},
        {"x\xF0\x9F\x92\xA1y", 2, "x"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(TruncateUtf8(c.text, c.maximum), c.cut) << c.text << " to " << c.maximum;
    }
}

TEST(TruncateUtf8, KeepsA255ByteTextAndCutsATwoByteCharacterThatCrosses) {
    std::string text(255, 'a');
    EXPECT_EQ(TruncateUtf8(text, 255).size(), 255U);
    text.push_back('b');
    EXPECT_EQ(TruncateUtf8(text, 255), std::string(255, 'a'));
    text[254] = '\xC3';
    text[255] = '\xA7';
    EXPECT_EQ(TruncateUtf8(text, 255), std::string(254, 'a'));
    EXPECT_EQ(TruncateUtf8(text, 256), text);
}

// Header texts reach this in unknown encodings; a text of many bytes such as 0xB0 must not come
// back empty, or whoever cuts it piece by piece never ends.
TEST(TruncateUtf8, CutsBytesThatFormNoCharacterWhereItIsTold) {
    const std::string degrees(300, '\xB0');
    EXPECT_EQ(TruncateUtf8(degrees, 255), std::string(255, '\xB0'));
    EXPECT_EQ(TruncateUtf8("abcd\x80\x80", 5), "abcd\x80");
    EXPECT_EQ(TruncateUtf8("ab\xC3\xA7\x80\x80", 5), "ab\xC3\xA7\x80");
}

TEST(TruncateUtf8, AlwaysGetsOnWithAnyBytes) {
    std::mt19937_64 random(30);
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (int n = 0; n < 12; ++n) {
            text += static_cast<char>(random() % 2 == 0 ? 0x80 + random() % 128 : random());
        }
        const std::size_t maximum = 4 + random() % 8;
        const std::string cut = TruncateUtf8(text, maximum);
        EXPECT_LE(cut.size(), maximum);
        EXPECT_GE(cut.size(), maximum - 3);
        EXPECT_EQ(text.substr(0, cut.size()), cut);
    }
}

TEST(IsUtf8, JudgesByTheFormOfTheBytes) {
    struct Case {
        std::string text;
        bool valid;
    };
    const Case cases[] = {
        {"", true},
        {std::string("a\0b\x7F", 4), true},
        {"\x80", false},
        {"\xBF", false},
        {"\xC0\x80", false},
        {"\xC1\xBF", false},
        {"\xC2\x80", true},
        {"\xDF\xBF", true},
        {"\xC2", false},
        {"\xC2\x7F", false},
        {"\xC2\xC0", false},
        {"\xE0\x80\x80", true}, // overlong, but of the right form
        {"\xEF\xBF\xBF", true},
        {"\xE2\x82", false},
        {"\xE2\x82\x41", false},
        {"\xED\xA0\x80", true}, // a surrogate, likewise
        {"\xF0\x80\x80\x80", true},
        {"\xF4\xBF\xBF\xBF", true},
        {"\xF5\x80\x80\x80", false},
        {"\xFF", false},
        {"\xF0\x9F\x92", false},
        {"ok \xC3\xA7 \xA1\xE3", false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(IsUtf8(c.text), c.valid) << ::testing::PrintToString(c.text);
    }
}

TEST(AppendUtf8, WritesOneToFourBytes) {
    struct Case {
        char32_t code;
        std::string bytes;
    };
    const Case cases[] = {
        {0x00, std::string(1, '\0')},
        {0x7F, "\x7F"},
        {0x80, "\xC2\x80"},
        {0x7FF, "\xDF\xBF"},
        {0x800, "\xE0\xA0\x80"},
        {0xFFFF, "\xEF\xBF\xBF"},
        {0x10000, "\xF0\x90\x80\x80"},
        {0x10FFFF, "\xF4\x8F\xBF\xBF"},
        {0x20AC, "\xE2\x82\xAC"},
    };
    for (const Case& c : cases) {
        std::string text = "x";
        AppendUtf8(text, c.code);
        EXPECT_EQ(text, "x" + c.bytes) << static_cast<std::uint32_t>(c.code);
    }
}

TEST(WidenAndNarrow, CarryEveryCodePointThereAndBack) {
    for (char32_t code = 0; code <= 0x10FFFF; ++code) {
        if (code >= 0xD800 && code <= 0xDFFF) {
            continue;
        }
        std::string text;
        AppendUtf8(text, code);
        const std::wstring wide = Widen(text);
        ASSERT_EQ(wide.size(), code >= 0x10000 && sizeof(wchar_t) == 2 ? 2U : 1U);
        ASSERT_EQ(Narrow(wide), text) << static_cast<std::uint32_t>(code);
    }
    EXPECT_EQ(Widen("\xC3\xA7\xE2\x82\xAC"), L"\u00E7\u20AC");
}

TEST(WidenAndNarrow, CarryAnyBytesOfAPathThereAndBack) {
    std::mt19937_64 random(31);
    const std::string leads = "\xC2\xDF\xE0\xED\xEF\xF0\xF4\xF5\x80\xA0\xBF\x90\x8F";
    for (int i = 0; i < 100000; ++i) {
        std::string text;
        const std::size_t length = random() % 9;
        for (std::size_t n = 0; n < length; ++n) {
            text +=
                random() % 3 == 0 ? static_cast<char>(random()) : leads[random() % leads.size()];
        }
        ASSERT_EQ(Narrow(Widen(text)), text) << ::testing::PrintToString(text);
    }
}

} // namespace
} // namespace Merivane::Text
