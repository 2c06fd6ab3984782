#include <gtest/gtest.h>

#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Simulation {
namespace {

TEST(StageTitle, StandsAsTheProgressWindowShowsIt) {
    EXPECT_EQ(StageTitle(SimulationStage::Preparing, 7),
              "Preparando a cena (luminárias e geometria)");
    EXPECT_EQ(StageTitle(SimulationStage::Seed, 7), "Luz refletida entre as superfícies (semente)");
    EXPECT_EQ(StageTitle(SimulationStage::Points, 2400), "Pontos de cálculo (2400)");
    EXPECT_EQ(StageTitle(SimulationStage::Points, 0), "Pontos de cálculo (0)");
    EXPECT_EQ(StageTitle(SimulationStage::Observers, 7), "Observadores (UGR)");
}

TEST(SimulationStage, KeepsItsNumbers) {
    EXPECT_EQ(static_cast<unsigned>(SimulationStage::Preparing), 0U);
    EXPECT_EQ(static_cast<unsigned>(SimulationStage::Seed), 1U);
    EXPECT_EQ(static_cast<unsigned>(SimulationStage::Points), 2U);
    EXPECT_EQ(static_cast<unsigned>(SimulationStage::Observers), 3U);
}

TEST(StageTitle, IsEmptyForAnUnknownStage) {
    EXPECT_EQ(StageTitle(static_cast<SimulationStage>(4), 7), "");
}

TEST(SimulationOptions, BeginWithTheDesignProfile) {
    const SimulationOptions options;
    EXPECT_EQ(options.quality, 1U);
    EXPECT_TRUE(options.useEngineSettings);
    EXPECT_EQ(options.engine, ProfileSettings(1));
    EXPECT_EQ(options.processCount, 0);
    EXPECT_FALSE(options.repeatable);
}

} // namespace
} // namespace Merivane::Simulation
