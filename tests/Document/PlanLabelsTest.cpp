#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "Document/PlanLabels.hpp"
#include "PlanSamples.hpp"

namespace Merivane::Document {
namespace {

using Drawing::Layer;
using Drawing::Point;
using Drawing::TextRun;

// 1:10, so that texts are small beside the distances between nodes.
PlanSheet Sheet(double scale = 10.0) {
    PlanSheet sheet;
    sheet.scale = scale;
    return sheet;
}

std::vector<TextRun> Runs(const Layer& layer) {
    return ElementsOf<TextRun>({"", 297, 210, {layer}});
}

// A grid of `columns` x `rows` nodes 0.25 m apart, all active, with the value 100 j + i.
PlanZone ZoneOfNodes(int columns, int rows) {
    PlanZone zone;
    zone.grid.columns = columns;
    zone.grid.rows = rows;
    zone.grid.active.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows),
                            true);
    for (int j = 0; j < rows; ++j) {
        for (int i = 0; i < columns; ++i) {
            zone.values.push_back(100 * j + i);
        }
    }
    return zone;
}

PlanStyle Spacing(double x, double y) {
    PlanStyle style;
    style.valueSpacingX = x;
    style.valueSpacingY = y;
    return style;
}

std::vector<std::string> ValuesAt(const PlanZone& zone, const PlanStyle& style,
                                  double scale = 10.0) {
    Layer layer;
    TextSpace space;
    AppendValues(layer, space, Sheet(scale), zone, style);
    return TextsOf(Runs(layer));
}

TEST(AppendValues, StandCentredInTheGrid) {
    struct Case {
        int columns;
        int rows;
        double spacingX;
        double spacingY;
        std::vector<std::string> values;
    };
    const Case cases[] = {
        {3, 2, 0.25, 0.25, {"0", "1", "2", "100", "101", "102"}},
        {3, 2, 0.0, -1.0, {"0", "1", "2", "100", "101", "102"}}, // at least every node
        {5, 1, 0.5, 0.5, {"0", "2", "4"}},
        {6, 1, 0.5, 0.5, {"0", "2", "4"}},            // (6 - 1) mod 2 = 1, half of it 0
        {6, 1, 0.75, 0.5, {"1", "4"}},                // (6 - 1) mod 3 = 2, half of it 1
        {4, 4, 0.75, 1.0, {"100", "103"}},            // rows: (4 - 1) mod 4 = 3, half of it 1
        {5, 1, 0.37, 0.5, {"0", "1", "2", "3", "4"}}, // 1.48 nodes round to 1
        {5, 1, 0.38, 0.5, {"0", "2", "4"}},           // 1.52 to 2
        {5, 5, 100, 100, {"202"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.columns << " x " << c.rows << " " << c.spacingX);
        EXPECT_EQ(ValuesAt(ZoneOfNodes(c.columns, c.rows), Spacing(c.spacingX, c.spacingY)),
                  c.values);
    }
}

TEST(AppendValues, StandCentredOnTheirNodes) {
    Layer layer;
    TextSpace space;
    AppendValues(layer, space, Sheet(), ZoneOfNodes(2, 2), Spacing(0.25, 0.25));
    const std::vector<TextRun> runs = Runs(layer);
    ASSERT_EQ(runs.size(), 4U);
    EXPECT_EQ(runs[3].position, (Point{25, 25}));
    EXPECT_EQ(runs[3].horizontal, Drawing::HorizontalAnchor::Center);
    EXPECT_EQ(runs[3].vertical, Drawing::VerticalAnchor::Middle);
    EXPECT_EQ(runs[3].height, 1.5);
    EXPECT_EQ(space.texts.size(), 4U);
}

TEST(AppendValues, HaveNoDecimalsAndNodesWithoutAValueStayBlank) {
    PlanZone zone = ZoneOfNodes(4, 1);
    zone.values = {99.5, 0.49, std::numeric_limits<double>::quiet_NaN(), 1234.4};
    EXPECT_EQ(ValuesAt(zone, Spacing(0.25, 0.25)), (std::vector<std::string>{"100", "0", "1234"}));
}

TEST(AppendValues, AreThinnedWhereTheyWouldTouchAtTheScale) {
    // Nodes stand 2.5 mm apart at 1:100; a value of three digits is about 4 mm wide.
    const std::vector<std::string> values = ValuesAt(ZoneOfNodes(9, 3), Spacing(0.25, 0.25), 100.0);
    EXPECT_EQ(values.front(), "1"); // every third column from the second on
    EXPECT_LT(values.size(), 9U * 3U);
    EXPECT_GT(values.size(), 3U);
}

TEST(AppendValues, GiveWayToThoseOfAnotherZone) {
    Layer layer;
    TextSpace space;
    const PlanStyle style = Spacing(0.25, 0.25);
    AppendValues(layer, space, Sheet(), ZoneOfNodes(2, 2), style);
    PlanZone neighbour = ZoneOfNodes(2, 2);
    neighbour.grid.originX = 0.26;
    AppendValues(layer, space, Sheet(), neighbour, style);
    EXPECT_EQ(Runs(layer).size(), 6U); // its first column stands on our second
}

TEST(AppendCurveLabels, ACurveOfFewPointsHasNone) {
    Simulation::IsoCurve curve{200, {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}}, false};
    Layer layer;
    TextSpace space;
    AppendCurveLabels(layer, space, Sheet(), {curve});
    EXPECT_TRUE(layer.elements.empty());
    curve.points.push_back({5, 0});
    AppendCurveLabels(layer, space, Sheet(), {curve});
    ASSERT_EQ(layer.elements.size(), 1U);
    EXPECT_EQ(Runs(layer)[0].text, "200 lx");
    EXPECT_EQ(Runs(layer)[0].position, (Point{0, 0})); // the first label: the first point
}

