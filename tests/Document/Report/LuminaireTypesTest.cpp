#include <gtest/gtest.h>

#include "Document/Report/LuminaireTypes.hpp"
#include "ReportSamples.hpp"

namespace Merivane::Document {

TEST(CollectLuminaireTypes, CountsEveryCopyOfAnArray) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const std::vector<LuminaireType> types = CollectLuminaireTypes(office.built.scene.luminaires);
    ASSERT_EQ(types.size(), 2U);
    EXPECT_EQ(types[0].name, "Painel embutido 60 × 60");
    EXPECT_EQ(types[0].manufacturer, "Oficina da Luz");
    EXPECT_EQ(types[0].lamp, "LED 4000 K");
    EXPECT_EQ(types[0].count, 16U);
    EXPECT_EQ(types[0].totalWatts, 640.0);
    EXPECT_EQ(RangeText(types[0].maintenance, 2), "0,70 a 0,80");
    EXPECT_EQ(types[1].count, 1U);
    EXPECT_EQ(types[1].withoutWatts, 1U);
    EXPECT_EQ(types[1].withoutColourRendering, 1U);
}

TEST(CollectLuminaireTypes, CountsPiecesOfALineByTheirLength) {
    const Tests::ReportSample office = Tests::OfficeSample();
    std::vector<Simulation::SceneLuminaire> pieces(2, office.built.scene.luminaires[0]);
    pieces[0].arrayCountX = pieces[0].arrayCountY = 1;
    pieces[1] = pieces[0];
    pieces[1].lengthScale = 2.5;
    const std::vector<LuminaireType> types = CollectLuminaireTypes(pieces);
    ASSERT_EQ(types.size(), 1U);
    EXPECT_DOUBLE_EQ(types[0].totalWatts, 40.0 + 100.0);
    EXPECT_EQ(RangeText(types[0].watts, 0), "40 a 100");
    EXPECT_NEAR(types[0].flux.most, 2.5 * types[0].flux.least, 1e-9);
}

TEST(CollectZonePowers, CountsWhatHangsOverEachZone) {
    const Tests::ReportSample office = Tests::OfficeSample();
    const std::vector<ZonePower> powers = CollectZonePowers(office.study, office.built.scene);
    ASSERT_EQ(powers.size(), 3U);
    EXPECT_EQ(powers[0].count, 8U);
    EXPECT_DOUBLE_EQ(powers[0].watts, 320.0);
    EXPECT_DOUBLE_EQ(powers[0].area, 40.0);
    EXPECT_EQ(PowerDensityText(powers[0]), "8,0 W/m²");
    EXPECT_EQ(powers[2].count, 1U);
    EXPECT_EQ(PowerDensityText(powers[2]), "–"); // nobody told its power
    EXPECT_EQ(PowerDensityText({3, 1, 80.0, 10.0}), "≥ 8,0 W/m²");
    EXPECT_EQ(PowerDensityText({0, 0, 0.0, 10.0}), "–");
}

TEST(AreaOf, LeavesHolesOut) {
    EXPECT_DOUBLE_EQ(AreaOf({{{0, 0}, {4, 0}, {4, 4}, {0, 4}}, {{{1, 1}, {1, 2}, {2, 2}, {2, 1}}}}),
                     15.0);
}

TEST(ListText, PutsAnEBeforeTheLast) {
    EXPECT_EQ(ListText({}), "");
    EXPECT_EQ(ListText({"A"}), "A");
    EXPECT_EQ(ListText({"A", "B"}), "A e B");
    EXPECT_EQ(ListText({"A", "B", "C"}), "A, B e C");
}

} // namespace Merivane::Document
