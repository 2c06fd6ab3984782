#include "Archicad/OlderNames.hpp"

#include "AttributeSample.hpp"

namespace Merivane::Archicad {
namespace {

using Host::AttributeType;
using Tests::Lines;

class OlderNames : public Tests::AttributeTest {};

TEST(OwnLayerName, BeginsWithTheAddOnsNameOfTodayOrOfBefore) {
    EXPECT_TRUE(IsOwnLayerName("Vantoro - Isolux"));
    EXPECT_TRUE(IsOwnLayerName("Merivane - Isolux"));
    EXPECT_TRUE(IsOwnLayerName("Vantoro - "));
    for (const char* const name :
         {"", "Vantoro", "Vantoro -", "Vantoro- Isolux", "vantoro - Isolux", " Vantoro - Isolux",
          "Ambiente Vantoro - x"}) {
        EXPECT_FALSE(IsOwnLayerName(name)) << name;
    }
}

TEST(AttributeName, IsCutWhereTheHostEndsIt) {
    EXPECT_EQ(CutAttributeName(std::string(255, 'a')), std::string(255, 'a'));
    EXPECT_EQ(CutAttributeName(std::string(256, 'a')), std::string(255, 'a'));
    const std::string letters(254, 'a');
    EXPECT_EQ(CutAttributeName(letters + "ç"), letters);
}

TEST_F(OlderNames, AreReplacedAndTheAttributeKeepsItsNumber) {
    Open().layers[7] = {"Merivane - Isolux", true, true};
    Open().lineTypes[5] = {"Merivane - Tracejada", {2.0, 2.0}};
    RenameOlderAttribute(AttributeType::Layer, "Vantoro - Isolux");
    RenameOlderAttribute(AttributeType::LineType, "Vantoro - Tracejada");
    EXPECT_EQ(Open().layers.at(7), (Host::Layer{"Vantoro - Isolux", true, true}));
    EXPECT_EQ(Open().lineTypes.at(5), (Host::LineType{"Vantoro - Tracejada", {2.0, 2.0}}));
    EXPECT_EQ(Log(), (Lines{"Vantoro: atributo renomeado de \"Merivane - Isolux\" para "
                            "\"Vantoro - Isolux\"",
                            "Vantoro: atributo renomeado de \"Merivane - Tracejada\" para "
                            "\"Vantoro - Tracejada\""}));
}

TEST_F(OlderNames, OfACombinationAreReplacedWithItsStatesKept) {
    Host::LayerCombination older{"Merivane - Simulacao", {}};
    for (const auto& layer : Open().layers) {
        older.states.push_back({{layer.first}, layer.first == 2, false});
    }
    Open().combinations[4] = older;
    RenameOlderAttribute(AttributeType::LayerCombination, "Vantoro - Simulacao");
    EXPECT_EQ(Open().combinations.at(4).name, "Vantoro - Simulacao");
    EXPECT_EQ(Open().combinations.at(4).states, older.states);
}

TEST_F(OlderNames, AreReplacedWhereverTheWordStands) {
    Open().layers[7] = {"Merivane de Merivane", false, false};
    RenameOlderAttribute(AttributeType::Layer, "Vantoro de Vantoro");
    EXPECT_EQ(Open().layers.at(7).name, "Vantoro de Vantoro");
}

TEST_F(OlderNames, StayWhereTheNewNameIsTaken) {
    Open().layers[7] = {"Merivane - Isolux", false, false};
    Open().layers[8] = {"Vantoro - Isolux", false, false};
    RenameOlderAttribute(AttributeType::Layer, "Vantoro - Isolux");
    EXPECT_EQ(Open().layers.at(7).name, "Merivane - Isolux");
    EXPECT_EQ(Log(), Lines());
}

TEST_F(OlderNames, OfAnotherKindStay) {
    Open().layers[7] = {"Merivane - Tracejada", false, false};
    RenameOlderAttribute(AttributeType::LineType, "Vantoro - Tracejada");
    EXPECT_EQ(Open().layers.at(7).name, "Merivane - Tracejada");
    EXPECT_EQ(Log(), Lines());
}

TEST_F(OlderNames, WithoutTheWordOrAnAttributeChangeNothing) {
    const Workbench::Project before = Open();
    RenameOlderAttribute(AttributeType::Layer, "Vantoro - Isolux");
    RenameOlderAttribute(AttributeType::Layer, "Isolux");
    EXPECT_EQ(Open(), before);
    EXPECT_EQ(Log(), Lines());
}

TEST_F(OlderNames, AreNotLookedForWithoutTheWord) {
    Workbench::FailCall("FindAttribute", 1, Host::NotMine);
    RenameOlderAttribute(AttributeType::Layer, "Isolux");
    EXPECT_EQ(Log(), Lines());
}

TEST_F(OlderNames, AreFoundAndReplacedCut) {
    const std::string rest(250, 'x');
    Open().layers[7] = {"Merivane" + std::string(247, 'x'), false, false}; // 255 bytes
    RenameOlderAttribute(AttributeType::Layer, "Vantoro" + rest);
    EXPECT_EQ(Open().layers.at(7).name, "Vantoro" + std::string(248, 'x'));
}

TEST_F(OlderNames, ThatCanNotBeReplacedAreToldAndStay) {
    struct Case {
        const char* operation;
        int nth;
    };
    // The search for the new name, that for the older one, the reading and the renaming.
    for (const Case& c : {Case{"FindAttribute", 1}, Case{"FindAttribute", 2}, Case{"GetLayer", 1},
                          Case{"ChangeLayer", 1}}) {
        SCOPED_TRACE(c.operation);
        Open().layers[7] = {"Merivane - Isolux", false, false};
        Workbench::CurrentSession().reportLines.clear();
        Workbench::FailCall(c.operation, c.nth, Host::NotMine);
        RenameOlderAttribute(AttributeType::Layer, "Vantoro - Isolux");
        EXPECT_EQ(Open().layers.at(7).name, "Merivane - Isolux");
        EXPECT_EQ(Log(), (Lines{"Vantoro: renomear Merivane - Isolux failed: APIERR_NOTMINE "
                                "(0x81060132)"}));
    }
}

TEST_F(OlderNames, CanNotBeReplacedInsideAStep) {
    Open().layers[7] = {"Merivane - Isolux", false, false};
    Host::CallUndoable("Prova", [] {
        RenameOlderAttribute(AttributeType::Layer, "Vantoro - Isolux");
        return Host::NoError;
    });
    EXPECT_EQ(Log(), (Lines{"Vantoro: renomear Merivane - Isolux failed: unknown error 0x8106038E "
                            "(0x8106038E)"}));
}

} // namespace
} // namespace Merivane::Archicad
