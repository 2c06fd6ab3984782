#include "Archicad/LayerCombinations.hpp"

#include "AttributeSample.hpp"

namespace Merivane::Archicad {
namespace {

using Host::AttributeIndex;
using Host::LayerState;

class LayerCombinations : public Tests::AttributeTest {
protected:
    static const Host::LayerCombination& Named(std::string_view name) {
        static const Host::LayerCombination None;
        for (const auto& entry : Open().combinations) {
            if (entry.second.name == name) {
                return entry.second;
            }
        }
        ADD_FAILURE() << "no combination " << name;
        return None;
    }

    /// Names of the layers that a combination hides, in its order.
    static std::vector<std::string> HiddenIn(std::string_view name) {
        std::vector<std::string> hidden;
        for (const LayerState& state : Named(name).states) {
            if (state.hidden) {
                hidden.push_back(Open().layers.at(state.layer.value).name);
            }
        }
        return hidden;
    }
};

TEST_F(LayerCombinations, AreBuiltFromTheLayersAsTheyStand) {
    ASSERT_EQ(EnsureLayerCombination("Vantoro - Projeto", {{3}}, {{2}, {4}}, false), Host::NoError);
    EXPECT_EQ(Named("Vantoro - Projeto").states,
              (std::vector<LayerState>{{{1}, false, false},
                                       {{2}, true, false},
                                       {{3}, false, false},
                                       {{4}, true, true}})); // what is locked stays so
    EXPECT_TRUE(Open().layers.at(3).hidden); // the layers themselves stay as they are
}

TEST_F(LayerCombinations, ShowALayerThatIsInBothLists) {
    ASSERT_EQ(EnsureLayerCombination("Prova", {{2}}, {{2}}, false), Host::NoError);
    EXPECT_FALSE(Named("Prova").states.at(1).hidden);
}

TEST_F(LayerCombinations, KeepWhatTheUserMadeOfThem) {
    ASSERT_EQ(EnsureLayerCombination("Prova", {}, {{2}}, false), Host::NoError);
    const Workbench::Project before = Open();
    EXPECT_EQ(EnsureLayerCombination("Prova", {{2}}, {{4}}, false), Host::NoError);
    EXPECT_EQ(Open(), before);
}

TEST_F(LayerCombinations, AreSetByForceButForTheOtherLayers) {
    ASSERT_EQ(EnsureLayerCombination("Prova", {}, {{2}}, false), Host::NoError);
    Open().layers.at(3).hidden = false; // the combination keeps it hidden
    ASSERT_EQ(EnsureLayerCombination("Prova", {{2}}, {{4}}, true), Host::NoError);
    EXPECT_EQ(Open().combinations.size(), 1U);
    EXPECT_EQ(
        Named("Prova").states,
        (std::vector<LayerState>{
            {{1}, false, false}, {{2}, false, false}, {{3}, true, false}, {{4}, true, true}}));
}

TEST_F(LayerCombinations, TakeInALayerThatTheyDoNotHold) {
    ASSERT_EQ(EnsureLayerCombination("Prova", {}, {}, false), Host::NoError);
    Open().combinations.begin()->second.states.resize(2);
    ASSERT_EQ(EnsureLayerCombination("Prova", {{3}}, {{4}}, true), Host::NoError);
    EXPECT_EQ(Named("Prova").states,
              (std::vector<LayerState>{{{1}, false, false},
                                       {{2}, false, false},
                                       {{4}, true, true}, // as the layer is locked
                                       {{3}, false, false}}));
}

TEST_F(LayerCombinations, OfAnEarlierVersionAreTakenOverAsTheUserHasThem) {
    ASSERT_EQ(EnsureLayerCombination("Merivane - Projeto", {}, {{2}}, false), Host::NoError);
    ASSERT_EQ(EnsureLayerCombination("Vantoro - Projeto", {{2}}, {}, false), Host::NoError);
    EXPECT_EQ(Open().combinations.size(), 1U);
    EXPECT_TRUE(Named("Vantoro - Projeto").states.at(1).hidden);
}

TEST_F(LayerCombinations, HaveNamesCutToWhatTheHostHolds) {
    const std::string name = "Prova " + std::string(300, 'x');
    ASSERT_EQ(EnsureLayerCombination(name, {}, {}, false), Host::NoError);
    ASSERT_EQ(EnsureLayerCombination(name, {}, {{2}}, true), Host::NoError);
    EXPECT_EQ(Open().combinations.size(), 1U);
    EXPECT_TRUE(Named("Prova " + std::string(249, 'x')).states.at(1).hidden);
}

TEST_F(LayerCombinations, AreRefusedWhateverTheHostRefuses) {
    struct Case {
        const char* operation;
        int nth;
    };
    for (const Case& c : {Case{"FindAttribute", 1}, Case{"ListAttributes", 1}, Case{"GetLayer", 2},
                          Case{"CreateLayerCombination", 1}}) {
        Workbench::FailCall(c.operation, c.nth, Host::NotMine);
        EXPECT_EQ(EnsureLayerCombination("Prova", {}, {}, false), Host::NotMine) << c.operation;
        EXPECT_TRUE(Open().combinations.empty()) << c.operation;
    }
    ASSERT_EQ(EnsureLayerCombination("Prova", {}, {}, false), Host::NoError);
    for (const char* const operation : {"GetLayerCombination", "ChangeLayerCombination"}) {
        Workbench::FailCall(operation, 1, Host::NotMine);
        EXPECT_EQ(EnsureLayerCombination("Prova", {}, {{2}}, true), Host::NotMine) << operation;
        EXPECT_FALSE(Named("Prova").states.at(1).hidden) << operation;
    }
}

TEST_F(LayerCombinations, RefuseALayerThatThereIsNot) {
    EXPECT_EQ(EnsureLayerCombination("Prova", {}, {{99}}, false), Host::BadIndex);
    EXPECT_EQ(EnsureLayerCombination("Prova", {{99}}, {}, false), Host::BadIndex);
    EXPECT_EQ(EnsureLayerCombination("Prova", {}, {{1}}, false), Host::RefusedParameters);
    EXPECT_TRUE(Open().combinations.empty());
}

class StandardCombinations : public LayerCombinations {
protected:
    void SetUp() override {
        ASSERT_EQ(EnsureResultLayers(result), Host::NoError);
        ASSERT_EQ(EnsureProjectLayers(project), Host::NoError);
    }

