#include <gtest/gtest.h>

#include "Simulation/ColorScale.hpp"

namespace Merivane::Tests {

using namespace Simulation;

namespace {

void ExpectColor(const RgbColor& color, double red, double green, double blue) {
    EXPECT_NEAR(color.red, red, 1e-12);
    EXPECT_NEAR(color.green, green, 1e-12);
    EXPECT_NEAR(color.blue, blue, 1e-12);
}

} // namespace

TEST(ColorScale, HasItsThreeNames) {
    EXPECT_EQ(ColorScaleName(0), "Espectro (azul a vermelho)");
    EXPECT_EQ(ColorScaleName(1), "Calor (violeta a amarelo)");
    EXPECT_EQ(ColorScaleName(2), "Tons de cinza");
    EXPECT_EQ(ColorScaleName(3), "Espectro (azul a vermelho)");
}

TEST(BandColor, PassesThroughEveryStop) {
    const std::vector<std::vector<RgbColor>> stops{
        {{0.12, 0.10, 0.50},
         {0.15, 0.40, 0.95},
         {0.10, 0.80, 0.90},
         {0.30, 0.78, 0.30},
         {0.98, 0.90, 0.20},
         {0.98, 0.55, 0.10},
         {0.85, 0.10, 0.10}},
        {{0.20, 0.05, 0.35},
         {0.55, 0.05, 0.45},
         {0.85, 0.20, 0.20},
         {0.98, 0.55, 0.10},
         {1.00, 0.85, 0.30},
         {1.00, 0.98, 0.80}},
        {{0.30, 0.30, 0.30}, {0.95, 0.95, 0.95}},
    };
    for (std::uint32_t scale = 0; scale < stops.size(); ++scale) {
        for (std::size_t k = 0; k < stops[scale].size(); ++k) {
            SCOPED_TRACE(::testing::Message() << scale << " " << k);
            const RgbColor& stop = stops[scale][k];
            ExpectColor(BandColor(scale, k, stops[scale].size()), stop.red, stop.green, stop.blue);
        }
    }
}

TEST(BandColor, MixesLinearlyBetweenTheStops) {
    ExpectColor(BandColor(2, 1, 5), 0.4625, 0.4625, 0.4625);
    // 9 bands over 7 stops: band 1 stands at 0.75 of the first step.
    ExpectColor(BandColor(0, 1, 9), 0.1425, 0.325, 0.8375);
}

TEST(BandColor, StaysWithinTheScale) {
    ExpectColor(BandColor(2, 9, 5), 0.95, 0.95, 0.95);
    ExpectColor(BandColor(2, 0, 1), 0.30, 0.30, 0.30);
    ExpectColor(BandColor(2, 3, 1), 0.30, 0.30, 0.30);
    ExpectColor(BandColor(2, 3, 0), 0.30, 0.30, 0.30);
    EXPECT_EQ(BandColor(99, 1, 3), BandColor(0, 1, 3));
}

TEST(BandText, NamesTheLevels) {
    const LevelList levels{12.5, 50, 100};
    EXPECT_EQ(BandText(levels, 0), "< 12,5");
    EXPECT_EQ(BandText(levels, 1), "12,5 a 50");
    EXPECT_EQ(BandText(levels, 2), "50 a 100");
    EXPECT_EQ(BandText(levels, 3), "≥ 100");
    EXPECT_EQ(BandText(levels, 4), "");
    EXPECT_EQ(BandText({}, 0), "");
}

TEST(CurveLabelText, IsTheLevelInLux) {
    EXPECT_EQ(CurveLabelText(150), "150 lx");
    EXPECT_EQ(CurveLabelText(12.5), "12,5 lx");
}

TEST(LegendTitle, IsWhatStandsOverTheLegend) {
    EXPECT_STREQ(LegendTitle, "Iluminância (lx)");
}

} // namespace Merivane::Tests
