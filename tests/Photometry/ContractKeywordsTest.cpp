#include "Photometry/ContractKeywords.hpp"

#include <random>

#include <gtest/gtest.h>

#include "IesSamples.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Photometry {
namespace {

using Texts = std::vector<std::string>;
using Keywords = std::vector<std::pair<std::string, std::string>>;

Texts Pack(Keywords keywords, Texts otherLines = {}) {
    IesFile file;
    file.keywords = std::move(keywords);
    file.otherLines = std::move(otherLines);
    return PackIesKeywords(file);
}

TEST(PackIesKeywords, GivesOneStringForEachLineInOrder) {
    EXPECT_EQ(Pack({{"TEST", "1"}, {"LAMP", "LED\n\nCRI 90"}, {"DATE", ""}}, {"free", "text"}),
              (Texts{"[TEST] 1", "[LAMP] LED", "[MORE] ", "[MORE] CRI 90", "[DATE] ",
                     "[OTHER] free", "[OTHER] text"}));
}

TEST(PackIesKeywords, GivesOneEmptyStringForAFileWithoutHeaderTexts) {
    EXPECT_EQ(Pack({}), Texts{""});
    EXPECT_EQ(UnpackIesKeywords(Pack({})), Keywords{});
}

TEST(PackIesKeywords, CutsALineThatTheHostCanNotKeepWhole) {
    const std::string longest(248, 'a'); // 255 less "[LAMP] "
    EXPECT_EQ(Pack({{"LAMP", longest}}), Texts{"[LAMP] " + longest});
    EXPECT_EQ(Pack({{"LAMP", longest + "b"}}), (Texts{"[LAMP] " + longest, "[MORE] b"}));
    const Texts packed = Pack({{"LAMP", std::string(300, 'x')}});
    EXPECT_EQ(packed, (Texts{"[LAMP] " + std::string(248, 'x'), "[MORE] " + std::string(52, 'x')}));
    EXPECT_EQ(UnpackIesKeywords(packed),
              (Keywords{{"LAMP", std::string(248, 'x') + "\n" + std::string(52, 'x')}}));
}

// The room of a line's pieces is that behind the key, also where MORE stands before them.
TEST(PackIesKeywords, MeasuresEveryPieceOfALineByThePrefixOfTheLine) {
    const std::string key(20, 'K'); // room 232
    EXPECT_EQ(Pack({{key, std::string(500, 'x')}}),
              (Texts{"[" + key + "] " + std::string(232, 'x'), "[MORE] " + std::string(232, 'x'),
                     "[MORE] " + std::string(36, 'x')}));
    EXPECT_EQ(Pack({{key, "a\n" + std::string(249, 'x')}}),
              (Texts{"[" + key + "] a", "[MORE] " + std::string(248, 'x'), "[MORE] x"}));
}

// A short key leaves its first piece more room than MORE leaves the next.
TEST(PackIesKeywords, KeepsThePiecesOfAShortKeyWithinTheHostsLimit) {
    EXPECT_EQ(
        Pack({{"RA", std::string(500, 'x')}}),
        (Texts{"[RA] " + std::string(250, 'x'), "[MORE] " + std::string(248, 'x'), "[MORE] xx"}));
}

TEST(PackIesKeywords, CutsNoCharacter) {
    const std::string almost(247, 'a');
    EXPECT_EQ(Pack({{"LAMP", almost + "çb"}}), (Texts{"[LAMP] " + almost, "[MORE] çb"}));
}

TEST(PackIesKeywords, CutsAKeyThatLeavesNoRoomForACharacter) {
    const std::string lamp = "\xF0\x9F\x92\xA1";
    EXPECT_EQ(Pack({{std::string(248, 'K'), lamp + lamp}}),
              (Texts{"[" + std::string(248, 'K') + "] " + lamp, "[MORE] " + lamp}));
    EXPECT_EQ(Pack({{std::string(249, 'K'), lamp}}), Pack({{std::string(248, 'K'), lamp}}));
    EXPECT_EQ(Pack({{std::string(9999, 'K'), lamp}}), Pack({{std::string(248, 'K'), lamp}}));
}

TEST(UnpackIesKeywords, ReadsWhatStandsBehindTheBracketsLessOneBlank) {
    EXPECT_EQ(
        UnpackIesKeywords({"[TEST] 1", "[LAMP]  LED ", "[DATE]", "[A]x", "[K] a] b", "[] e"}),
        (Keywords{
            {"TEST", "1"}, {"LAMP", " LED "}, {"DATE", ""}, {"A", "x"}, {"K", "a] b"}, {"", "e"}}));
}

TEST(UnpackIesKeywords, ContinuesTheKeywordBeforeOnMore) {
    EXPECT_EQ(UnpackIesKeywords({"[LAMP] a", "skipped", "[MORE] b", "[MORE] ", "[OTHER] c"}),
              (Keywords{{"LAMP", "a\nb\n"}, {"OTHER", "c"}}));
}

TEST(UnpackIesKeywords, MakesAKeywordOfMoreThatComesFirst) {
    EXPECT_EQ(UnpackIesKeywords({"[MORE] a", "[MORE] b", "[more] c"}),
              (Keywords{{"MORE", "a\nb"}, {"more", "c"}}));
}

TEST(UnpackIesKeywords, SkipsWhatHasNoKey) {
    EXPECT_EQ(UnpackIesKeywords({"", "[", "]", "x", "TEST] 1", " [TEST] 1", "[TEST 1"}),
              Keywords{});
}

TEST(IesKeywords, KeepAFilesTextsThroughPackingAndBack) {
    std::mt19937_64 random(20250611);
    for (int i = 0; i < 500; ++i) {
        IesFile file = Tests::RandomFile(random);
        file.otherLines = {"free text"};
        Keywords expected = file.keywords;
        expected.emplace_back("OTHER", "free text");
        EXPECT_EQ(UnpackIesKeywords(PackIesKeywords(file)), expected);
    }
}

// Nothing of a text is lost, whatever its bytes: only line breaks come in.
TEST(IesKeywords, KeepEveryByteOfLongTextsInPiecesThatFit) {
    std::mt19937_64 random(7);
    const std::string_view parts[] = {"a", "ç", "€", "\xF0\x9F\x92\xA1", "\xE7", "\x80", " "};
    for (int i = 0; i < 300; ++i) {
        std::string value;
        for (std::size_t n = random() % 900; n > 0; --n) {
            value += parts[random() % (i % 2 == 0 ? 4 : 7)];
        }
        const std::string key(random() % 300, 'K');
        std::string joined;
        for (const std::string& text : Pack({{key, value}})) {
            EXPECT_LE(text.size(), 255U);
            EXPECT_TRUE(i % 2 == 1 || Text::IsUtf8(text));
            joined += text.substr(text.find("] ") + 2);
        }
        EXPECT_EQ(joined, value);
    }
}

} // namespace
} // namespace Merivane::Photometry
