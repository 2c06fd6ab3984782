#include "Archicad/ResultLayers.hpp"

#include "Archicad/OlderNames.hpp"
#include "AttributeSample.hpp"

namespace Merivane::Archicad {
namespace {

using Host::AttributeIndex;
using Tests::Lines;

class ResultLayersOfAProject : public Tests::AttributeTest {
protected:
    static std::vector<std::string> LayersFrom(std::int32_t first) {
        std::vector<std::string> names;
        for (const auto& [index, layer] : Open().layers) {
            if (index >= first) {
                names.push_back(layer.name);
            }
        }
        return names;
    }
};

using LayersOfAProject = ResultLayersOfAProject;
using LineTypesOfAProject = ResultLayersOfAProject;

TEST_F(LayersOfAProject, AreMadeWhereTheyAreMissing) {
    AttributeIndex index;
    ASSERT_EQ(EnsureLayer("Vantoro - Isolux", index), Host::NoError);
    EXPECT_EQ(index, AttributeIndex{5});
    EXPECT_EQ(Open().layers.at(5), (Host::Layer{"Vantoro - Isolux", false, false}));
    AttributeIndex again;
    ASSERT_EQ(EnsureLayer("Vantoro - Isolux", again), Host::NoError);
    EXPECT_EQ(again, index);
    EXPECT_EQ(Open().layers.size(), 5U);
}

TEST_F(LayersOfAProject, AreShownAndStayLocked) {
    Open().layers[7] = {"Vantoro - Isolux", true, true};
    AttributeIndex index;
    ASSERT_EQ(EnsureLayer("Vantoro - Isolux", index), Host::NoError);
    EXPECT_EQ(index, AttributeIndex{7});
    EXPECT_EQ(Open().layers.at(7), (Host::Layer{"Vantoro - Isolux", false, true}));
}

TEST_F(LayersOfAProject, AreTakenOverFromAnEarlierVersion) {
    Open().layers[7] = {"Merivane - Isolux", true, false};
    AttributeIndex index;
    ASSERT_EQ(EnsureLayer("Vantoro - Isolux", index), Host::NoError);
    EXPECT_EQ(index, AttributeIndex{7});
    EXPECT_EQ(Open().layers.at(7), (Host::Layer{"Vantoro - Isolux", false, false}));
    EXPECT_EQ(Open().layers.size(), 5U);
}

TEST_F(LayersOfAProject, AreMadeAnewWhereTheOlderOneCanNotBeRenamed) {
    Open().layers[7] = {"Merivane - Isolux", false, false};
    Workbench::FailCall("ChangeLayer", 1, Host::NotMine);
    AttributeIndex index;
    ASSERT_EQ(EnsureLayer("Vantoro - Isolux", index), Host::NoError);
    EXPECT_EQ(index, AttributeIndex{8});
    EXPECT_EQ(Log(),
              (Lines{"Vantoro: renomear Merivane - Isolux failed: APIERR_NOTMINE (0x81060132)"}));
}

TEST_F(LayersOfAProject, HaveNamesCutToWhatTheHostHolds) {
    AttributeIndex index;
    ASSERT_EQ(EnsureLayer("Vantoro " + std::string(300, 'x'), index), Host::NoError);
    EXPECT_EQ(Open().layers.at(index.value).name, "Vantoro " + std::string(247, 'x'));
    AttributeIndex again;
    ASSERT_EQ(EnsureLayer("Vantoro " + std::string(300, 'x'), again), Host::NoError);
    EXPECT_EQ(again, index);
}

TEST_F(ResultLayersOfAProject, AreSixInTheirOrder) {
    ResultLayers layers;
    ASSERT_EQ(EnsureResultLayers(layers), Host::NoError);
    EXPECT_EQ(LayersFrom(5), (Lines{"Vantoro - Isolux", "Vantoro - Cor falsa", "Vantoro - Valores",
                                    "Vantoro - Legenda", "Vantoro - Cor falsa 3D",
                                    "Vantoro - Cor falsa 3D plano de trabalho"}));
    EXPECT_EQ(layers, (ResultLayers{{5}, {6}, {7}, {8}, {9}, {10}}));
    EXPECT_EQ(ListLayers(layers), (std::array<AttributeIndex, 6>{{{5}, {6}, {7}, {8}, {9}, {10}}}));
    for (const std::string_view name : ResultLayerNames) {
        EXPECT_TRUE(IsOwnLayerName(name));
    }
}

TEST_F(ResultLayersOfAProject, AreFoundAgain) {
    ResultLayers layers;
    ASSERT_EQ(EnsureResultLayers(layers), Host::NoError);
    const Workbench::Project before = Open();
    ResultLayers again;
    ASSERT_EQ(EnsureResultLayers(again), Host::NoError);
    EXPECT_EQ(again, layers);
    EXPECT_EQ(Open(), before);
}

TEST_F(ResultLayersOfAProject, StopAtTheFirstThatFails) {
    Workbench::FailCall("CreateLayer", 3, Host::NotMine);
    ResultLayers layers{{1}, {1}, {1}, {1}, {1}, {1}};
    EXPECT_EQ(EnsureResultLayers(layers), Host::NotMine);
    EXPECT_EQ(layers, (ResultLayers{{5}, {6}, {}, {}, {}, {}}));
    EXPECT_EQ(LayersFrom(5), (Lines{"Vantoro - Isolux", "Vantoro - Cor falsa"}));
}

TEST_F(ResultLayersOfAProject, AreRefusedWhateverTheHostRefuses) {
    for (const char* const operation : {"FindAttribute", "CreateLayer"}) {
        Workbench::FailCall(operation, operation[0] == 'F' ? 3 : 1, Host::NotMine);
        ResultLayers layers;
        EXPECT_EQ(EnsureResultLayers(layers), Host::NotMine) << operation;
        EXPECT_EQ(layers, ResultLayers()) << operation;
    }
    Open().layers[5] = {"Vantoro - Isolux", true, false};
    for (const char* const operation : {"GetLayer", "ChangeLayer"}) {
        Workbench::FailCall(operation, 1, Host::NotMine);
        ResultLayers layers;
        EXPECT_EQ(EnsureResultLayers(layers), Host::NotMine) << operation;
    }
}

TEST_F(ResultLayersOfAProject, AreRefusedInsideAStep) {
    Host::ErrorCode code = Host::NoError;
    Host::CallUndoable("Prova", [&code] {
        ResultLayers layers;
        return code = EnsureResultLayers(layers);
    });
    EXPECT_EQ(code, Host::UndoScopeMisuse);
}

TEST_F(LayersOfAProject, OfTheProjectDrawingAreThreeInTheirOrder) {
    ProjectLayers layers;
    ASSERT_EQ(EnsureProjectLayers(layers), Host::NoError);
    EXPECT_EQ(LayersFrom(5),
              (Lines{"Vantoro - Circuitos", "Vantoro - Cotas", "Vantoro - Legenda de luminarias"}));
    EXPECT_EQ(layers, (ProjectLayers{{5}, {6}, {7}}));
    EXPECT_EQ(ListLayers(layers), (std::array<AttributeIndex, 3>{{{5}, {6}, {7}}}));
}

TEST_F(LayersOfAProject, OfTheProjectDrawingStopAtTheFirstThatFails) {
    Workbench::FailCall("CreateLayer", 2, Host::NotMine);
    ProjectLayers layers;
    EXPECT_EQ(EnsureProjectLayers(layers), Host::NotMine);
    EXPECT_EQ(layers, (ProjectLayers{{5}, {}, {}}));
}

TEST_F(LineTypesOfAProject, HaveTheDashesOfTheirNames) {
    AttributeIndex dashDot;
    AttributeIndex dashed;
    ASSERT_EQ(EnsureLineType(DashDotLineType(), dashDot), Host::NoError);
    ASSERT_EQ(EnsureLineType(DashedLineType(), dashed), Host::NoError);
    EXPECT_EQ(Open().lineTypes.at(dashDot.value),
              (Host::LineType{"Vantoro - Traco e ponto", {6.0, 1.5, 0.5, 1.5}}));
    EXPECT_EQ(Open().lineTypes.at(dashed.value),
              (Host::LineType{"Vantoro - Tracejada", {3.0, 1.5}}));
}

TEST_F(LineTypesOfAProject, KeepTheDashesThatTheUserGaveThem) {
    Open().lineTypes[4] = {"Vantoro - Tracejada", {1.0, 1.0}};
    AttributeIndex index;
    ASSERT_EQ(EnsureLineType(DashedLineType(), index), Host::NoError);
    EXPECT_EQ(index, AttributeIndex{4});
    EXPECT_EQ(Open().lineTypes.at(4).dashes, (std::vector<double>{1.0, 1.0}));
}

TEST_F(LineTypesOfAProject, AreTakenOverFromAnEarlierVersion) {
    Open().lineTypes[4] = {"Merivane - Tracejada", {3.0, 1.5}};
    AttributeIndex index;
    ASSERT_EQ(EnsureLineType(DashedLineType(), index), Host::NoError);
    EXPECT_EQ(index, AttributeIndex{4});
    EXPECT_EQ(Open().lineTypes.at(4), DashedLineType());
}

TEST_F(LineTypesOfAProject, AreRefusedWhateverTheHostRefuses) {
    AttributeIndex index;
    Workbench::FailCall("CreateLineType", 1, Host::NotMine);
    EXPECT_EQ(EnsureLineType(DashedLineType(), index), Host::NotMine);
    Workbench::FailCall("FindAttribute", 3, Host::NotMine);
    EXPECT_EQ(EnsureLineType(DashedLineType(), index), Host::NotMine);
}

} // namespace
} // namespace Merivane::Archicad
