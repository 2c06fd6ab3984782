#include "Archicad/ResultDrawing.hpp"
#include "ResultSample.hpp"

namespace Merivane::Archicad {
namespace {

using Host::AttributeIndex;

using ResultStructureOfAProject = Tests::ResultTest;

TEST(DrawingOptionsOf, TakesWhatTheUserChose) {
    Simulation::CalculationSettings settings;
    settings.drawingScale = 75.0;
    settings.fills = false;
    settings.model3D = false;
    settings.colorScale = 2;
    settings.legend = false;
    settings.curves = false;
    settings.curveLabels = false;
    settings.values = true;
    settings.valueSpacing = 1.25;
    settings.levels = {20.0, 40.0};
    const DrawingOptions options = DrawingOptionsOf(settings);
    EXPECT_EQ(options.scale, 75.0);
    EXPECT_FALSE(options.fills || options.model3D || options.legend || options.curves ||
                 options.curveLabels);
    EXPECT_TRUE(options.values);
    EXPECT_EQ(options.colorScale, 2U);
    EXPECT_EQ(options.valueSpacingX, 1.25);
    EXPECT_EQ(options.valueSpacingY, 1.25);
    EXPECT_EQ(options.levels, (Simulation::LevelList{20.0, 40.0}));
}

TEST_F(ResultStructureOfAProject, HasLayersTheSolidFillAndTheDashedLine) {
    EXPECT_EQ(structure.layers, (ResultLayers{{5}, {6}, {7}, {8}, {9}, {10}}));
    EXPECT_EQ(structure.solidFill, AttributeIndex{1});
    EXPECT_EQ(structure.dashedLine, AttributeIndex{2});
    EXPECT_EQ(Open().lineTypes.at(2), (Host::LineType{"Vantoro - Tracejada", {3.0, 1.5}}));
}

TEST_F(ResultStructureOfAProject, MakesBothLineTypesWhereTheyAreMissing) {
    Open().lineTypes.erase(2);
    Open().lineTypes.erase(3);
    Prepare();
    EXPECT_EQ(Open().lineTypes.at(structure.dashedLine.value), DashedLineType());
    Host::AttributeIndex dashDot;
    ASSERT_EQ(
        Host::FindAttribute(Host::AttributeType::LineType, "Vantoro - Traco e ponto", dashDot),
        Host::NoError);
    EXPECT_EQ(Open().lineTypes.at(dashDot.value), DashDotLineType());
}

TEST_F(ResultStructureOfAProject, TakesTheFirstSolidFill) {
    Open().fills = {{3, {"Tijolo", Host::FillKind::Vector}},
                    {4, {"Vazio", Host::FillKind::Empty}},
                    {6, {"Cheio", Host::FillKind::Solid}},
                    {7, {"Outro", Host::FillKind::Solid}}};
    Prepare();
    EXPECT_EQ(structure.solidFill, AttributeIndex{6});
    Open().fills.erase(6);
    Open().fills.erase(7);
    Prepare();
    EXPECT_EQ(structure.solidFill, AttributeIndex());
}

TEST_F(ResultStructureOfAProject, DoesWithoutFillsThatTheHostDoesNotTell) {
    Workbench::FailCall("ListAttributes", 1, Host::GeneralError);
    Prepare();
    EXPECT_EQ(structure.solidFill, AttributeIndex());
    Workbench::FailCall("GetFill", 1, Host::GeneralError);
    Prepare();
    EXPECT_EQ(structure.solidFill, AttributeIndex());
}

TEST_F(ResultStructureOfAProject, AsksTheHostForTheScaleOnlyWhereNoneIsWanted) {
    Open().planScale = 50.0;
    for (const auto& [wanted, scale] :
         {std::pair{0.0, 50.0}, {-1.0, 50.0}, {0.5, 0.5}, {125.0, 125.0}}) {
        options.scale = wanted;
        Prepare();
        EXPECT_EQ(structure.scale, scale) << wanted;
    }
}

TEST_F(ResultStructureOfAProject, IsOneToAHundredWhereTheHostHasNoScale) {
    Open().planScale = 50.0;
    Workbench::FailCall("GetDrawingScale", 1, Host::BadDatabase);
    Prepare();
    EXPECT_EQ(structure.scale, 100.0);
}

TEST_F(ResultStructureOfAProject, ShowsHiddenResultLayers) {
    for (std::int32_t layer = 5; layer <= 10; ++layer) {
        Open().layers.at(layer).hidden = true;
    }
    Prepare();
    for (std::int32_t layer = 5; layer <= 10; ++layer) {
        EXPECT_FALSE(Open().layers.at(layer).hidden) << layer;
    }
}

TEST_F(ResultStructureOfAProject, StopsWithTheHostsErrorForALayerThatCanNotBeMade) {
    Open().layers.erase(9);
    Workbench::FailCall("CreateLayer", 1, Host::NotMine);
    EXPECT_EQ(PrepareResultStructure(options, structure), Host::NotMine);
}

TEST_F(ResultStructureOfAProject, GoesOnWithoutTheLineType) {
    Open().lineTypes.erase(2);
    Workbench::FailCall("CreateLineType", 1, Host::NotMine);
    Prepare();
    EXPECT_EQ(structure.dashedLine, AttributeIndex());
    EXPECT_EQ(structure.layers.workPlane3D, AttributeIndex{10});
}

} // namespace
} // namespace Merivane::Archicad
