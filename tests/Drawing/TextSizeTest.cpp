#include <cmath>

#include <gtest/gtest.h>

#include "Drawing/TextSize.hpp"

namespace Merivane::Drawing {
namespace {

TEST(MeasureText, ACapitalIsAsHighAsAskedFor) {
    for (double height : {1.5, 2.0, 3.2, 10.0}) {
        const TextSize size = MeasureText("H", height);
        EXPECT_NEAR(size.above, height, 0.01 * height);
        EXPECT_NEAR(size.below, 0.0, 0.01 * height);
    }
}

TEST(MeasureText, WidthGrowsWithTheHeightAlone) {
    const double unit = MeasureText("150 lx", 100.0).width / 100.0;
    for (double height : {0.5, 1.5, 1.8, 2.0, 7.3}) {
        EXPECT_NEAR(MeasureText("150 lx", height).width, height * unit, 0.01);
    }
}

TEST(MeasureText, WidthsOfPartsSumToTheWhole) {
    const double whole = MeasureText("150 lx", 2.0).width;
    EXPECT_NEAR(MeasureText("150", 2.0).width + MeasureText(" lx", 2.0).width, whole, 0.01);
}

TEST(MeasureText, DescendersAndAccentsCount) {
    EXPECT_GT(MeasureText("g", 2.0).below, 0.3);
    EXPECT_GT(MeasureText("Á", 2.0).above, 2.2);
}

TEST(MeasureText, BoldIsWider) {
    EXPECT_GT(MeasureText("Sala", 2.0, TextWeight::Bold).width, MeasureText("Sala", 2.0).width);
}

TEST(MeasureText, NothingTakesNoSpace) {
    const TextSize size = MeasureText("", 2.0);
    EXPECT_EQ(size.width, 0.0);
    EXPECT_EQ(size.above, 0.0);
    EXPECT_EQ(size.below, 0.0);
}

TEST(MeasureText, StaysOnOneLineAndTakesBytesThatAreNoText) {
    EXPECT_NEAR(MeasureText("a\nb", 2.0).width, MeasureText("a b", 2.0).width, 1e-9);
    EXPECT_GT(MeasureText("a\xFF\xC3", 2.0).width, MeasureText("a", 2.0).width);
}

TEST(TextBounds, FollowsAnchorAndRotation) {
    TextRun text;
    text.text = "HHH";
    text.position = {50, 40};
    text.height = 4;
    const double width = MeasureText("HHH", 4).width;
    struct Case {
        HorizontalAnchor horizontal;
        VerticalAnchor vertical;
        double rotation;
        Box box;
    };
    const Case cases[] = {
        {HorizontalAnchor::Left, VerticalAnchor::Base, 0, {50, 40, 50 + width, 44}},
        {HorizontalAnchor::Right, VerticalAnchor::Top, 0, {50 - width, 36, 50, 40}},
        {HorizontalAnchor::Center,
         VerticalAnchor::Middle,
         0,
         {50 - width / 2, 38, 50 + width / 2, 42}},
        {HorizontalAnchor::Left, VerticalAnchor::Base, 90, {46, 40, 50, 40 + width}},
        {HorizontalAnchor::Left, VerticalAnchor::Base, 180, {50 - width, 36, 50, 40}},
        {HorizontalAnchor::Center,
         VerticalAnchor::Middle,
         270,
         {48, 40 - width / 2, 52, 40 + width / 2}},
    };
    for (const Case& c : cases) {
        text.horizontal = c.horizontal;
        text.vertical = c.vertical;
        text.rotation = c.rotation;
        const Box box = TextBounds(text);
        EXPECT_NEAR(box.left, c.box.left, 0.05);
        EXPECT_NEAR(box.bottom, c.box.bottom, 0.05);
        EXPECT_NEAR(box.right, c.box.right, 0.05);
        EXPECT_NEAR(box.top, c.box.top, 0.05);
    }
}

TEST(MeasureText, GivesEveryMonospacedLetterOneWidth) {
    const auto width = [](const std::string& text) {
        return MeasureText(text, 2.0, TextWeight::Normal, TextFace::Monospaced).width;
    };
    EXPECT_NEAR(width("iii"), width("MÇ0"), 1e-6);
    EXPECT_NEAR(width("iiii"), 4.0 * width("i"), 1e-3);
    EXPECT_GT(width("iii"), MeasureText("iii", 2.0).width);
}

TEST(BoxesMeet, CountsTheGapBetweenThem) {
    const Box box{0, 0, 10, 10};
    EXPECT_TRUE(BoxesMeet(box, {9, 9, 20, 20}));
    EXPECT_FALSE(BoxesMeet(box, {10, 0, 20, 10})); // side by side
    EXPECT_TRUE(BoxesMeet(box, {10.5, 0, 20, 10}, 1.0));
    EXPECT_FALSE(BoxesMeet(box, {11.5, 0, 20, 10}, 1.0));
    EXPECT_FALSE(BoxesMeet(box, {0, 12, 10, 20}, 1.0));
}

} // namespace
} // namespace Merivane::Drawing
