#include "Archicad/ResultDrawing.hpp"
#include "Archicad/ResultLegend.hpp"
#include "ResultSample.hpp"
#include "Simulation/ColorScale.hpp"
#include "Simulation/Study/TextExtent.hpp"

namespace Merivane::Archicad {
namespace {

using Host::ElementType;

class LegendOfAFloor : public Tests::ResultTest {
protected:
    LegendOfAFloor() {
        structure.scale = 50.0; // a millimetre of paper is 0.05 m
        options.fills = false;
    }

    void DrawIt() {
        Draw([this] { DrawLegend(1, {10.0, 20.0}, options, structure, warnings); });
    }
};

TEST_F(LegendOfAFloor, HasARowForEachBandTheHighestAtTheTop) {
    DrawIt();
    EXPECT_EQ(TextsOn({8}), (Tests::Lines{"Iluminância (lx)", "≥ 300", "100 a 300", "< 100"}));
    EXPECT_EQ(warnings, Tests::Lines{});
}

TEST_F(LegendOfAFloor, StandsAtItsPlacesInPaperMillimetres) {
    DrawIt();
    const auto texts = Elements(ElementType::Text);
    ASSERT_EQ(texts.size(), 4U);
    const auto& title = std::get<Host::TextData>(texts[0].element.data);
    EXPECT_NEAR(title.position.x, 10.0, 1e-9);
    EXPECT_NEAR(title.position.y, 20.0 - 3.5 * 0.05, 1e-9);
    EXPECT_EQ(title.size, 2.5);
    EXPECT_EQ(title.anchor, Host::TextAnchor::LeftBottom);
    const auto fills = Elements(ElementType::Hatch);
    ASSERT_EQ(fills.size(), 3U);
    for (std::size_t row = 0; row < 3; ++row) {
        SCOPED_TRACE(row);
        const double head = 20.0 - (5.5 + 5.0 * static_cast<double>(row)) * 0.05;
        const auto& text = std::get<Host::TextData>(texts[row + 1].element.data);
        EXPECT_NEAR(text.position.x, 10.0 + 10.0 * 0.05, 1e-9);
        EXPECT_NEAR(text.position.y, head - 4.0 * 0.05 + 0.6 * 0.05, 1e-9);
        EXPECT_EQ(text.size, 2.0);
        EXPECT_EQ(text.anchor, Host::TextAnchor::LeftBottom);
        const auto& ring = fills[row].memo.polygon.at(0).vertices;
        ASSERT_EQ(ring.size(), 4U);
        EXPECT_NEAR(ring[0].x, 10.0, 1e-9);
        EXPECT_NEAR(ring[0].y, head - 4.0 * 0.05, 1e-9);
        EXPECT_NEAR(ring[2].x, 10.0 + 8.0 * 0.05, 1e-9);
        EXPECT_NEAR(ring[2].y, head, 1e-9);
    }
}

TEST_F(LegendOfAFloor, ShowsTheColoursOfTheBandsOnTheLegendsLayer) {
    options.colorScale = 1;
    DrawIt();
    const auto fills = Elements(ElementType::Hatch);
    ASSERT_EQ(fills.size(), 3U);
    for (std::size_t row = 0; row < 3; ++row) {
        const auto& hatch = std::get<Host::HatchData>(fills[row].element.data);
        const Simulation::RgbColor color = Simulation::BandColor(1, 2 - row, 3);
        EXPECT_EQ(hatch.foreground, (Host::Colour{color.red, color.green, color.blue}));
        EXPECT_TRUE(hatch.hasForeground);
        EXPECT_EQ(hatch.contourPen, 0);
        EXPECT_EQ(hatch.fill, structure.solidFill);
    }
    for (const Workbench::ProjectElement& element : Open().elements) {
        EXPECT_EQ(element.element.header.layer, structure.layers.legend);
        EXPECT_EQ(element.element.header.floorIndex, 1);
    }
}

TEST_F(LegendOfAFloor, IsLeftOutWhereItHasNothingToShow) {
    const auto nothing = [this] {
        return Host::CallUndoable("Prova", [this] {
            DrawLegend(0, {}, options, structure, warnings);
            return Host::NoError;
        });
    };
    options.legend = false;
    EXPECT_FALSE(HasLegend(options, structure));
    EXPECT_EQ(nothing(), Host::NothingToUndo);
    options.legend = true;
    options.levels.clear();
    EXPECT_FALSE(HasLegend(options, structure));
    EXPECT_EQ(nothing(), Host::NothingToUndo);
    options.levels = {100.0};
    EXPECT_TRUE(HasLegend(options, structure));
    structure.solidFill = {};
    EXPECT_FALSE(HasLegend(options, structure));
    EXPECT_EQ(nothing(), Host::NothingToUndo);
    EXPECT_EQ(warnings, Tests::Lines{});
}

TEST_F(LegendOfAFloor, CountsWhatTheHostRefuses) {
    Workbench::FailCall("CreateElement", 1, Host::NotMine);
    Workbench::FailCall("CreateElement", 3, Host::NotMine);
    DrawIt();
    EXPECT_EQ(warnings, (Tests::Lines{"2 elemento(s) da legenda nao puderam ser criados"}));
    EXPECT_EQ(Open().elements.size(), 5U);
}

TEST(MeasureLegend, ReachesFromTheTitleToTheLastRow) {
    EXPECT_DOUBLE_EQ(MeasureLegend({100.0, 300.0}).height, 5.5 + 2 * 5.0 + 4.0);
    EXPECT_DOUBLE_EQ(MeasureLegend({100.0}).width,
                     Simulation::EstimateTextWidth("Iluminância (lx)", 2.5));
    EXPECT_DOUBLE_EQ(MeasureLegend({1000000.0, 2000000.0}).width,
                     10.0 + Simulation::EstimateTextWidth("1000000 a 2000000", 2.0));
}

} // namespace
} // namespace Merivane::Archicad
