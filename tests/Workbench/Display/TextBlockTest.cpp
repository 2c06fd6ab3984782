#include <cmath>
#include <numbers>
#include <string>

#include <gtest/gtest.h>

#include "Drawing/TextSize.hpp"
#include "Workbench/Display/PenLook.hpp"
#include "Workbench/Display/TextBlock.hpp"

namespace Merivane::Workbench {
namespace {

using Host::TextAnchor;

constexpr double Near = 0.01; // [mm]

Host::TextParagraph Plain(const std::string& text, std::int32_t letters, double size = 2.0) {
    return {text, {{letters, 1, size, false}}, {}};
}

double Width(const std::string& text, double size, bool bold = false) {
    return Drawing::MeasureText(text, size,
                                bold ? Drawing::TextWeight::Bold : Drawing::TextWeight::Normal)
        .width;
}

TEST(TextBlock, StandsWithItsAnchorAtThePosition) {
    struct Case {
        TextAnchor anchor;
        double x; // of the base line's begin, in widths of the text
        double y; // of the base line, in heights
    };
    const Case cases[] = {
        {TextAnchor::LeftTop, 0, -1},     {TextAnchor::MiddleTop, -0.5, -1},
        {TextAnchor::RightTop, -1, -1},   {TextAnchor::LeftMiddle, 0, -0.5},
        {TextAnchor::Middle, -0.5, -0.5}, {TextAnchor::RightMiddle, -1, -0.5},
        {TextAnchor::LeftBottom, 0, 0},   {TextAnchor::MiddleBottom, -0.5, 0},
        {TextAnchor::RightBottom, -1, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.anchor));
        Host::TextData text;
        text.anchor = c.anchor;
        const auto runs = LayOutText(text, {Plain("Sala", 4, 3.0)}, {100, 50});
        ASSERT_EQ(runs.size(), 1U);
        EXPECT_EQ(runs[0].height, 3.0);
        EXPECT_NEAR(runs[0].position.x, 100.0 + c.x * Width("Sala", 3.0), Near);
        EXPECT_NEAR(runs[0].position.y, 50.0 + c.y * 3.0, Near);
    }
}

TEST(TextBlock, KeepsWhatIsBelowOffAnOpaqueText) {
    Host::TextData text;
    EXPECT_EQ(LayOutText(text, {Plain("Sala", 4)}, {0, 0})[0].halo, 0.0);
    text.opaque = true;
    EXPECT_NEAR(LayOutText(text, {Plain("Sala", 4, 3.0)}, {0, 0})[0].halo, 0.9, Near);
}

TEST(TextBlock, GivesAnEmptyParagraphTheHeightOfItsStretch) {
    Host::TextData text;
    text.anchor = TextAnchor::LeftTop;
    text.size = 5.0;
    const auto runs =
        LayOutText(text, {{"", {{0, 1, 1.8, false}}, {}}, Plain("b", 1, 2.0)}, {0, 0});
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_NEAR(runs[0].position.y, -1.8 - TextLineStep * 2.0, Near);
}

TEST(TextBlock, StepsFromLineToLineByTheHigherOnesSize) {
    Host::TextData text;
    text.anchor = TextAnchor::LeftTop;
    text.size = 1.0;
    const auto runs =
        LayOutText(text, {Plain("a", 1, 3.0), {"", {}, {}}, Plain("b", 1, 2.0)}, {0, 0});
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_NEAR(runs[0].position.y, -3.0, Near);
    EXPECT_NEAR(runs[1].position.y, -3.0 - 1.5 * 1.0 - 1.5 * 2.0, Near); // an empty line of 1 mm
}

TEST(TextBlock, GivesEachStretchItsLook) {
    const Host::TextParagraph paragraph = {
        "Não ATENDE", {{4, 1, 2.0, false}, {6, 3, 2.5, true}}, {}};
    const auto runs = LayOutText({}, {paragraph}, {0, 0});
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].text, "Não");
    EXPECT_EQ(runs[1].text, "ATENDE");
    EXPECT_EQ(runs[1].weight, Drawing::TextWeight::Bold);
    EXPECT_EQ(runs[1].height, 2.5);
    EXPECT_EQ(runs[1].color, LookOfPen(3).color);
    EXPECT_NEAR(runs[1].position.x, Width("Não ", 2.0), Near);
}

