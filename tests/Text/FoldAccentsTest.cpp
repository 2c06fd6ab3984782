#include <cstddef>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "Text/FoldAccents.hpp"

namespace Merivane::Text {

TEST(FoldAccents, FoldsTheWholeBlockOfLatinLetters) {
    const std::string table = "aaaaaaaceeeeiiiidnooooo*ouuuuytsaaaaaaaceeeeiiiidnooooo/ouuuuyty";
    ASSERT_EQ(table.size(), 64U);
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::string letter = {'\xC3', static_cast<char>(0x80 + i)};
        EXPECT_EQ(FoldAccents(letter), table.substr(i, 1)) << letter;
        EXPECT_EQ(FoldAccents("X" + letter + "Y"), "x" + table.substr(i, 1) + "y") << letter;
    }
}

TEST(FoldAccents, LowersAsciiAndLetsOtherBytesPass) {
    struct Case {
        std::string text;
        std::string folded;
    };
    const Case cases[] = {
        {"", ""},
        {"ABCXYZ abcxyz @[`{ 0-9", "abcxyz abcxyz @[`{ 0-9"},
        {"ÁREA TÉCNICA", "area tecnica"},
        {"Sala de Reunião", "sala de reuniao"},
        {"≥ 5 mm – 1983 €", "≥ 5 mm – 1983 €"},   // three bytes
        {"Ā ő 😀", "Ā ő 😀"},                       // two bytes behind another lead, four bytes
        {"\xC2\xA0\xC2\xBA", "\xC2\xA0\xC2\xBA"}, // the other half of Latin-1
        {"a\xCC\x81", "a\xCC\x81"},               // accents that combine
        {"\xC3", "\xC3"},                         // cut inside a letter
        {"caf\xC3", "caf\xC3"},
        {"\xC3\xC3\xA9", "\xC3"
                         "e"},
        {"\xC3\x7F\xC3\xC0", "\xC3\x7F\xC3\xC0"}, // one step outside 80 to BF
        {"\xC3"
         "A",
         "\xC3"
         "a"},
        {"\xA9\xFF", "\xA9\xFF"},
        {std::string("\xC3\0A", 3), std::string("\xC3\0a", 3)},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FoldAccents(c.text), c.folded) << c.text;
    }
}

TEST(FoldAccents, NeverGrowsAndChangesNothingTheSecondTime) {
    std::mt19937 random(7);
    const std::string bytes = "aZ \xC3\x80\xBF\xA7\xE2\xC0\x7F";
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        for (auto length = random() % 12; length > 0; --length) {
            text += bytes[random() % bytes.size()];
        }
        const std::string once = FoldAccents(text);
        EXPECT_LE(once.size(), text.size());
        if (once.find('\xC3') == std::string::npos) { // a stray lead may meet a new neighbour
            EXPECT_EQ(FoldAccents(once), once);
        }
    }
}

} // namespace Merivane::Text
