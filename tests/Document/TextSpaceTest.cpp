#include <gtest/gtest.h>

#include "Document/SheetText.hpp"
#include "Document/TextSpace.hpp"

namespace Merivane::Document {
namespace {

using Drawing::Box;
using Drawing::Point;

Drawing::TextRun Label() {
    return SheetText("HHH", 0.0, 0.0, 2.0);
} // 2 mm high, stands on y

TEST(PlaceText, TakesTheFirstPlaceThatCoversNothing) {
    TextSpace space;
    space.texts = {{0, 0, 10, 5}};
    space.symbols = {{20, 0, 30, 5}};
    space.walls = {{{40, -10}, {45, 10}}};
    space.limits = {{{60, 1}, {70, 1}}};
    Drawing::TextRun text = Label();
    ASSERT_TRUE(PlaceText(space, text, {{1, 1}, {21, 1}, {41, 0}, {60, 0}, {80, 0}, {100, 0}}));
    EXPECT_EQ(text.position, (Point{80, 0}));
}

TEST(PlaceText, CoversASymbolRatherThanAWallAndAWallRatherThanAText) {
    struct Case {
        std::vector<Point> places;
        Point expected;
    };
    const Case cases[] = {
        {{{1, 1}, {41, 0}, {21, 1}}, {21, 1}},
        {{{1, 1}, {41, 0}, {60, 0}}, {60, 0}},
        {{{1, 1}, {41, 0}}, {41, 0}},
    };
    for (const Case& c : cases) {
        TextSpace space;
        space.texts = {{0, 0, 10, 5}};
        space.symbols = {{20, 0, 30, 5}};
        space.walls = {{{40, -10}, {45, 10}}};
        space.limits = {{{60, 1}, {70, 1}}};
        Drawing::TextRun text = Label();
        ASSERT_TRUE(PlaceText(space, text, c.places));
        EXPECT_EQ(text.position, c.expected);
    }
}

TEST(PlaceText, FindsNoPlaceWhereTextsStandEverywhere) {
    TextSpace space;
    space.texts = {{0, 0, 10, 5}};
    Drawing::TextRun text = Label();
    EXPECT_FALSE(PlaceText(space, text, {{1, 1}, {8, 2}}));
    EXPECT_FALSE(PlaceText(space, text, {}));
    EXPECT_EQ(space.texts.size(), 1U);
}

TEST(PlaceText, WhatIsPlacedTakesItsPlace) {
    TextSpace space;
    Drawing::TextRun first = Label();
    Drawing::TextRun second = Label();
    ASSERT_TRUE(PlaceText(space, first, {{0, 0}, {0, 20}}));
    ASSERT_TRUE(PlaceText(space, second, {{0, 0}, {0, 20}}));
    EXPECT_EQ(second.position, (Point{0, 20}));
    EXPECT_FALSE(BoxesMeet(TextBounds(first), TextBounds(second)));
}

TEST(IsFreeOfWalls, SeesLinesThatCrossTouchOrLieInside) {
    struct Case {
        PaperLine line;
        bool free;
    };
    const Box box{10, 10, 20, 14};
    const Case cases[] = {
        {{{0, 0}, {30, 30}}, false},  {{{12, 11}, {13, 12}}, false},
        {{{15, 0}, {15, 9}}, true},   {{{0, 12}, {9, 12}}, true},
        {{{0, 12}, {40, 12}}, false}, {{{0, 20}, {30, 20}}, true},
        {{{21, 0}, {21, 30}}, true},  {{{20.2, 0}, {20.2, 30}}, false},
        {{{5, 13}, {12, 20}}, true},  {{{15, 12}, {15, 12}}, false},
    };
    for (const Case& c : cases) {
        TextSpace space;
        space.walls = {c.line};
        EXPECT_EQ(IsFreeOfWalls(space, box), c.free) << c.line.start.x << " " << c.line.start.y
                                                     << " " << c.line.end.x << " " << c.line.end.y;
    }
}

} // namespace
} // namespace Merivane::Document
