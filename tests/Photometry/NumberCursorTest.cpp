#include <gtest/gtest.h>

#include "Photometry/NumberCursor.hpp"

namespace Merivane::Photometry {
namespace {

NumberCursor CursorOn(std::string_view line) {
    NumberCursor cursor;
    AppendTokens(line, cursor.tokens);
    return cursor;
}

TEST(AppendTokens, GivesNoEmptyTokenForARunOfSeparators) {
    struct Case {
        std::string_view line;
        std::vector<std::string_view> tokens;
    };
    const Case cases[] = {
        {"", {}},
        {" ,\t,, ", {}},
        {"1", {"1"}},
        {"1,000", {"1", "000"}},
        {",1 , x\v2;3\f", {"1", "x", "2;3"}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(CursorOn(c.line).tokens, c.tokens) << c.line;
    }
}

TEST(AppendTokens, KeepsWhatTheListHeld) {
    NumberCursor cursor = CursorOn("1 2");
    AppendTokens("3", cursor.tokens);
    EXPECT_EQ(cursor.tokens, (std::vector<std::string_view>{"1", "2", "3"}));
}

TEST(ReadRealList, ReadsAsManyAsAskedAndStopsBehindThem) {
    NumberCursor cursor = CursorOn("1 2 3");
    std::vector<double> values = {9.0};
    EXPECT_TRUE(ReadRealList(cursor, "x", 2, values));
    EXPECT_EQ(values, (std::vector<double>{1, 2}));
    EXPECT_EQ(cursor.next, 2U);
    EXPECT_EQ(cursor.error, "");
}

TEST(ReadRealList, ReadsNothingForACountBelowOne) {
    for (const int count : {0, -1, -1000000000}) {
        NumberCursor cursor = CursorOn("1 2 3");
        std::vector<double> values = {9.0};
        EXPECT_TRUE(ReadRealList(cursor, "x", count, values)) << count;
        EXPECT_TRUE(values.empty());
        EXPECT_EQ(cursor.next, 0U);
    }
}

TEST(ReadReal, LeavesTheValueAloneWhenItRefuses) {
    NumberCursor cursor = CursorOn("x");
    double value = 7.0;
    EXPECT_FALSE(ReadReal(cursor, "largura", value));
    EXPECT_EQ(cursor.error, "valor nao numerico \"x\" em largura");
    EXPECT_FALSE(ReadReal(cursor, "largura", value));
    EXPECT_EQ(cursor.error, "arquivo termina antes de largura");
    EXPECT_EQ(value, 7.0);
}

} // namespace
} // namespace Merivane::Photometry
