#include "Archicad/ResultLabels.hpp"

#include <limits>

#include "ResultSample.hpp"
#include "Simulation/Study/TextExtent.hpp"

namespace Merivane::Archicad {
namespace {

using Simulation::Bounds2D;
using Simulation::IsoCurve;
using Simulation::Point2D;

IsoCurve Straight(double level, double y, double step, int count) {
    IsoCurve curve;
    curve.level = level;
    for (int k = 0; k < count; ++k) {
        curve.points.push_back({k * step, y});
    }
    return curve;
}

Simulation::ZoneDrawing Grid(std::int32_t columns, std::int32_t rows) {
    Simulation::ZoneDrawing drawing;
    drawing.grid.columns = columns;
    drawing.grid.rows = rows;
    drawing.grid.stepX = 0.1;
    drawing.grid.stepY = 0.2;
    drawing.field.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), 123.5);
    return drawing;
}

/// Columns and rows of the nodes whose values are written.
std::vector<Point2D> Nodes(const Simulation::ZoneDrawing& drawing, double spacingX,
                           double spacingY) {
    DrawingOptions options;
    options.valueSpacingX = spacingX;
    options.valueSpacingY = spacingY;
    std::vector<Point2D> nodes;
    for (const PlacedText& text : PlaceValueTexts(drawing, options)) {
        nodes.push_back({std::round((text.position.x - drawing.grid.originX) / 0.1),
                         std::round((text.position.y - drawing.grid.originY) / 0.2)});
    }
    return nodes;
}

TEST(PlaceValueTexts, StandsCentredInTheGrid) {
    using Nodes2D = std::vector<Point2D>;
    EXPECT_EQ(Nodes(Grid(8, 1), 0.5, 0.5), (Nodes2D{{1, 0}, {6, 0}})); // 7 mod 5 = 2, half 1
    EXPECT_EQ(Nodes(Grid(6, 1), 0.5, 0.5), (Nodes2D{{0, 0}, {5, 0}}));
    EXPECT_EQ(Nodes(Grid(1, 8), 0.5, 0.6), (Nodes2D{{0, 0}, {0, 3}, {0, 6}})); // 7 mod 3 = 1
    EXPECT_EQ(Nodes(Grid(5, 1), 9.0, 9.0), (Nodes2D{{2, 0}}));
    EXPECT_EQ(Nodes(Grid(0, 0), 0.5, 0.5), Nodes2D{});
}

TEST(PlaceValueTexts, RoundsTheDistanceToWholeNodesOneAtLeast) {
    EXPECT_EQ(Nodes(Grid(3, 1), 0.149, 1.0).size(), 3U);
    EXPECT_EQ(Nodes(Grid(3, 1), 0.151, 1.0).size(), 2U);
    for (const double spacing : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(Nodes(Grid(3, 1), spacing, 1.0).size(), 3U) << spacing;
    }
    EXPECT_EQ(Nodes(Grid(3, 1), 1e300, 1.0), (std::vector<Point2D>{{1, 0}}));
}

TEST(PlaceValueTexts, WritesWholeLuxWhereThereIsAValue) {
    Simulation::ZoneDrawing drawing = Grid(3, 1);
    drawing.field = {123.5, std::numeric_limits<double>::quiet_NaN(), 0.4};
    DrawingOptions options;
    options.valueSpacingX = 0.1;
    const std::vector<PlacedText> texts = PlaceValueTexts(drawing, options);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].text, "124");
    EXPECT_EQ(texts[1].text, "0");
    EXPECT_EQ(texts[0].height, 1.5);
    EXPECT_EQ(texts[0].anchor, Host::TextAnchor::Middle);
    EXPECT_EQ(texts[1].position, (Point2D{0.2, 0.0}));
}

TEST(PlaceCurveTexts, KeepsTheWidthOfTheWidestLabelBetweenThem) {
    const double width = Simulation::EstimateTextWidth("1000 lx", 2.0); // mm
    const std::vector<IsoCurve> curves = {Straight(1000, 0, 0, 6),
                                          Straight(50, 0.999 * width, 0, 6),
                                          Straight(50, 1.001 * width, 0, 6)};
    const CurveTexts placed = PlaceCurveTexts(curves, {}, 1.0);
    ASSERT_EQ(placed.texts.size(), 2U);
    EXPECT_EQ(placed.unlabelled, 1U);
    EXPECT_EQ(placed.texts[1].text, "50 lx");
    EXPECT_EQ(placed.texts[1].position.y, 1.001 * width);
    EXPECT_EQ(placed.texts[0].height, 2.0);
    EXPECT_EQ(placed.texts[0].anchor, Host::TextAnchor::Middle);
}

