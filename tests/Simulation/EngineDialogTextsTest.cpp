#include <gtest/gtest.h>

#include "Simulation/EngineDialogTexts.hpp"

namespace Merivane::Simulation {
namespace {

TEST(EngineTimeLine, TellsTheCostAloneWithoutALastRun) {
    EXPECT_EQ(EngineTimeLine(ProfileSettings(1), {}), "Tempo: ~1.0x o perfil Projeto.");
    EXPECT_EQ(EngineTimeLine(ProfileSettings(2), {}), "Tempo: ~2.8x o perfil Projeto.");
    EXPECT_EQ(EngineTimeLine(ProfileSettings(2), {false, 100, 50, 1, 1}),
              "Tempo: ~2.8x o perfil Projeto.");
}

TEST(EngineTimeLine, ScalesTheSecondsOfTheLastRun) {
    EXPECT_EQ(EngineTimeLine(ProfileSettings(2), {true, 2400, 40, 1, 1}),
              "Tempo: ~2.8x o perfil Projeto. O último cálculo (2400 pontos) levou 40 s; com esta "
              "configuração levaria ~112 s."); // 112.5 to even
    EXPECT_EQ(EngineTimeLine(ProfileSettings(1), {true, 1, 30.6, 2, 1}),
              "Tempo: ~1.0x o perfil Projeto. O último cálculo (1 pontos) levou 31 s; com esta "
              "configuração levaria ~15 s.");
}

TEST(EngineTimeLine, TellsTheCostAloneWhereTheLastRunHadNone) {
    EXPECT_EQ(EngineTimeLine(ProfileSettings(1), {true, 2400, 40, 0, 1}),
              "Tempo: ~1.0x o perfil Projeto.");
    EXPECT_EQ(EngineTimeLine(ProfileSettings(1), {true, 2400, 40, -1, 1}),
              "Tempo: ~1.0x o perfil Projeto.");
}

TEST(EngineWarningsText, IsOneWarningALineBehindASign) {
    EXPECT_EQ(EngineWarningsText(ProfileSettings(1)), "");
    EngineSettings settings;
    settings.bounces = 1;
    EXPECT_EQ(
        EngineWarningsText(settings),
        "\xE2\x9A\xA0 Uma reflexão só: a luz refletida fica subestimada em ambientes claros.");
    settings.divisions = 100;
    EXPECT_EQ(EngineWarningsText(settings),
              "\xE2\x9A\xA0 Uma reflexão só: a luz refletida fica subestimada em ambientes "
              "claros.\n\xE2\x9A\xA0 Poucos raios por ponto: a luz refletida fica manchada "
              "(ruído).");
}

} // namespace
} // namespace Merivane::Simulation
