#include "Gdl/GeneratedBlock.hpp"

#include <random>

#include <gtest/gtest.h>

namespace Merivane::Photometry {
namespace {

const std::string Start(BlockStartMarker);
const std::string End(BlockEndMarker);

std::string Block(const std::string& lines) {
    return Start + "\r\n" + lines + End + "\r\n";
}

TEST(BlockMarkers, AreComments) {
    EXPECT_EQ(Start, "! ===== Merivane: inicio do bloco gerado (nao editar) =====");
    EXPECT_EQ(Start.size(), 59U);
    EXPECT_EQ(End, "! ===== Merivane: fim do bloco gerado =====");
}

TEST(RemoveGeneratedBlock, LeavesTheUsersText) {
    struct Case {
        std::string script;
        std::string left;
    };
    const Case cases[] = {
        {"", ""},
        {"BLOCK 1, 1, 1\r\n", "BLOCK 1, 1, 1\r\n"},
        {Block("PEN 1\r\n"), ""},
        {Block(""), ""},
        {Block("PEN 1\r\n") + "BLOCK 1, 1, 1", "BLOCK 1, 1, 1"},
        {"a\r\n" + Block("PEN 1\r\n") + "b", "a\r\nb"},
        {Block("1\r\n") + Block("2\r\n"), ""},
        {Block("1\r\n") + "a\r\n" + Block("2\r\n") + "b\r\n", "a\r\nb\r\n"},
        {"a " + Start + End + " b", "a  b"}, // not on lines of their own
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.script);
        EXPECT_EQ(RemoveGeneratedBlock(c.script), c.left);
    }
}

TEST(RemoveGeneratedBlock, TakesOneLineEndBehindTheMarker) {
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},       {"\n", ""},     {"\r\n", ""},         {"\r", ""},
        {"\n\n", "\n"}, {"\n\r", "\r"}, {"\r\n\r\n", "\r\n"}, {"\r\r\n", "\r\n"},
        {" \n", " \n"}, {"\na", "a"},   {"\ra", "a"},
    };
    for (const auto& [behind, left] : cases) {
        SCOPED_TRACE(::testing::PrintToString(behind));
        std::string script = Start;
        script.append("\n").append(End).append(behind);
        EXPECT_EQ(RemoveGeneratedBlock(script), left);
    }
}

TEST(RemoveGeneratedBlock, LeavesABlockThatLostItsEnd) {
    const std::string lost = Start + "\r\nPEN 1\r\nBLOCK 1, 1, 1\r\n";
    EXPECT_EQ(RemoveGeneratedBlock(lost), lost);
    EXPECT_EQ(RemoveGeneratedBlock(Block("") + lost), lost);
    EXPECT_EQ(RemoveGeneratedBlock(Start), Start);
    EXPECT_EQ(RemoveGeneratedBlock(End + "\r\n" + Start), End + "\r\n" + Start);
    EXPECT_EQ(RemoveGeneratedBlock(End + "\r\n" + Block("")), End + "\r\n");
}

TEST(RemoveGeneratedBlock, EndsALostBlockAtTheNextEnd) {
    EXPECT_EQ(RemoveGeneratedBlock(Start + "\r\nlost\r\n" + Block("PEN 1\r\n") + "a"), "a");
}

TEST(RemoveGeneratedBlock, KnowsItsOwnMarkersAlone) {
    for (const std::size_t place : {std::size_t{0}, std::size_t{20}, Start.size() - 1}) {
        std::string changed = Block("PEN 1\r\n");
        changed[place] = changed[place] == 'x' ? 'y' : 'x';
        EXPECT_EQ(RemoveGeneratedBlock(changed), changed);
    }
    std::string changed = Block("PEN 1\r\n");
    changed[changed.size() - 3] = '-';
    EXPECT_EQ(RemoveGeneratedBlock(changed), changed);
}

TEST(RemoveGeneratedBlock, TakesABlockThatTheRemovalPutTogether) {
    for (std::size_t cut = 0; cut < Start.size(); ++cut) {
        std::string script = "a" + Start;
        script.insert(1 + cut, Block("1\r\n"));
        script.append("\r\n").append(End).append("\r\nb");
        EXPECT_EQ(RemoveGeneratedBlock(script), "ab") << cut;
    }
}

TEST(WithGeneratedBlock, StandsFirstBetweenItsMarkers) {
    EXPECT_EQ(WithGeneratedBlock("PEN 1\r\n", "a"), Start + "\r\nPEN 1\r\n" + End + "\r\na");
    EXPECT_EQ(WithGeneratedBlock("", ""), Start + "\r\n" + End + "\r\n");
    const std::string lost = Start + "\r\nPEN 1\r\n";
    EXPECT_EQ(WithGeneratedBlock("", lost), Block("") + lost);
}

/// Scripts of markers, line ends and pieces of markers in any order.
std::string RandomScript(std::mt19937_64& random) {
    const std::string pieces[] = {Start,
                                  End,
                                  "\r\n",
                                  "\n",
                                  "\r",
                                  Start.substr(0, 30),
                                  "PEN 1",
                                  Start.substr(30),
                                  Block("LINE2 0, 0, 1, 1\r\n"),
                                  "\t",
                                  "! ",
                                  "x"};
    std::string script;
    for (std::size_t n = random() % 12; n > 0; --n) {
        script += pieces[random() % std::size(pieces)];
    }
    return script;
}

TEST(GeneratedBlock, ComesAndGoesWithoutATrace) {
    std::mt19937_64 random(81);
    for (int i = 0; i < 5000; ++i) {
        const std::string script = RandomScript(random);
        SCOPED_TRACE(::testing::PrintToString(script));
        const std::string own = RemoveGeneratedBlock(script);
        ASSERT_EQ(RemoveGeneratedBlock(own), own);
        const std::string once = WithGeneratedBlock("PEN 1\r\n", script);
        ASSERT_TRUE(once.ends_with(own));
        ASSERT_EQ(RemoveGeneratedBlock(once), own);
        ASSERT_EQ(WithGeneratedBlock("PEN 1\r\n", once), once);
        ASSERT_EQ(WithGeneratedBlock("PEN 2\r\n", once), WithGeneratedBlock("PEN 2\r\n", own));
    }
}

} // namespace
} // namespace Merivane::Photometry
