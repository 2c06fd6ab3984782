#include "Archicad/LibraryParameters.hpp"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "ModelSample.hpp"
#include "Photometry/ContractBuilding.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Host::LibraryParameter;
using Host::ParameterType;
using Photometry::ContractParameter;
using Kind = Photometry::ContractParameterType;
using Names = std::vector<std::string>;

LibraryParameter Own(const std::string& name, ParameterType type = ParameterType::Real,
                     double number = 0.0) {
    LibraryParameter parameter;
    parameter.name = name;
    parameter.type = type;
    parameter.number = number;
    return parameter;
}

ContractParameter Told(const std::string& name, bool hidden = false, Kind type = Kind::Real) {
    ContractParameter parameter;
    parameter.name = name;
    parameter.type = type;
    parameter.hidden = hidden;
    return parameter;
}

Names NamesOf(const std::vector<LibraryParameter>& list) {
    Names names;
    for (const LibraryParameter& parameter : list) {
        names.push_back(parameter.name);
    }
    return names;
}

std::vector<LibraryParameter> Owned(const Names& names) {
    std::vector<LibraryParameter> list;
    for (const std::string& name : names) {
        list.push_back(Own(name));
    }
    return list;
}

const std::vector<ContractParameter> SmallContract = {
    Told("mvVersion", true), Told("mvTitle", false, Kind::Title), Told("mvLamp"),
    Told("mvTable", true), Told("showAxis")};

Names Reordered(const Names& names) {
    std::vector<LibraryParameter> list = Owned(names);
    ReorderParameters(list, SmallContract);
    return NamesOf(list);
}

TEST(ReorderParameters, PutsTheContractsTabsThenTheSettingsThenWhatIsHiddenThenThePartsOwn) {
    EXPECT_EQ(Reordered({"ownB", "mat2", "ownA", "mvVersion", "mvTitle", "symFill", "mvLamp",
                         "mvTable", "showAxis", "mat1"}),
              (Names{"mvTitle", "mvLamp", "showAxis", "mat2", "symFill", "mat1", "mvVersion",
                     "mvTable", "ownB", "ownA"}));
}

TEST(ReorderParameters, GivesContractNamesTheContractsOrder) {
    EXPECT_EQ(Reordered({"showAxis", "mvTable", "mvLamp", "mvTitle", "mvVersion"}),
              (Names{"mvTitle", "mvLamp", "showAxis", "mvVersion", "mvTable"}));
}

TEST(ReorderParameters, TellsSettingsFromThePartsOwn) {
    const Names settings = {"mat1",       "mat02",      "MAT3",   "overrideSurfaces", "symFill",
                            "symFillPen", "symBackPen", "symRep", "useMVO",           "seoSplit"};
    for (const std::string& setting : settings) {
        EXPECT_EQ(Reordered({"own", setting}), (Names{setting, "own"}));
    }
    for (const std::string own : {"mat", "mat1b", "mat_1", "matt1", "symFillpenn", "ZZYZX"}) {
        EXPECT_EQ(Reordered({"first", own, "mat1"}), (Names{"mat1", "first", own}));
    }
}

TEST(ReorderParameters, TakesTheAxisSwitchForASettingWhereItIsNotTheContracts) {
    std::vector<LibraryParameter> list = Owned({"own", "showAxis", "mvLamp"});
    ReorderParameters(list, {Told("mvLamp")});
    EXPECT_EQ(NamesOf(list), (Names{"mvLamp", "showAxis", "own"}));
}

TEST(ReorderParameters, MakesAllButTitlesChildrenAndKeepsTheirOtherFlags) {
    std::vector<LibraryParameter> list = {Own("own", ParameterType::Length),
                                          Own("tab", ParameterType::Title), Own("mvTable")};
    list[0].flags = Host::ParameterBoldName;
    list[1].flags = Host::ParameterBoldName | Host::ParameterOpen;
    list[2].flags = Host::ParameterHidden;
    ReorderParameters(list, SmallContract);
    ASSERT_EQ(NamesOf(list), (Names{"mvTable", "own", "tab"}));
    EXPECT_EQ(list[0].flags, Host::ParameterHidden | Host::ParameterChild);
    EXPECT_EQ(list[1].flags, Host::ParameterBoldName | Host::ParameterChild);
    EXPECT_EQ(list[2].flags, Host::ParameterBoldName | Host::ParameterOpen);
}

