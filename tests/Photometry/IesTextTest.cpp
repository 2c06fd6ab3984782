#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Photometry/IesText.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Photometry {
namespace {

TEST(NormaliseIesText, LeavesUtf8AsItIs) {
    for (const std::string& text :
         {std::string(), std::string("plain\ntext"), std::string("lumin\xC3\xA1ria 60\xC2\xB0"),
          std::string("\xE2\x82\xAC \xF0\x9F\x92\xA1"), std::string("\xE0\x80\x80")}) {
        EXPECT_EQ(NormaliseIesText(text), text);
    }
}

TEST(NormaliseIesText, RecodesWindows1252) {
    struct Case {
        std::string bytes;
        std::string utf8;
    };
    const Case cases[] = {
        {"Ilumina\xE7\xE3o", "Ilumina\xC3\xA7\xC3\xA3o"},
        {"60\xB0", "60\xC2\xB0"},
        {"\x80", "\xE2\x82\xAC"},
        {"\x81\x8D\x8F\x90\x9D", "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"},
        {"\x93LED\x94 \x96 \x99", "\xE2\x80\x9CLED\xE2\x80\x9D \xE2\x80\x93 \xE2\x84\xA2"},
        {"\xA0\xFF", "\xC2\xA0\xC3\xBF"},
        // One byte out of place and the whole text is taken as Windows-1252.
        {"\xC3\xA1 \xE1", "\xC3\x83\xC2\xA1 \xC3\xA1"},
        {"\xC3", "\xC3\x83"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(NormaliseIesText(c.bytes), c.utf8) << ::testing::PrintToString(c.bytes);
    }
}

TEST(NormaliseIesText, KnowsEveryByteOfWindows1252) {
    const std::u32string high =
        U"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160"
        U"\u2039\u0152\u008D\u017D\u008F\u0090\u2018\u2019\u201C\u201D\u2022"
        U"\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";
    for (unsigned byte = 0x80; byte < 0x100; ++byte) {
        std::string expected;
        Text::AppendUtf8(expected, byte < 0xA0 ? high[byte - 0x80] : byte);
        EXPECT_EQ(NormaliseIesText(std::string(1, static_cast<char>(byte))), expected) << byte;
    }
}

TEST(NormaliseIesText, ReadsTheGbkDegreeSignInATextThatIsNoUtf8) {
    EXPECT_EQ(NormaliseIesText("60\xA1\xE3 x"), "60\xC2\xB0 x");
    EXPECT_EQ(NormaliseIesText("\xA1\xE3\xA1\xE3"), "\xC2\xB0\xC2\xB0");
    EXPECT_EQ(NormaliseIesText("\xA1\xA1\xE3"), "\xC2\xA1\xC2\xB0");
    EXPECT_EQ(NormaliseIesText("\xA1"), "\xC2\xA1");
    EXPECT_EQ(NormaliseIesText("\xE3\xA1"), "\xC3\xA3\xC2\xA1"); // the other way round
    // As part of valid UTF-8 the same two bytes stay: here they end and begin nothing.
    EXPECT_EQ(NormaliseIesText("\xC3\xA1\xE3\x81\x82"), "\xC3\xA1\xE3\x81\x82");
}

TEST(NormaliseIesText, AlwaysGivesUtf8ThatItLeavesAlone) {
    std::mt19937_64 random(50);
    for (int i = 0; i < 20000; ++i) {
        std::string bytes;
        for (std::size_t n = random() % 10; n > 0; --n) {
            bytes += static_cast<char>(random());
        }
        const std::string once = NormaliseIesText(bytes);
        EXPECT_TRUE(Text::IsUtf8(once));
        EXPECT_EQ(NormaliseIesText(once), once);
    }
}

} // namespace
} // namespace Merivane::Photometry