    ResultLayers result;
    ProjectLayers project;
};

TEST_F(StandardCombinations, ShowTheSimulationInOneAndTheProjectInTheOther) {
    ASSERT_EQ(EnsureStandardCombinations(result, project, {}, false), Host::NoError);
    EXPECT_EQ(Open().combinations.size(), 2U);
    EXPECT_EQ(HiddenIn("Vantoro - Simulacao"),
              (Tests::Lines{"Oculta", "Vantoro - Valores", "Vantoro - Cor falsa 3D",
                            "Vantoro - Cor falsa 3D plano de trabalho", "Vantoro - Circuitos",
                            "Vantoro - Cotas", "Vantoro - Legenda de luminarias"}));
    EXPECT_EQ(HiddenIn("Vantoro - Projeto"),
              (Tests::Lines{"Oculta", "Vantoro - Isolux", "Vantoro - Cor falsa",
                            "Vantoro - Valores", "Vantoro - Legenda", "Vantoro - Cor falsa 3D",
                            "Vantoro - Cor falsa 3D plano de trabalho"}));
}

TEST_F(StandardCombinations, ShowFurtherLayersInTheProjectDrawingAlone) {
    ASSERT_EQ(EnsureStandardCombinations(result, project, {{3}}, false), Host::NoError);
    EXPECT_EQ(HiddenIn("Vantoro - Simulacao").front(), "Oculta");
    EXPECT_EQ(HiddenIn("Vantoro - Projeto").front(), "Vantoro - Isolux");
}

TEST_F(StandardCombinations, ShowWhatIsTheirsWhereTheLayersAreHidden) {
    for (auto& [index, layer] : Open().layers) {
        layer.hidden = index > 1;
    }
    ASSERT_EQ(EnsureStandardCombinations(result, project, {}, false), Host::NoError);
    std::vector<AttributeIndex> shown;
    for (const LayerState& state : Named("Vantoro - Simulacao").states) {
        if (!state.hidden) {
            shown.push_back(state.layer);
        }
    }
    EXPECT_EQ(shown,
              (std::vector<AttributeIndex>{{1}, result.isolux, result.falseColor, result.legend}));
}

TEST_F(StandardCombinations, AreMadeOnce) {
    ASSERT_EQ(EnsureStandardCombinations(result, project, {}, false), Host::NoError);
    const Workbench::Project before = Open();
    ASSERT_EQ(EnsureStandardCombinations(result, project, {}, false), Host::NoError);
    ASSERT_EQ(EnsureStandardCombinations(result, project, {}, true), Host::NoError);
    EXPECT_EQ(Open(), before);
}

TEST_F(StandardCombinations, StopAtTheFirstThatFails) {
    Workbench::FailCall("CreateLayerCombination", 1, Host::NotMine);
    EXPECT_EQ(EnsureStandardCombinations(result, project, {}, false), Host::NotMine);
    EXPECT_TRUE(Open().combinations.empty());
    Workbench::FailCall("CreateLayerCombination", 2, Host::NotMine);
    EXPECT_EQ(EnsureStandardCombinations(result, project, {}, false), Host::NotMine);
    EXPECT_EQ(Open().combinations.size(), 1U);
}

} // namespace
} // namespace Merivane::Archicad
