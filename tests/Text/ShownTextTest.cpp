#include <gtest/gtest.h>

#include "Text/ShownText.hpp"

namespace Merivane::Text {

TEST(ShownText, KeepsWhatCanBeShownAndReplacesTheRest) {
    struct Case {
        std::string text;
        std::string shown;
    };
    const Case cases[] = {
        {"", ""},
        {"Sala 1", "Sala 1"},
        {"Iluminação ≥ 500 lx 😀", "Iluminação ≥ 500 lx 😀"},
        {"  aparas\t", "aparas"},
        {"a\nb\x7F"
         "c",
         "a b c"},
        {"a\xC2\x85"
         "b",
         "a b"},                                  // a control character of two bytes
        {"\xE7", "\xEF\xBF\xBD"},                 // Windows-1252
        {"\xC1\xA1", "\xEF\xBF\xBD\xEF\xBF\xBD"}, // overlong
        {"\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"}, // lone surrogate
        {"\xEF\xBF\xBF", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"}, // U+FFFF
        {"\xF4\x90\x80\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xE2\x89", "\xEF\xBF\xBD\xEF\xBF\xBD"}, // cut
        {std::string("a\0b", 3), "a b"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.shown);
        EXPECT_EQ(ShownText(c.text), c.shown);
        EXPECT_TRUE(IsPlainText(ShownText(c.text)));
    }
}

TEST(IsPlainText, RefusesControlCharactersAndWhatIsNoUtf8) {
    for (const std::string text : {"a\nb", "\x1F", "\x7F", "\xC2\x9F", "\xE0\x80\x80", "\xFF"}) {
        EXPECT_FALSE(IsPlainText(text));
    }
    for (const std::string text : {"", " ", "\xC2\xA0", "\xEF\xBF\xBD", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_TRUE(IsPlainText(text));
    }
}

TEST(QuotedText, CutsLongTextsAtACharacter) {
    EXPECT_EQ(QuotedText("abc"), "\"abc\"");
    const std::string tens = "1234567890123456789012345678901234567890123456789012345678901";
    EXPECT_EQ(QuotedText(tens.substr(0, 60)),
              "\"123456789012345678901234567890123456789012345678901234567890\"");
    EXPECT_EQ(QuotedText(tens),
              "\"123456789012345678901234567890123456789012345678901234567890...\"");
    std::string accent = tens;
    accent.replace(59, 2, "ç"); // its two bytes are the 60th and the 61st
    EXPECT_EQ(QuotedText(accent),
              "\"12345678901234567890123456789012345678901234567890123456789...\"");
}

TEST(ShownLines, KeepsLinesAndReplacesWhatNoDocumentCanHold) {
    EXPECT_EQ(ShownLines("a\r\nb\rc\n\td "), "a\nb\nc\n\td ");
    EXPECT_EQ(ShownLines(std::string_view("\x01"
                                          "a\0b\x7F",
                                          5)),
              " a b ");
    EXPECT_EQ(ShownLines("\xC3 \xED\xA0\x80"), "\xEF\xBF\xBD \xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(ShownLines("é≥💡"), "é≥💡");
    EXPECT_EQ(ShownLines("\r\r\n"), "\n\n");
}

} // namespace Merivane::Text
