#include <gtest/gtest.h>

#include "Document/PlanLegend.hpp"
#include "PlanSamples.hpp"
#include "Simulation/ColorScale.hpp"

namespace Merivane::Document {
namespace {

using Drawing::Area;
using Drawing::TextRun;

TEST(BuildLegendBlock, TellsTheBandsFromTheTopOneDown) {
    const SheetBlock block = BuildLegendBlock({50, 100, 12345.5}, 0);
    const Drawing::DisplayList list{"", 70, 100, {{"", block.elements}}};
    const std::vector<TextRun> runs = ElementsOf<TextRun>(list);
    EXPECT_EQ(TextsOf(runs), (std::vector<std::string>{"Iluminância (lx)", "≥ 12345,5",
                                                       "100 a 12345,5", "50 a 100", "< 50"}));
    EXPECT_EQ(runs[0].height, 2.5);
    EXPECT_EQ(runs[0].position, (Drawing::Point{0.0, -3.5}));
    for (std::size_t k = 1; k < runs.size(); ++k) {
        EXPECT_EQ(runs[k].height, 2.0);
        EXPECT_EQ(runs[k].position.x, 10.0);
    }
    EXPECT_EQ(OverlappingTexts(list), "");
}

TEST(BuildLegendBlock, ARowIsARectangleOfEightByFourEveryFiveMillimetres) {
    const SheetBlock block = BuildLegendBlock({50, 100}, 1);
    const std::vector<Area> swatches = ElementsOf<Area>({"", 70, 100, {{"", block.elements}}});
    ASSERT_EQ(swatches.size(), 3U);
    for (std::size_t k = 0; k < swatches.size(); ++k) {
        const double head = -5.5 - 5.0 * static_cast<double>(k);
        EXPECT_EQ(swatches[k].rings[0], (std::vector<Drawing::Point>{
                                            {0, head - 4}, {8, head - 4}, {8, head}, {0, head}}));
        EXPECT_EQ(swatches[k].fill, PlanBandColor({50, 100}, 1, 2 - k));
    }
    EXPECT_EQ(block.height, 5.5 + 2 * 5.0 + 4.0);
}

TEST(PlanBandColor, IsTheColourOfTheScale) {
    const Drawing::Color top = PlanBandColor({50, 100, 150}, 2, 3);
    EXPECT_EQ(top, (Drawing::Color{0.95, 0.95, 0.95, 1.0}));
    const Simulation::RgbColor middle = Simulation::BandColor(0, 1, 4);
    EXPECT_EQ(PlanBandColor({50, 100, 150}, 0, 1),
              (Drawing::Color{middle.red, middle.green, middle.blue, 1.0}));
}

} // namespace
} // namespace Merivane::Document
