#include <string>

#include "ContractSupport.hpp"

namespace Merivane::Host {
namespace {

class AttributesContract : public ProjectContract {};

LayerCombination Combination(AttributeIndex index) {
    LayerCombination combination;
    EXPECT_EQ(GetLayerCombination(index, combination), NoError);
    return combination;
}

/// A combination of all layers, each as its attribute stands.
LayerCombination AllLayers(const std::string& name) {
    LayerCombination combination{name, {}};
    std::vector<AttributeIndex> indices;
    EXPECT_EQ(ListAttributes(AttributeType::Layer, indices), NoError);
    for (const AttributeIndex index : indices) {
        Layer layer;
        EXPECT_EQ(GetLayer(index, layer), NoError);
        combination.states.push_back({index, layer.hidden, layer.locked});
    }
    return combination;
}

TEST_F(AttributesContract, ListsEachKindWithoutGapsAndFindsThemByName) {
    for (const AttributeType type :
         {AttributeType::Layer, AttributeType::LineType, AttributeType::Fill,
          AttributeType::Surface, AttributeType::LayerCombination}) {
        std::vector<AttributeIndex> indices;
        ASSERT_EQ(ListAttributes(type, indices), NoError);
        EXPECT_FALSE(indices.empty());
        for (const AttributeIndex index : indices) {
            EXPECT_GT(index.value, 0);
        }
    }
    std::vector<AttributeIndex> layers;
    ASSERT_EQ(ListAttributes(AttributeType::Layer, layers), NoError);
    Layer layer;
    ASSERT_EQ(GetLayer(layers.at(1), layer), NoError);
    EXPECT_EQ(LayerNamed(layer.name), layers.at(1));
}

TEST_F(AttributesContract, RefusesAKindThatThereIsNot) {
    std::vector<AttributeIndex> indices = {{7}};
    AttributeIndex index{7};
    EXPECT_EQ(ListAttributes(static_cast<AttributeType>(99), indices), BadParameters);
    EXPECT_EQ(FindAttribute(static_cast<AttributeType>(99), FreeLayer, index), BadParameters);
    EXPECT_EQ(indices, std::vector<AttributeIndex>{{7}});
    EXPECT_EQ(index, AttributeIndex{7});
}

TEST_F(AttributesContract, ComparesNamesByteForByte) {
    AttributeIndex index{7};
    EXPECT_EQ(FindAttribute(AttributeType::Layer, "prova - livre", index), BadName);
    EXPECT_EQ(FindAttribute(AttributeType::Layer, "Prova - livr", index), BadName);
    EXPECT_EQ(FindAttribute(AttributeType::Fill, FreeLayer, index), BadName);
    EXPECT_EQ(index, AttributeIndex{7});
}

TEST_F(AttributesContract, TellsUnknownNumbersFromDeletedOnes) {
    Layer layer{"como era", true, true};
    EXPECT_EQ(GetLayer({0}, layer), BadIndex);
    EXPECT_EQ(GetLayer({-1}, layer), BadIndex);
    EXPECT_EQ(GetLayer({9999}, layer), BadIndex);
    std::vector<AttributeIndex> layers;
    ASSERT_EQ(ListAttributes(AttributeType::Layer, layers), NoError);
    int deleted = 0;
    for (std::int32_t value = 1; value < layers.back().value; ++value) {
        Layer read;
        deleted += GetLayer({value}, read) == Deleted ? 1 : 0;
    }
    EXPECT_GT(deleted, 0);
    EXPECT_EQ(layer, (Layer{"como era", true, true}));
    LineType lineType;
    Fill fill;
    ModelSurface surface;
    LayerCombination combination;
    EXPECT_EQ(GetLineType({9999}, lineType), BadIndex);
    EXPECT_EQ(GetFill({9999}, fill), BadIndex);
    EXPECT_EQ(GetSurface({9999}, surface), BadIndex);
    EXPECT_EQ(GetLayerCombination({9999}, combination), BadIndex);
}

TEST_F(AttributesContract, CreatesALayer) {
    AttributeIndex index;
    ASSERT_EQ(CreateLayer({"Vantoro - Isolux", true, true}, index), NoError);
    Layer layer;
    ASSERT_EQ(GetLayer(index, layer), NoError);
    EXPECT_EQ(layer, (Layer{"Vantoro - Isolux", true, true}));
    EXPECT_EQ(LayerNamed("Vantoro - Isolux"), index);
}

TEST_F(AttributesContract, ShowsANewLayerInEveryCombination) {
    AttributeIndex index;
    ASSERT_EQ(CreateLayer({"Vantoro - Isolux", true, true}, index), NoError);
    EXPECT_EQ(Combination({1}).states.back(), (LayerState{index, false, false}));
}

TEST_F(AttributesContract, GivesTheLayerThatHasTheNameAlready) {
    AttributeIndex index;
    EXPECT_EQ(CreateLayer({FreeLayer, true, true}, index), AttributeExists);
    EXPECT_EQ(index, LayerNamed(FreeLayer));
    Layer layer;
    ASSERT_EQ(GetLayer(index, layer), NoError);
    EXPECT_FALSE(layer.hidden);
}

TEST_F(AttributesContract, TakesNamesOf255BytesAndNoMore) {
    AttributeIndex index;
    EXPECT_EQ(CreateLayer({std::string(255, 'a'), false, false}, index), NoError);
    for (const std::string& name :
         {std::string(256, 'a'), std::string(), std::string("a\xFF"), std::string("a\0b", 3)}) {
        EXPECT_EQ(CreateLayer({name, false, false}, index), BadParameters);
        EXPECT_EQ(CreateLineType({name, {}}, index), BadParameters);
        EXPECT_EQ(CreateSurface({name, {}, 0.5, 0.0}, index), BadParameters);
        EXPECT_EQ(CreateLayerCombination(AllLayers(name), index), BadParameters);
        EXPECT_EQ(ChangeLayer(LayerNamed(FreeLayer), {name, false, false}), BadParameters);
    }
}

TEST_F(AttributesContract, ChangesALayerAndKeepsItsNumber) {
    const AttributeIndex index = LayerNamed(FreeLayer);
    ASSERT_EQ(ChangeLayer(index, {"Prova - renomeada", true, false}), NoError);
    EXPECT_EQ(LayerNamed("Prova - renomeada"), index);
    AttributeIndex old;
    EXPECT_EQ(FindAttribute(AttributeType::Layer, FreeLayer, old), BadName);
}

TEST_F(AttributesContract, RefusesTheNameOfAnotherLayer) {
    EXPECT_EQ(ChangeLayer(LayerNamed(FreeLayer), {LockedLayerName, false, false}), NameInUse);
    EXPECT_EQ(ChangeLayer(LayerNamed(FreeLayer), {FreeLayer, false, true}), NoError);
    EXPECT_EQ(ChangeLayer({9999}, {"x", false, false}), BadIndex);
}

TEST_F(AttributesContract, ProtectsTheFirstLayer) {
    Layer first;
    ASSERT_EQ(GetLayer({1}, first), NoError);
    EXPECT_EQ(ChangeLayer({1}, {first.name, true, false}), RefusedParameters);
    EXPECT_EQ(ChangeLayer({1}, {first.name, false, true}), RefusedParameters);
    EXPECT_EQ(ChangeLayer({1}, {"outra", false, false}), RefusedParameters);
    EXPECT_EQ(ChangeLayer({1}, first), NoError);
}

TEST_F(AttributesContract, CreatesLineTypesOfDashesAndGaps) {
    AttributeIndex index;
    LineType lineType{"Vantoro - Tracejada", {3.0, 1.5}};
    ASSERT_EQ(CreateLineType(lineType, index), NoError);
    LineType read;
    ASSERT_EQ(GetLineType(index, read), NoError);
    EXPECT_EQ(read, lineType);
    AttributeIndex existing;
    EXPECT_EQ(CreateLineType(lineType, existing), AttributeExists);
    EXPECT_EQ(existing, index);
    EXPECT_EQ(CreateLineType({"a", {3.0}}, index), BadParameters);
    EXPECT_EQ(CreateLineType({"b", {3.0, -1.0}}, index), BadParameters);
    EXPECT_EQ(CreateLineType({"c", {0.0, 0.0}}, index), BadParameters);
    EXPECT_EQ(CreateLineType({"d", {0.0, 1.0}}, index), NoError); // dots
}

TEST_F(AttributesContract, ChangesALineTypeAndKeepsItsNumber) {
    AttributeIndex index;
    ASSERT_EQ(CreateLineType({"Prova - traço", {3.0, 1.5}}, index), NoError);
    ASSERT_EQ(ChangeLineType(index, {"Prova - renomeado", {2.0, 1.0}}), NoError);
    LineType read;
    ASSERT_EQ(GetLineType(index, read), NoError);
    EXPECT_EQ(read, (LineType{"Prova - renomeado", {2.0, 1.0}}));
    AttributeIndex found;
    EXPECT_EQ(FindAttribute(AttributeType::LineType, "Prova - traço", found), BadName);
    ASSERT_EQ(FindAttribute(AttributeType::LineType, "Prova - renomeado", found), NoError);
    EXPECT_EQ(found, index);
}

TEST_F(AttributesContract, RefusesAChangeOfALineTypeThatItCouldNotBeMadeWith) {
    AttributeIndex other;
    ASSERT_EQ(CreateLineType({"Prova - outro", {1.0, 1.0}}, other), NoError);
    AttributeIndex index;
    const LineType good{"Prova - traço", {3.0, 1.5}};
    ASSERT_EQ(CreateLineType(good, index), NoError);
    EXPECT_EQ(ChangeLineType(index, {"Prova - outro", {3.0, 1.5}}), NameInUse);
    EXPECT_EQ(ChangeLineType(index, {"", {3.0, 1.5}}), BadParameters);
    EXPECT_EQ(ChangeLineType(index, {std::string(256, 'a'), {3.0, 1.5}}), BadParameters);
    EXPECT_EQ(ChangeLineType(index, {"a", {3.0}}), BadParameters);
    EXPECT_EQ(ChangeLineType(index, {"a", {3.0, -1.0}}), BadParameters);
    EXPECT_EQ(ChangeLineType({9999}, {"a", {3.0, 1.5}}), BadIndex);
    LineType read;
    ASSERT_EQ(GetLineType(index, read), NoError);
    EXPECT_EQ(read, good);
    EXPECT_EQ(ChangeLineType(index, good), NoError); // its own name
}

TEST_F(AttributesContract, CreatesSurfacesOfSharesUpToOne) {
    AttributeIndex index;
    ModelSurface surface{"Prova - vidro", {0.0, 1.0, 0.5}, 1.0, 0.0};
    ASSERT_EQ(CreateSurface(surface, index), NoError);
    ModelSurface read;
    ASSERT_EQ(GetSurface(index, read), NoError);
    EXPECT_EQ(read.name, surface.name);
    EXPECT_EQ(read.colour, surface.colour);
    EXPECT_EQ(read.diffuse, surface.diffuse);
    EXPECT_EQ(read.transparency, surface.transparency);
    AttributeIndex existing;
    EXPECT_EQ(CreateSurface(surface, existing), AttributeExists);
    EXPECT_EQ(existing, index);
    EXPECT_EQ(CreateSurface({"a", {0.0, 1.001, 0.0}, 1.0, 0.0}, index), BadParameters);
    EXPECT_EQ(CreateSurface({"b", {}, 1.001, 0.0}, index), BadParameters);
    EXPECT_EQ(CreateSurface({"c", {}, 1.0, -0.001}, index), BadParameters);
}

TEST_F(AttributesContract, CreatesCombinationsOfEveryLayerOnce) {
    AttributeIndex index;
    const LayerCombination good = AllLayers("Vantoro - Projeto");
    ASSERT_EQ(CreateLayerCombination(good, index), NoError);
    EXPECT_EQ(Combination(index), good);
    AttributeIndex existing;
    EXPECT_EQ(CreateLayerCombination(good, existing), AttributeExists);
    EXPECT_EQ(existing, index);
    LayerCombination missing = AllLayers("a");
    missing.states.pop_back();
    LayerCombination twice = AllLayers("b");
    twice.states.push_back(twice.states.back());
    LayerCombination unknown = AllLayers("c");
    unknown.states.back().layer = {9999};
    for (const LayerCombination& bad : {missing, twice, unknown}) {
        EXPECT_EQ(CreateLayerCombination(bad, index), BadParameters);
        EXPECT_EQ(ChangeLayerCombination({1}, bad), BadParameters);
    }
}

TEST_F(AttributesContract, ChangesACombination) {
    AttributeIndex index;
    ASSERT_EQ(CreateLayerCombination(AllLayers("Vantoro - Projeto"), index), NoError);
    LayerCombination changed = AllLayers("Vantoro - Simulacao");
    changed.states.back().hidden = true;
    ASSERT_EQ(ChangeLayerCombination(index, changed), NoError);
    EXPECT_EQ(Combination(index), changed);
    EXPECT_EQ(ChangeLayerCombination({1}, changed), NameInUse);
    EXPECT_EQ(ChangeLayerCombination({9999}, changed), BadIndex);
    changed.states.front().hidden = true; // of the first layer
    EXPECT_EQ(ChangeLayerCombination(index, changed), RefusedParameters);
}

TEST_F(AttributesContract, AnswersWithNoPlanWithoutAProject) {
    CloseContractProject();
    std::vector<AttributeIndex> indices;
    AttributeIndex index;
    Layer layer;
    EXPECT_EQ(ListAttributes(AttributeType::Layer, indices), NoPlan);
    EXPECT_EQ(FindAttribute(AttributeType::Layer, FreeLayer, index), NoPlan);
    EXPECT_EQ(GetLayer({1}, layer), NoPlan);
    EXPECT_EQ(CreateLayer({"a", false, false}, index), NoPlan);
}

} // namespace
} // namespace Merivane::Host