TEST(AppendCurveLabels, MovesAlongTheCurveUntilItIsClear) {
    const Simulation::IsoCurve curve{12.5, {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}}, false};
    Layer layer;
    TextSpace space;
    space.texts = {{-10, -5, 140, 5}};
    AppendCurveLabels(layer, space, Sheet(), {curve});
    ASSERT_EQ(layer.elements.size(), 1U);
    EXPECT_EQ(Runs(layer)[0].text, "12,5 lx");
    EXPECT_EQ(Runs(layer)[0].position, (Point{200, 0}));
}

TEST(AppendCurveLabels, IsLeftOutWhereTextsStandEverywhere) {
    const Simulation::IsoCurve curve{100, {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}}, false};
    Layer layer;
    TextSpace space;
    space.texts = {{-100, -5, 700, 5}};
    AppendCurveLabels(layer, space, Sheet(), {curve});
    EXPECT_TRUE(layer.elements.empty());
}

TEST(AppendOutlineLabel, StandsOverTheLeftmostOfTheTopmostPoints) {
    const Simulation::IsoCurve curve{
        0.5, {{1, 0}, {3, 0}, {3, 2}, {2, 2 + 5e-10}, {1, 2}, {1, 0}}, true};
    PlanZone zone;
    zone.polygon.outer = Rectangle(0, -1, 9, 4);
    Layer layer;
    TextSpace space;
    AppendOutlineLabel(layer, space, Sheet(), zone, {curve});
    ASSERT_EQ(layer.elements.size(), 1U);
    const TextRun label = Runs(layer)[0];
    EXPECT_EQ(label.text, "Limite da área de tarefa");
    EXPECT_NEAR(label.position.x, (1 + 0.05) * 100, 1e-6);
    EXPECT_NEAR(label.position.y, 2 * 100 + 0.8, 1e-6);
}

TEST(AppendOutlineLabel, GivesWayAndStaysWithinTheZone) {
    const Simulation::IsoCurve curve{0.5, {{1, 0}, {3, 0}, {3, 2}, {1, 2}, {1, 0}}, true};
    PlanZone zone;
    zone.polygon.outer = Rectangle(0, -1, 4, 4);
    Layer layer;
    TextSpace space;
    space.texts = {{100, 195, 320, 260}};
    AppendOutlineLabel(layer, space, Sheet(), zone, {curve});
    ASSERT_EQ(layer.elements.size(), 1U);
    const Drawing::Box box = TextBounds(Runs(layer)[0]);
    EXPECT_FALSE(BoxesMeet(box, space.texts[0]));
    EXPECT_GE(box.left, 0.0);
    EXPECT_LE(box.right, 400.0);
}

TEST(AppendOutlineLabel, WithoutAnOutlineThereIsNone) {
    Layer layer;
    TextSpace space;
    AppendOutlineLabel(layer, space, Sheet(), {}, {});
    EXPECT_TRUE(layer.elements.empty());
}

TEST(AppendZoneName, StandsInTheZoneClearOfItsWalls) {
    PlanZone zone;
    zone.name = "Sala";
    zone.polygon.outer = {{0, 0}, {2, 0}, {2, 2}}; // a triangle: its lower left has no room
    TextSpace space;
    space.walls = {{{0, 0}, {200, 0}}, {{200, 0}, {200, 200}}, {{200, 200}, {0, 0}}};
    Layer layer;
    AppendZoneName(layer, space, Sheet(), zone);
    ASSERT_EQ(layer.elements.size(), 1U);
    const Drawing::Box box = TextBounds(Runs(layer)[0]);
    EXPECT_LT(box.top, box.left); // under the diagonal
    EXPECT_GT(box.bottom, 0.0);
    EXPECT_LT(box.right, 200.0);
}

} // namespace
} // namespace Merivane::Document