TEST(TextBlock, GoesOnAtTabStopsAndBehindTheLastByABlank) {
    const Host::TextParagraph paragraph = {"a\tb\tc", {{5, 1, 2.0, false}}, {20.0}};
    const auto runs = LayOutText({}, {paragraph}, {0, 0});
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_NEAR(runs[1].position.x, 20.0, Near);
    EXPECT_NEAR(runs[2].position.x, 20.0 + Width("b", 2.0) + Width(" ", 2.0), Near);
}

TEST(TextBlock, PassesATabStopThatItsTextHasReached) {
    const Host::TextParagraph paragraph = {"comprido\tb", {{10, 1, 2.0, false}}, {2.0, 40.0}};
    const auto runs = LayOutText({}, {paragraph}, {0, 0});
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_NEAR(runs[1].position.x, 40.0, Near);
}

TEST(TextBlock, BreaksBetweenWordsInABox) {
    Host::TextData text;
    text.anchor = TextAnchor::LeftTop;
    text.width = Width("um dois", 2.0) + 0.1;
    const auto runs = LayOutText(text, {Plain("um dois tres", 12)}, {0, 0});
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].text, "um dois");
    EXPECT_EQ(runs[1].text, "tres");
    EXPECT_NEAR(runs[1].position.y, -2.0 - 3.0, Near);
    text.width = Width("um dois", 2.0) - 0.1;
    EXPECT_EQ(LayOutText(text, {Plain("um dois tres", 12)}, {0, 0})[0].text, "um");
}

TEST(TextBlock, KeepsAWordOfTwoStretchesOnOneLine) {
    Host::TextData text;
    text.width = 1.0;
    const Host::TextParagraph paragraph = {"meio", {{2, 1, 2.0, false}, {2, 1, 2.0, true}}, {}};
    const auto runs = LayOutText(text, {paragraph}, {0, 0});
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].position.y, runs[1].position.y);
}

TEST(TextBlock, SetsLinesAtTheSideOfItsAnchor) {
    Host::TextData text;
    text.anchor = TextAnchor::RightTop;
    const auto runs = LayOutText(text, {Plain("mais comprida", 13), Plain("b", 1)}, {0, 0});
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_NEAR(runs[0].position.x, -Width("mais comprida", 2.0), Near);
    EXPECT_NEAR(runs[1].position.x, -Width("b", 2.0), Near);
}

TEST(TextBlock, KeepsLinesWithTabsAtTheLeftOfTheBlock) {
    Host::TextData text;
    text.anchor = TextAnchor::RightTop;
    const Host::TextParagraph table = {"a\tb", {{3, 1, 2.0, false}}, {5.0}};
    const auto runs = LayOutText(text, {Plain("mais comprida", 13), table}, {0, 0});
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_NEAR(runs[1].position.x, -Width("mais comprida", 2.0), Near);
    EXPECT_NEAR(runs[2].position.x, 5.0 - Width("mais comprida", 2.0), Near);
}

TEST(TextBlock, TurnsAboutItsPosition) {
    Host::TextData text;
    text.anchor = TextAnchor::RightTop;
    text.angle = std::numbers::pi / 2.0;
    const auto runs = LayOutText(text, {Plain("Sala", 4)}, {10, 20});
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_NEAR(runs[0].rotation, 90.0, 1e-9);
    EXPECT_NEAR(runs[0].position.x, 10.0 + 2.0, Near);
    EXPECT_NEAR(runs[0].position.y, 20.0 - Width("Sala", 2.0), Near);
}

} // namespace
} // namespace Merivane::Workbench
