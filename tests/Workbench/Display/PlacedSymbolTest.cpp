#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "DisplaySample.hpp"
#include "Workbench/Display/PenLook.hpp"
#include "Workbench/Display/PlacedSymbol.hpp"

namespace Merivane::Workbench {
namespace {

using namespace Tests;

constexpr double Near = 1e-9;
constexpr double QuarterTurn = std::numbers::pi / 2.0;

struct Drawn {
    std::vector<Drawing::Element> elements;
    std::vector<Drawing::Element> texts;
};

Drawn DrawAt(const SymbolPlace& place, const std::vector<PlanShape>& shapes) {
    Drawn drawn;
    PaperDrawing drawing; // 1:100, so 10 mm of paper for a metre
    AddPlacedSymbol(DisplayProject(), {shapes}, place, drawing, drawn.elements);
    drawn.texts = drawing.texts;
    return drawn;
}

PlanLook WithPen(std::int32_t pen, std::int32_t fill = 0) {
    PlanLook look;
    look.pen = pen;
    look.fill = fill;
    return look;
}

PlanPolygon UnitTriangle() {
    PlanPolygon triangle;
    triangle.rings = {{{{0, 0}, {1, 0}, {0, 1}}, {true, true, true}}};
    return triangle;
}

TEST(PlacedSymbol, IsMirroredThenTurnedThenMoved) {
    const PlanLine line{{1, 0}, {1, 2}, WithPen(7)};
    const Drawn drawn = DrawAt({{5, 6}, QuarterTurn, true}, {line});
    const auto& made = std::get<Drawing::Polyline>(drawn.elements.at(0));
    EXPECT_NEAR(made.points[0].x, 50.0, Near); // (1, 0) -> (-1, 0) -> (0, -1)
    EXPECT_NEAR(made.points[0].y, 50.0, Near);
    EXPECT_NEAR(made.points[1].x, 30.0, Near); // (1, 2) -> (-1, 2) -> (-2, -1)
    EXPECT_NEAR(made.points[1].y, 50.0, Near);
    EXPECT_EQ(made.stroke.width, LookOfPen(7).width);
}

TEST(PlacedSymbol, DrawsAnArcWithItsOwnSweepTurnedAndMirrored) {
    PlanArc arc;
    arc.center = {1, 0};
    arc.radius = 0.5;
    arc.begin = 0.0;
    arc.end = 60.0;
    const Drawn plain = DrawAt({{0, 0}, QuarterTurn, false}, {arc});
    const auto& turned = std::get<Drawing::Arc>(plain.elements.at(0));
    EXPECT_NEAR(turned.center.y, 10.0, Near);
    EXPECT_NEAR(turned.radius, 5.0, Near);
    EXPECT_NEAR(turned.start, QuarterTurn, Near);
    EXPECT_NEAR(turned.end - turned.start, std::numbers::pi / 3.0, Near);
    const Drawn other = DrawAt({{0, 0}, 0.0, true}, {arc});
    const auto& mirrored = std::get<Drawing::Arc>(other.elements.at(0));
    EXPECT_NEAR(mirrored.center.x, -10.0, Near);
    EXPECT_NEAR(mirrored.start, 2.0 * std::numbers::pi / 3.0, Near);
    EXPECT_NEAR(mirrored.end, std::numbers::pi, Near);
}

TEST(PlacedSymbol, DrawsAWholeCircleWhole) {
    PlanArc circle;
    circle.radius = 1.0;
    circle.whole = true;
    const Drawn drawn = DrawAt({{0, 0}, 1.0, true}, {circle});
    const auto& made = std::get<Drawing::Arc>(drawn.elements.at(0));
    EXPECT_NEAR(made.end - made.start, 2.0 * std::numbers::pi, Near);
}

TEST(PlacedSymbol, FillsAPolygonOnItsBackgroundAndOutlinesIt) {
    PlanPolygon triangle = UnitTriangle();
    triangle.filled = true;
    triangle.fillPen = 3;
    triangle.backgroundPen = -1;
    triangle.look = WithPen(7, 1);
    const Drawn drawn = DrawAt({}, {triangle});
    ASSERT_EQ(drawn.elements.size(), 3U);
    EXPECT_EQ(std::get<Drawing::Area>(drawn.elements[0]).fill, Drawing::White);
    EXPECT_EQ(std::get<Drawing::Area>(drawn.elements[1]).fill, LookOfPen(3).color);
    const auto& outline = std::get<Drawing::Polyline>(drawn.elements[2]);
    EXPECT_TRUE(outline.closed);
    EXPECT_EQ(outline.stroke.width, LookOfPen(7).width);
}

TEST(PlacedSymbol, FillsWithThePenOfTheOutlineWhereTheFillHasNone) {
    PlanPolygon triangle = UnitTriangle();
    triangle.filled = true;
    triangle.outlined = false;
    triangle.look = WithPen(3, 1);
    const Drawn drawn = DrawAt({}, {triangle});
    ASSERT_EQ(drawn.elements.size(), 1U);
    EXPECT_EQ(std::get<Drawing::Area>(drawn.elements[0]).fill, LookOfPen(3).color);
}

TEST(PlacedSymbol, LeavesOutTheEdgesThatAreHidden) {
    PlanPolygon triangle = UnitTriangle();
    triangle.rings[0].visible = {true, false, true};
    const Drawn drawn = DrawAt({}, {triangle});
    ASSERT_EQ(drawn.elements.size(), 2U);
    const auto& last = std::get<Drawing::Polyline>(drawn.elements[1]);
    EXPECT_NEAR(last.points[0].y, 10.0, Near);
    EXPECT_NEAR(last.points[1].y, 0.0, Near);
}

TEST(PlacedSymbol, DoesNotCloseABrokenLine) {
    PlanPolygon line = UnitTriangle();
    line.closed = false;
    const Drawn drawn = DrawAt({}, {line});
    EXPECT_FALSE(std::get<Drawing::Polyline>(drawn.elements.at(0)).closed);
}

TEST(PlacedSymbol, SetsTextsLineByLineAtTheirAnchorTurnedWithTheObject) {
    PlanText text;
    text.position = {1, 0};
    text.text = "C1\nR2";
    text.angle = -90.0;
    text.size = 3.0;
    text.anchor = 5;
    text.face = 1;
    const Drawn drawn = DrawAt({{0, 0}, QuarterTurn, false}, {text});
    ASSERT_EQ(drawn.texts.size(), 2U);
    const auto& first = std::get<Drawing::TextRun>(drawn.texts[0]);
    EXPECT_EQ(first.text, "C1");
    EXPECT_NEAR(first.rotation, 0.0, Near);
    EXPECT_EQ(first.height, 3.0);
    EXPECT_EQ(first.weight, Drawing::TextWeight::Bold);
    const auto& second = std::get<Drawing::TextRun>(drawn.texts[1]);
    EXPECT_GT(first.position.y, second.position.y);
    EXPECT_NEAR((first.position.y + second.position.y + first.height) / 2.0, 10.0, 0.01);
}

TEST(PlacedSymbol, DrawsByDrawingIndexFirst) {
    PlanLine above{{0, 0}, {1, 0}, WithPen(7)};
    above.look.drawIndex = 40;
    PlanLine plain{{0, 0}, {2, 0}, WithPen(7)};
    PlanLine below{{0, 0}, {3, 0}, WithPen(7)};
    below.look.drawIndex = 10;
    const Drawn drawn = DrawAt({}, {above, plain, below});
    ASSERT_EQ(drawn.elements.size(), 3U);
    EXPECT_NEAR(std::get<Drawing::Polyline>(drawn.elements[0]).points[1].x, 30.0, Near);
    EXPECT_NEAR(std::get<Drawing::Polyline>(drawn.elements[1]).points[1].x, 20.0, Near);
    EXPECT_NEAR(std::get<Drawing::Polyline>(drawn.elements[2]).points[1].x, 10.0, Near);
}

TEST(PlacedSymbol, DrawsNoHotspots) {
    const Drawn drawn = DrawAt({}, {PlanHotspot{{1, 1}, 1, "A", 0, ""}});
    EXPECT_TRUE(drawn.elements.empty());
    EXPECT_TRUE(drawn.texts.empty());
}

} // namespace
} // namespace Merivane::Workbench