TEST(PlaceCurveTexts, StandsOnTheFirstPointWhereNothingIsInTheWay) {
    EXPECT_EQ(PlaceCurveTexts({Straight(100, 2, 1, 9)}, {}, 0.1).texts[0].position,
              (Point2D{0, 2}));
}

TEST(PlaceCurveTexts, StandsInsideItsZoneWhereItCan) {
    const Simulation::Polygon2D zone = Tests::PlanArea(0, 0, 8, 4);
    LabelSpace space;
    space.zone = &zone;
    EXPECT_EQ(PlaceCurveTexts({Straight(100, 2, 1, 9)}, space, 0.1).texts[0].position,
              (Point2D{1, 2}));
    const Simulation::Polygon2D tiny = Tests::PlanArea(0, 1.9, 8, 0.11);
    space.zone = &tiny; // no room anywhere
    EXPECT_EQ(PlaceCurveTexts({Straight(100, 2, 1, 9)}, space, 0.1).texts[0].position,
              (Point2D{0, 2}));
}

TEST(PlaceCurveTexts, CoversNoOtherLabelAndValuesOnlyInNeed) {
    LabelSpace space;
    space.texts = {{{-1, 1}, {2, 3}}};
    space.values = {{{3, 1.9}, {4, 2.1}}};
    const std::vector<IsoCurve> curves = {Straight(100, 2, 1, 9)};
    EXPECT_EQ(PlaceCurveTexts(curves, space, 0.1).texts[0].position, (Point2D{5, 2}));
    space.values = {{{-1, 1}, {9, 3}}};
    EXPECT_EQ(PlaceCurveTexts(curves, space, 0.1).texts[0].position, (Point2D{3, 2}));
    space.texts = space.values;
    const CurveTexts none = PlaceCurveTexts(curves, space, 0.1);
    EXPECT_TRUE(none.texts.empty());
    EXPECT_EQ(none.unlabelled, 1U);
}

TEST(PlaceOutlineText, StandsOverTheLeftmostTop) {
    EXPECT_EQ(PlaceOutlineText({}, 0.1), std::nullopt);
    const std::optional<PlacedText> text =
        PlaceOutlineText({Straight(0, 1, 1, 3), {0, {{7, 4}, {5, 4}, {9, 3}}, true}}, 0.2);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->text, "Limite da área de tarefa");
    EXPECT_NEAR(text->position.x, 5.05, 1e-12);
    EXPECT_NEAR(text->position.y, 4 + 0.8 * 0.2, 1e-12);
    EXPECT_EQ(text->height, 1.8);
    EXPECT_EQ(text->anchor, Host::TextAnchor::LeftBottom);
}

TEST(LabelSpaceOf, HoldsTheLimitsLabelOthersAndWrittenValues) {
    const Simulation::ZoneDrawing drawing = Tests::SmallDrawing();
    DrawingOptions options;
    options.values = true;
    const LabelSpace space = LabelSpaceOf(drawing, {{{8, 8}, {9, 9}}}, options, 0.1);
    EXPECT_EQ(space.zone, &drawing.zone.outline);
    ASSERT_EQ(space.texts.size(), 2U);
    EXPECT_EQ(space.texts[0].minimum, (Point2D{8, 8}));
    EXPECT_NEAR(space.texts[1].minimum.x, 0.55, 1e-12);
    EXPECT_EQ(space.values.size(), 27U);
    options.values = false;
    EXPECT_TRUE(LabelSpaceOf(drawing, {}, options, 0.1).values.empty());
}

TEST(TextBounds, LiesAroundTheAnchor) {
    const double width = Simulation::EstimateTextWidth("abc", 2.0) * 0.1;
    PlacedText text{"abc", {10, 20}, 2.0, Host::TextAnchor::LeftBottom};
    Bounds2D bounds = TextBounds(text, 0.1);
    EXPECT_NEAR(bounds.minimum.x, 10, 1e-12);
    EXPECT_NEAR(bounds.minimum.y, 20, 1e-12);
    EXPECT_NEAR(bounds.maximum.x, 10 + width, 1e-12);
    EXPECT_NEAR(bounds.maximum.y, 20.2, 1e-12);
    text.anchor = Host::TextAnchor::Middle;
    bounds = TextBounds(text, 0.1);
    EXPECT_NEAR(bounds.minimum.x, 10 - width / 2, 1e-12);
    EXPECT_NEAR(bounds.maximum.y, 20.1, 1e-12);
    text.anchor = Host::TextAnchor::RightTop;
    bounds = TextBounds(text, 0.1);
    EXPECT_NEAR(bounds.maximum.x, 10, 1e-12);
    EXPECT_NEAR(bounds.maximum.y, 20, 1e-12);
}

} // namespace
} // namespace Merivane::Archicad