TEST(ReorderParameters, ChangesNothingTheSecondTime) {
    std::vector<LibraryParameter> list =
        Owned({"own", "mat1", "mvTable", "mvLamp", "own2", "mvTitle"});
    ReorderParameters(list, SmallContract);
    const std::vector<LibraryParameter> once = list;
    ReorderParameters(list, SmallContract);
    EXPECT_EQ(list, once);
}

std::vector<ContractParameter> WholeContract() {
    return Photometry::BuildContract({}, {});
}

Names ContractNames() {
    Names names;
    for (const ContractParameter& parameter : WholeContract()) {
        names.push_back(parameter.name);
    }
    return names;
}

TEST(MergeParameters, PutsTheContractBehindThePartsOwn) {
    Names expected = ContractNames();
    expected.insert(expected.begin(), {"ownB", "ownA"});
    const auto merged =
        MergeParameters(Owned({"ownB", "ownA"}), WholeContract(), false, false, false);
    EXPECT_EQ(NamesOf(merged), expected);
}

TEST(MergeParameters, DropsEveryParameterOfAnEarlierContract) {
    Names existing = {"own", "mvColourRendering", "MVCIRCUIT", "ShowAxis"};
    for (const std::string& name : ContractNames()) {
        existing.push_back(name);
    }
    Names expected = ContractNames();
    expected.insert(expected.begin(), "own");
    const auto merged = MergeParameters(Owned(existing), WholeContract(), false, false, false);
    EXPECT_EQ(NamesOf(merged), expected);
}

TEST(MergeParameters, HidesThePlanSymbolOfPartsThatShowedIt) {
    std::vector<LibraryParameter> existing = {Own("mvPlanSymbol", ParameterType::Integer, 5.0)};
    auto merged = MergeParameters(existing, WholeContract(), false, false, false);
    ASSERT_NE(FindAddPar(merged, "mvPlanSymbol"), nullptr);
    EXPECT_EQ(FindAddPar(merged, "mvPlanSymbol")->flags, Host::ParameterHidden);
}

TEST(MergeParameters, KeepsOrDropsTheGeneralSurface) {
    struct Case {
        ParameterType type;
        bool keep;
        bool drop;
        bool stays;
    };
    const Case cases[] = {
        {ParameterType::Surface, false, true, false}, {ParameterType::Surface, true, true, true},
        {ParameterType::Surface, false, false, true}, {ParameterType::Surface, true, false, true},
        {ParameterType::Real, false, true, true},
    };
    for (const Case& c : cases) {
        auto merged = MergeParameters({Own("mat", c.type), Own("mat1", ParameterType::Surface)},
                                      WholeContract(), c.keep, false, c.drop);
        EXPECT_EQ(FindAddPar(merged, "mat") != nullptr, c.stays);
        EXPECT_NE(FindAddPar(merged, "mat1"), nullptr);
    }
}

TEST(MergeParameters, AddsTheSplitSwitchOnceAndLast) {
    const auto merged =
        MergeParameters(Owned({"seoSplit", "own"}), WholeContract(), false, true, false);
    EXPECT_EQ(merged.front().name, "own");
    const LibraryParameter& split = merged.back();
    EXPECT_EQ(split.name, "seoSplit");
    EXPECT_EQ(split.description, "Cortar so com o corpo operador (Laje)");
    EXPECT_EQ(split.type, ParameterType::Boolean);
    EXPECT_EQ(split.number, 1.0);
    EXPECT_EQ(std::count_if(merged.begin(), merged.end(),
                            [](const LibraryParameter& p) { return p.name == "seoSplit"; }),
              1);
}

