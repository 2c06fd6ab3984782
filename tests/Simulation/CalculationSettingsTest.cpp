#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "Simulation/CalculationSettings.hpp"

namespace Merivane::Simulation {
namespace {

constexpr const char* RepresentationMessage =
    "Escolha ao menos uma representacao: mapa de cor falsa, curvas isolux ou valores.";
constexpr const char* SpacingMessage = "O espacamento dos valores precisa ser maior que zero.";
constexpr const char* WallMessage =
    "O afastamento dos pontos da parede precisa ser de pelo menos 1 cm.";
constexpr const char* PlaneMessage = "A altura do plano de trabalho nao pode ser negativa.";
constexpr const char* BandMessage =
    "A faixa de borda das estatisticas nao pode ser menor que o afastamento dos pontos.";

const std::string Levels = "50; 100";

/// What the user is told; empty when the settings are accepted.
std::string MessageFor(CalculationSettings settings, const std::string& levels = Levels) {
    const CalculationSettings before = settings;
    std::string error;
    const bool accepted = CheckCalculationSettings(settings, levels, error);
    EXPECT_EQ(accepted, error.empty());
    if (!accepted) {
        EXPECT_EQ(settings, before);
    }
    return error;
}

TEST(CalculationSettings, BeginWithTheUsualChoices) {
    const CalculationSettings settings;
    EXPECT_EQ(settings.workPlaneHeight, 0.75);
    EXPECT_EQ(settings.wallOffset, 0.05);
    EXPECT_EQ(settings.borderBand, 0.5);
    EXPECT_TRUE(settings.reviewReflectances);
    EXPECT_TRUE(settings.colouredReflection);
    EXPECT_TRUE(settings.verify);
    EXPECT_TRUE(settings.planeFacesViewer);
    EXPECT_TRUE(settings.surfaces);
    EXPECT_TRUE(settings.ugr);
    EXPECT_EQ(settings.drawingScale, 0.0);
    EXPECT_TRUE(settings.fills);
    EXPECT_TRUE(settings.model3D);
    EXPECT_EQ(settings.colorScale, 0U);
    EXPECT_TRUE(settings.legend);
    EXPECT_TRUE(settings.curves);
    EXPECT_TRUE(settings.curveLabels);
    EXPECT_FALSE(settings.values);
    EXPECT_EQ(settings.valueSpacing, 0.5);
    EXPECT_EQ(settings.levels, DefaultLevels());
    EXPECT_EQ(MessageFor(settings, FormatLevels(settings.levels)), "");
}

TEST(CheckCalculationSettings, AsksForOneRepresentationAtLeast) {
    for (int chosen = 0; chosen < 8; ++chosen) {
        CalculationSettings settings;
        settings.fills = (chosen & 1) != 0;
        settings.curves = (chosen & 2) != 0;
        settings.values = (chosen & 4) != 0;
        EXPECT_EQ(MessageFor(settings), chosen == 0 ? RepresentationMessage : "") << chosen;
    }
}

TEST(CheckCalculationSettings, TakesNeitherLabelsNorLegendForARepresentation) {
    CalculationSettings settings;
    settings.fills = false;
    settings.curves = false;
    settings.curveLabels = true;
    settings.legend = false;
    EXPECT_EQ(MessageFor(settings), RepresentationMessage);
    settings.curveLabels = false;
    settings.legend = true;
    EXPECT_EQ(MessageFor(settings), RepresentationMessage);
    settings.model3D = true;
    EXPECT_EQ(MessageFor(settings), RepresentationMessage);
}

TEST(CheckCalculationSettings, AsksForASpacingAboveZeroWhereValuesAreWritten) {
    CalculationSettings settings;
    for (const double spacing : {0.0, -0.5}) {
        settings.valueSpacing = spacing;
        settings.values = true;
        EXPECT_EQ(MessageFor(settings), SpacingMessage) << spacing;
        settings.values = false;
        EXPECT_EQ(MessageFor(settings), "") << spacing;
    }
    settings.values = true;
    settings.valueSpacing = std::numeric_limits<double>::min();
    EXPECT_EQ(MessageFor(settings), "");
}

TEST(CheckCalculationSettings, AsksForAWallOffsetOfACentimetre) {
    struct Case {
        double wallOffset;
        const char* message;
    };
    const double edge = 0.009999999;
    const Case cases[] = {
        {0.01, ""},           {edge, ""},         {std::nextafter(edge, 0.0), WallMessage},
        {0.009, WallMessage}, {0.0, WallMessage}, {-0.05, WallMessage},
    };
    for (const Case& c : cases) {
        CalculationSettings settings;
        settings.wallOffset = c.wallOffset;
        EXPECT_EQ(MessageFor(settings), c.message) << c.wallOffset;
    }
}

TEST(CheckCalculationSettings, AsksForAWorkPlaneOnOrAboveTheFloor) {
    CalculationSettings settings;
    settings.workPlaneHeight = 0.0;
    EXPECT_EQ(MessageFor(settings), "");
    settings.workPlaneHeight = -std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(MessageFor(settings), PlaneMessage);
    settings.workPlaneHeight = -0.01;
    EXPECT_EQ(MessageFor(settings), PlaneMessage);
}

TEST(CheckCalculationSettings, AsksForABorderBandAsWideAsTheWallOffset) {
    CalculationSettings settings;
    settings.wallOffset = 0.3;
    settings.borderBand = 0.3;
    EXPECT_EQ(MessageFor(settings), "");
    settings.borderBand = std::nextafter(0.3, 0.0);
    EXPECT_EQ(MessageFor(settings), BandMessage);
    settings.borderBand = std::nextafter(0.3, 1.0);
    EXPECT_EQ(MessageFor(settings), "");
}

TEST(CheckCalculationSettings, TakesTheLevelsOver) {
    CalculationSettings settings;
    std::string error = "antes";
    EXPECT_TRUE(CheckCalculationSettings(settings, "50, 100", error));
    EXPECT_EQ(settings.levels, (LevelList{50, 100}));
    EXPECT_EQ(error, "");
}

TEST(CheckCalculationSettings, TellsWhichLevelItCanNotRead) {
    const std::string example = ".\nExemplo: 50; 100; 150; 200; 300; 500; 750; 1000";
    EXPECT_EQ(
        MessageFor({}, "50; abc"),
        "Niveis de iluminancia: \"abc\" nao e um nivel valido (use numeros positivos, em lux)" +
            example);
    EXPECT_EQ(MessageFor({}, ""), "Niveis de iluminancia: nenhum nivel informado" + example);
}

TEST(CheckCalculationSettings, RefusesWhatIsNoNumber) {
    const std::pair<double CalculationSettings::*, const char*> cases[] = {
        {&CalculationSettings::valueSpacing, SpacingMessage},
        {&CalculationSettings::wallOffset, WallMessage},
        {&CalculationSettings::workPlaneHeight, PlaneMessage},
        {&CalculationSettings::borderBand, BandMessage},
    };
    for (const auto& [field, message] : cases) {
        CalculationSettings settings;
        settings.values = true;
        settings.*field = std::nan("");
        std::string error;
        EXPECT_FALSE(CheckCalculationSettings(settings, Levels, error));
        EXPECT_EQ(error, message);
    }
}

TEST(CheckCalculationSettings, TellsTheFirstRuleThatIsBroken) {
    CalculationSettings settings;
    settings.fills = false;
    settings.curves = false;
    settings.values = false;
    settings.valueSpacing = 0.0;
    settings.wallOffset = 0.0;
    settings.workPlaneHeight = -1.0;
    settings.borderBand = -1.0;
    EXPECT_EQ(MessageFor(settings, "x"), RepresentationMessage);
    settings.values = true;
    EXPECT_EQ(MessageFor(settings, "x"), SpacingMessage);
    settings.valueSpacing = 1.0;
    EXPECT_TRUE(MessageFor(settings, "x").starts_with("Niveis de iluminancia: "));
    EXPECT_EQ(MessageFor(settings), WallMessage);
    settings.wallOffset = 0.1;
    EXPECT_EQ(MessageFor(settings), PlaneMessage);
    settings.workPlaneHeight = 0.0;
    EXPECT_EQ(MessageFor(settings), BandMessage);
    settings.borderBand = 0.1;
    EXPECT_EQ(MessageFor(settings), "");
}

} // namespace
} // namespace Merivane::Simulation