TEST(MergeParameters, LeavesASplitSwitchThatIsNotAskedFor) {
    const auto merged = MergeParameters(Owned({"seoSplit"}), WholeContract(), false, false, false);
    EXPECT_EQ(merged.front(), Own("seoSplit"));
}

class BuildPartParameters : public ::testing::Test {
protected:
    void SetUp() override { Tests::OpenSample(Tests::SampleProject()); }

    /// The project's last surface, and its number.
    static const Host::ModelSurface& LastSurface() {
        return Workbench::CurrentSession().project.surfaces.rbegin()->second;
    }
    static double LastNumber() {
        return Workbench::CurrentSession().project.surfaces.rbegin()->first;
    }
};

TEST_F(BuildPartParameters, GivesNothingThatIsNotAskedFor) {
    LibraryPartRequest request;
    request.script3D = "BLOCK A, B, 1 ! mat seoSplit";
    EXPECT_TRUE(Archicad::BuildPartParameters(request).empty());
}

TEST_F(BuildPartParameters, GivesAllInTheirOrderWithKindsTextsAndValues) {
    LibraryPartRequest request;
    request.script3D = "MATERIAL mat\r\nIF seoSplit THEN END\r\n";
    request.withHeight = true;
    request.zzyzx = 0.25;
    request.withAxisSwitch = true;
    request.surfaces = {"Nenhuma assim", LastSurface().name};
    request.withSurfaceOverride = true;
    request.withSymbolFill = true;
    request.symbolFillIndex = 7;
    request.withPlanRepresentation = true;
    request.parameters = {Told("mvLamp", true, Kind::String)};
    struct Row {
        const char* name;
        ParameterType type;
        double number;
        std::string description;
    };
    const Row rows[] = {
        {"mat", ParameterType::Surface, 1.0, "Superficie (faces sem superficie)"},
        {"ZZYZX", ParameterType::Length, 0.25, "Altura"},
        {"seoSplit", ParameterType::Boolean, 1.0, "Cortar so com o corpo operador"},
        {"mat1", ParameterType::Surface, 1.0, "Nenhuma assim"},
        {"mat2", ParameterType::Surface, LastNumber(), LastSurface().name},
        {"overrideSurfaces", ParameterType::Boolean, 0.0,
         "Sobrepor com as Superficies deste projeto"},
        {"symFill", ParameterType::FillPattern, 7.0, "Preenchimento do simbolo em planta"},
        {"symFillPen", ParameterType::Pen, 1.0, "Caneta do preenchimento"},
        {"symBackPen", ParameterType::Pen, 0.0, "Caneta de fundo do preenchimento"},
        {"symRep", ParameterType::Integer, 1.0, "Representacao em planta"},
        {"useMVO", ParameterType::Boolean, 0.0, "Controlar pela OVM"},
        {"showAxis", ParameterType::Boolean, 0.0, "Mostrar eixo (X) no simbolo"},
        {"mvLamp", ParameterType::String, 0.0, ""},
    };
    const auto list = Archicad::BuildPartParameters(request);
    ASSERT_EQ(list.size(), std::size(rows));
    for (std::size_t i = 0; i < list.size(); ++i) {
        EXPECT_EQ(list[i].name, rows[i].name);
        EXPECT_EQ(list[i].type, rows[i].type) << list[i].name;
        EXPECT_EQ(list[i].number, rows[i].number) << list[i].name;
        EXPECT_EQ(list[i].description, rows[i].description);
    }
    EXPECT_EQ(list.back().flags, Host::ParameterHidden);
}

TEST_F(BuildPartParameters, LeavesTheAxisSwitchToTheContract) {
    LibraryPartRequest request;
    request.withAxisSwitch = true;
    request.parameters = WholeContract();
    EXPECT_EQ(NamesOf(Archicad::BuildPartParameters(request)), ContractNames());
}

} // namespace
} // namespace Merivane::Archicad
