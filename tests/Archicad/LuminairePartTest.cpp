#include "Archicad/LuminairePart.hpp"

#include <algorithm>
#include <filesystem>
#include <numbers>
#include <utility>

#include <gtest/gtest.h>

#include "Archicad/LibraryParameters.hpp"
#include "Gdl/HiddenLightParameters.hpp"
#include "Gdl/LuminaireScripts.hpp"
#include "LibrarySession.hpp"
#include "Photometry/ContractBuilding.hpp"
#include "Photometry/IesSamples.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using Host::ErrorCode;
using Host::ParameterType;
using Strings = std::vector<std::string>;
using Tests::FilesIn;
using Tests::OwnParameter;
using Tests::ParameterNamesOf;
using Tests::ParametersOf;
using Tests::PartOf;
using Tests::ScriptOf;

const std::string LightParent =
    "{51A838E5-0F40-4F6D-A658-CF2845581749}-{00000000-0000-0000-0000-000000000000}";
const std::string NoPlanScript = "a peca de origem desenha a planta sem script 2D: o marcador do "
                                 "centro e o texto do circuito nao aparecem";
const std::string NoModelScript =
    "a peca de origem nao tinha script 3D; foi criado um so com a fonte de luz";

constexpr const char* Model = "MATERIAL mat\r\nBLOCK A, B, ZZYZX\r\n";
constexpr const char* Plan = "RECT2 0, 0, A, B\r\n";
constexpr const char* Rules = "VALUES \"altura\" RANGE (0, 3]\r\n";

Photometry::IesFile SampleFile(double peak) {
    Photometry::IesFile file = Tests::MakeTable(
        {0, 45, 90}, {0, 90}, [peak](double v, double h) { return peak - v - h / 10.0; });
    file.keywords = {{"MANUFAC", "Fabrica"}, {"LUMCAT", "COD-1"}, {"_RA", "90"}};
    file.inputWatts = 11.5;
    return file;
}

/// An object with scripts, pictures and parameters of its own.
Tests::SourcePart Chair() {
    Tests::SourcePart source;
    source.name = "Cadeira";
    source.sections = {{{"1DSC", 0}, "lado = A / 2\r\n"},
                       {{"2DSC", 0}, Plan},
                       {{"3DSC", 0}, Model},
                       {{"VLSC", 0}, Rules},
                       {{"CTXT", 0}, "uma cadeira"},
                       {{"KWRD", 0}, "cadeira"},
                       {{"GDLP", 1}, std::string("image/png\0abc", 13)}};
    source.parameters = {OwnParameter("mat", ParameterType::Surface, 1.0),
                         OwnParameter("altura", ParameterType::Length, 0.9),
                         OwnParameter("mat1", ParameterType::Surface, 2.0),
                         OwnParameter("FM_Type", ParameterType::Integer, 0.0),
                         OwnParameter("giro", ParameterType::Angle, 0.5),
                         OwnParameter("gs_list", ParameterType::Boolean, 1.0)};
    return source;
}

AddBlockRequest Request(std::int32_t source, double peak = 300.0) {
    AddBlockRequest request;
    request.sourceIndex = source;
    request.file = SampleFile(peak);
    request.settings.iesFileName = "plafon.ies";
    request.settings.centerZ = 0.4;
    request.settings.tiltAngle = 30.0;
    request.newName = "Plafon 30";
    return request;
}

class AddLuminaireBlockToPart : public Tests::LibrarySession {
protected:
    /// Fails the running test unless the part is made.
    AddBlockResult Add(const AddBlockRequest& request) {
        AddBlockResult result;
        EXPECT_EQ(Archicad::AddLuminaireBlockToPart(request, result), Host::NoError);
        return result;
    }

    /// The chair with other sections; the warnings of its copy go to `warnings`.
    std::int32_t AddTo(std::vector<CopiedSection> sections, Strings& warnings) {
        Tests::SourcePart source = Chair();
        source.sections = std::move(sections);
        AddBlockResult result = Add(Request(MakePart(source)));
        warnings = result.warnings;
        return result.index;
    }
};

/// The chair's own, behind those that the host gives every such part.
const Strings OwnNames = {"ZZYZX",
                          "AC_show2DHotspotsIn3D",
                          "ac_bottomlevel",
                          "ac_toplevel",
                          "mat",
                          "altura",
                          "FM_Type",
                          "giro",
                          "gs_list"};

/// The names of the contract with what stands before and behind its hidden ones.
Strings ExpectedNames(const Strings& settings, const Strings& own) {
    Strings names;
    Strings hidden;
    for (const auto& parameter : Photometry::BuildContract({}, {})) {
        (parameter.hidden ? hidden : names).push_back(parameter.name);
    }
    names.insert(names.end(), settings.begin(), settings.end());
    names.insert(names.end(), hidden.begin(), hidden.end());
    names.insert(names.end(), own.begin(), own.end());
    return names;
}

TEST_F(AddLuminaireBlockToPart, MakesALampThatCarriesBlocksAndContract) {
    const AddBlockResult made = Add(Request(MakePart(Chair())));
    EXPECT_EQ(made.warnings, Strings{});
    EXPECT_EQ(made.name, "Plafon 30");
    const Host::LibraryPart part = PartOf(made.index);
    EXPECT_EQ(part.name, "Plafon 30");
    EXPECT_EQ(part.type, Host::PartType::Lamp);
    EXPECT_EQ(part.parentId, LightParent);
    EXPECT_TRUE(part.isPlaceable);
    EXPECT_EQ(part.path, Text::WidePath(OwnFolder() / "Plafon 30.gsm"));
    EXPECT_EQ(ScriptOf(made.index, "3DSC"), Photometry::Script3DWithBlock(Model));
    EXPECT_EQ(ScriptOf(made.index, "2DSC"), Photometry::Script2DWithBlock(Plan));
    EXPECT_EQ(ScriptOf(made.index, "VLSC"),
              Photometry::MasterScriptWithBlock(Rules, {"gs_list", "FM_Type"}, ""));
    EXPECT_EQ(ScriptOf(made.index, "1DSC"), "lado = A / 2\r\n");
    EXPECT_EQ(ScriptOf(made.index, "KWRD"), "cadeira");
    EXPECT_EQ(ScriptOf(made.index, "CTXT"), "none");
    std::string picture;
    EXPECT_EQ(Host::ReadSection(made.index, {"GDLP", 1}, picture), Host::NoError);
    EXPECT_EQ(picture, Chair().sections.back().bytes);
}

TEST_F(AddLuminaireBlockToPart, OrdersTheParametersAndKeepsThePartsOwn) {
    const std::int32_t index = Add(Request(MakePart(Chair()))).index;
    EXPECT_EQ(ParameterNamesOf(index), ExpectedNames({"mat1"}, OwnNames));
    double sizeA = 0.0;
    double sizeB = 0.0;
    std::vector<Host::LibraryParameter> parameters;
    EXPECT_EQ(Host::GetPartParameters(index, sizeA, sizeB, parameters), Host::NoError);
    EXPECT_EQ(sizeA, 0.6);
    EXPECT_EQ(sizeB, 0.3);
    EXPECT_EQ(FindAddPar(parameters, "altura")->number, 0.9);
    EXPECT_NEAR(FindAddPar(parameters, "giro")->number, 0.5, 1e-12);
    EXPECT_NEAR(FindAddPar(parameters, "mvTiltAngle")->number, std::numbers::pi / 6.0, 1e-12);
    EXPECT_EQ(FindAddPar(parameters, "mvCenterZ")->number, 0.4);
    for (const Host::LibraryParameter& parameter : parameters) {
        EXPECT_EQ((parameter.flags & Host::ParameterChild) != 0,
                  parameter.type != ParameterType::Title)
            << parameter.name;
    }
    EXPECT_NE(FindAddPar(parameters, "mvCandela")->flags & Host::ParameterHidden, 0);
}

TEST_F(AddLuminaireBlockToPart, CarriesThePhotometry) {
    const AddBlockRequest request = Request(MakePart(Chair()));
    const auto file = Tests::PhotometryOf(ParametersOf(Add(request).index));
    Tests::ExpectSameNumbers(file, request.file);
    EXPECT_EQ(file.keywords, request.file.keywords);
}

TEST_F(AddLuminaireBlockToPart, LeavesTheSourceAsItWas) {
    const std::int32_t source = MakePart(Chair());
    const auto file = SourceFolder() / "Cadeira.gsm";
    const std::string before = Tests::ReadBytes(file);
    Add(Request(source));
    EXPECT_EQ(Tests::ReadBytes(file), before);
}

TEST_F(AddLuminaireBlockToPart, LetsALampDeriveFromWhatItDid) {
    Tests::SourcePart lamp = Chair();
    lamp.type = Host::PartType::Lamp;
    const std::int32_t source = MakePart(lamp);
    const std::string parent = PartOf(source).parentId;
    EXPECT_NE(parent, LightParent);
    EXPECT_EQ(PartOf(Add(Request(source)).index).parentId, parent);
}

TEST_F(AddLuminaireBlockToPart, FindsANameForOneWithout) {
    AddBlockRequest request = Request(MakePart(Chair()));
    request.newName = "";
    EXPECT_EQ(Add(request).name, "Luminaria IES");
    Host::LibraryPart source;
    EXPECT_EQ(Host::FindLibraryPart("Cadeira", source), Host::NoError);
    request.sourceIndex = source.index;
    EXPECT_EQ(Add(request).name, "Luminaria IES_2");
    EXPECT_EQ(FilesIn(OwnFolder()), (Strings{"Luminaria IES.gsm", "Luminaria IES_2.gsm"}));
}

TEST_F(AddLuminaireBlockToPart, FillsSymbolsWithTheFirstSolidFillOfTheProject) {
    const Host::Fill empty = {"Vazio", Host::FillKind::Empty};
    const Host::Fill solid = {"Cheio", Host::FillKind::Solid};
    struct Case {
        Workbench::AttributeTable<Host::Fill> fills;
        const char* failing;
        double fill;
    };
    const Case cases[] = {
        {{{3, empty}, {5, solid}, {8, solid}}, "none", 5.0},
        {{{3, empty}}, "none", 0.0},
        {{}, "none", 0.0},
        {{{5, solid}, {8, solid}}, "GetFill", 8.0},
        {{{5, solid}}, "ListAttributes", 0.0},
    };
    for (const Case& c : cases) {
        std::filesystem::remove(SourceFolder() / "Cadeira.gsm");
        Open();
        Workbench::CurrentSession().project.fills = c.fills;
        AddBlockRequest request = Request(MakePart(Chair()));
        request.settings.symbolFill = 99; // nobody's
        Workbench::FailCall(c.failing, 1, Host::GeneralError);
        auto parameters = ParametersOf(Add(request).index);
        EXPECT_EQ(FindAddPar(parameters, "mvSymbolFill")->number, c.fill) << c.failing;
    }
}

TEST_F(AddLuminaireBlockToPart, DropsTheGeneralSurfaceThatNoScriptPaintsWith) {
    struct Case {
        const char* model;
        bool keep;
        bool stays;
    };
    const Case cases[] = {{Model, false, true},
                          {"BLOCK A, B, 1\r\n", false, false},
                          {"BLOCK A, B, 1\r\n", true, true}};
    int number = 0;
    for (const Case& c : cases) {
        Tests::SourcePart source = Chair();
        source.name += std::to_string(++number);
        source.sections[2].bytes = c.model;
        AddBlockRequest request = Request(MakePart(source));
        request.keepMaterialParameter = c.keep;
        auto parameters = ParametersOf(Add(request).index);
        EXPECT_EQ(FindAddPar(parameters, "mat") != nullptr, c.stays) << c.model;
    }
}

TEST_F(AddLuminaireBlockToPart, AddsTheSplitSwitchAmongTheSettings) {
    AddBlockRequest request = Request(MakePart(Chair()));
    request.addSplitSwitch = true;
    EXPECT_EQ(ParameterNamesOf(Add(request).index), ExpectedNames({"mat1", "seoSplit"}, OwnNames));
}

TEST_F(AddLuminaireBlockToPart, SetsValuesAndTellsOfNamesThatThePartLacks) {
    AddBlockRequest request = Request(MakePart(Chair()));
    request.overrides = {{"altura", 1.25}, {"nenhum", 1.0}, {"MVDIMMING", 0.5}, {"mvCircuit", 3.0}};
    const AddBlockResult made = Add(request);
    EXPECT_EQ(made.warnings,
              (Strings{"parametro nenhum nao existe na peca e nao foi alterado",
                       "parametro mvCircuit nao guarda um numero e nao foi alterado"}));
    auto parameters = ParametersOf(made.index);
    EXPECT_EQ(FindAddPar(parameters, "altura")->number, 1.25);
    EXPECT_EQ(FindAddPar(parameters, "mvDimming")->number, 0.5);
    EXPECT_EQ(FindAddPar(parameters, "mvCircuit")->text, "");
}

TEST_F(AddLuminaireBlockToPart, TellsOfSectionsThatCannotBeRead) {
    Tests::SourcePart source = Chair();
    source.sections.push_back({{"CPYR", 0}, "Fabrica"});
    const AddBlockResult made = Add(Request(MakePart(source)));
    EXPECT_EQ(made.warnings,
              (Strings{"secao CPYR nao pode ser lida (unknown error 0x81060387) e nao "
                       "foi copiada"}));
}

TEST_F(AddLuminaireBlockToPart, GoesOnWithoutAScriptThatCannotBeRead) {
    Tests::SourcePart source;
    source.sections = {{{"3DSC", 0}, Model}};
    const std::int32_t index = MakePart(source);
    Workbench::FailCall("ReadSection", 1, Host::GeneralError);
    const AddBlockResult made = Add(Request(index));
    EXPECT_EQ(made.warnings,
              (Strings{"secao 3DSC nao pode ser lida (APIERR_GENERAL) e nao foi copiada",
                       NoPlanScript, NoModelScript}));
    EXPECT_EQ(ScriptOf(made.index, "3DSC"), Photometry::Script3DWithBlock(""));
}

TEST_F(AddLuminaireBlockToPart, DrawsTheStoredLinesOfAPartWithoutAPlanScript) {
    Strings warnings;
    const std::string oldBlock = Photometry::Script2DWithBlock("");
    const std::int32_t index =
        AddTo({{{"2DSC", 0}, oldBlock}, {{"2DDR", 0}, "lines"}, {{"3DSC", 0}, Model}}, warnings);
    EXPECT_EQ(warnings, Strings{});
    EXPECT_EQ(ScriptOf(index, "2DSC"), Photometry::Script2DWithBlock("FRAGMENT2 ALL, 0\r\n"));
    EXPECT_EQ(ScriptOf(index, "2DDR"), "lines");
}

TEST_F(AddLuminaireBlockToPart, TellsOfAPartThatDrawsNoPlanOfItsOwn) {
    Strings warnings;
    const std::int32_t index = AddTo({{{"3DSC", 0}, Model}}, warnings);
    EXPECT_EQ(warnings, (Strings{NoPlanScript}));
    EXPECT_EQ(ScriptOf(index, "2DSC"), "none");
    EXPECT_EQ(ScriptOf(index, "VLSC"),
              Photometry::MasterScriptWithBlock("", {"gs_list", "FM_Type"}, ""));
}

TEST_F(AddLuminaireBlockToPart, HidesAllOfTheHostsLightParametersThatThePartHas) {
    Tests::SourcePart source = Chair();
    source.parameters.clear();
    for (const std::string& name : Photometry::HiddenLightParameters()) {
        source.parameters.push_back(OwnParameter(name, ParameterType::Integer, 0.0));
    }
    const std::int32_t index = Add(Request(MakePart(source))).index;
    EXPECT_EQ(ScriptOf(index, "VLSC"),
              Photometry::MasterScriptWithBlock(Rules, Photometry::HiddenLightParameters(), ""));
}

TEST_F(AddLuminaireBlockToPart, MakesALuminaireAnewWithOneContract) {
    const AddBlockResult first = Add(Request(MakePart(Chair())));
    const AddBlockRequest again = Request(first.index, 777.0);
    const Strings namesBefore = ParameterNamesOf(first.index);
    const auto sectionsBefore = Tests::SectionsOf(first.index);
    const AddBlockResult second = Add(again);
    EXPECT_EQ(second.warnings, Strings{});
    EXPECT_EQ(second.name, "Plafon 30_2");
    EXPECT_EQ(ParameterNamesOf(second.index), namesBefore);
    EXPECT_EQ(Tests::SectionsOf(second.index), sectionsBefore);
    Tests::ExpectSameNumbers(Tests::PhotometryOf(ParametersOf(second.index)), again.file);
    auto parameters = ParametersOf(second.index);
    EXPECT_EQ(FindAddPar(parameters, "altura")->number, 0.9);
}

TEST_F(AddLuminaireBlockToPart, DropsTheColourRenderingOfEarlierContracts) {
    Tests::SourcePart source = Chair();
    source.parameters.push_back(OwnParameter("mvColourRendering", ParameterType::Real, 80.0));
    const Strings names = ParameterNamesOf(Add(Request(MakePart(source))).index);
    EXPECT_EQ(std::count(names.begin(), names.end(), "mvColourRendering"), 0);
}

TEST_F(AddLuminaireBlockToPart, IsRefusedInAReadOnlyFolderBeforeAnythingIsWritten) {
    const std::int32_t source = MakePart(Chair());
    std::filesystem::create_directory(OwnFolder());
    std::filesystem::permissions(OwnFolder(), std::filesystem::perms::owner_read |
                                                  std::filesystem::perms::owner_exec);
    AddBlockResult result;
    EXPECT_EQ(Archicad::AddLuminaireBlockToPart(Request(source), result), Host::GeneralError);
    EXPECT_EQ(FilesIn(OwnFolder()), Strings{});
    EXPECT_EQ(Workbench::CurrentSession().calls["CreatePart"], 1); // the source's own
    std::filesystem::permissions(OwnFolder(), std::filesystem::perms::owner_all);
}

TEST_F(AddLuminaireBlockToPart, RefusesAPartThatIsNotThere) {
    AddBlockResult result;
    EXPECT_EQ(Archicad::AddLuminaireBlockToPart(Request(4711), result), Host::BadIndex);
    EXPECT_FALSE(std::filesystem::exists(OwnFolder()));
}

struct Fault {
    const char* operation;
    int nth;
    Strings told; ///< warnings; only of those failures that the code alone does not tell
};

TEST_F(AddLuminaireBlockToPart, LeavesNoFileOnTheFailureOfAnyHostCall) {
    const char* const order[] = {"1DSC", "2DSC", "3DSC", "VLSC", "KWRD", "GDLP", "PARD"};
    std::vector<Fault> faults = {{"ListSections", 1, {}},
                                 {"GetPartParameters", 1, {}},
                                 {"GetPartDetails", 1, {}},
                                 {"GetLibraryPart", 1, {}},
                                 {"GetSpecialFolder", 1, {}},
                                 {"GetLibraries", 1, {}},
                                 {"AddLibrary", 1, {}},
                                 {"GetBuiltInPart", 1, {}},
                                 {"CreatePart", 1, {}},
                                 {"MakeParameterSection",
                                  1,
                                  {"a lista de parametros nao pode ser montada (APIERR_NOTMINE)"}},
                                 {"SavePart", 1, {}}};
    Strings written;
    for (const CopiedSection& section : Tests::SectionsOf(MakePart(Chair()))) {
        if (section.section.type != "CTXT") {
            written.push_back(section.section.type);
        }
    }
    written.push_back("PARD");
    EXPECT_TRUE(std::is_permutation(written.begin(), written.end(), std::begin(order)));
    for (const char* operation : {"NewSection", "WriteSection", "EndSection"}) {
        int nth = 0;
        for (const std::string& type : written) {
            faults.push_back(
                {operation, ++nth, {"secao " + type + " nao pode ser gravada (APIERR_NOTMINE)"}});
        }
    }
    for (const Fault& fault : faults) {
        SCOPED_TRACE(fault.operation + std::string(" ") + std::to_string(fault.nth));
        std::filesystem::remove_all(OwnFolder());
        std::filesystem::remove(SourceFolder() / "Cadeira.gsm");
        Open();
        const std::int32_t source = MakePart(Chair());
        Workbench::FailCall(fault.operation, fault.nth, Host::NotMine);
        AddBlockResult result;
        EXPECT_EQ(Archicad::AddLuminaireBlockToPart(Request(source), result), Host::NotMine);
        EXPECT_TRUE(Workbench::CurrentSession().faults.empty());
        EXPECT_EQ(result.warnings, fault.told);
        EXPECT_EQ(result.index, 0);
        EXPECT_EQ(FilesIn(OwnFolder()), Strings{});
        Host::LibraryPart again;
        ASSERT_EQ(Host::FindLibraryPart("Cadeira", again), Host::NoError);
        EXPECT_EQ(Add(Request(again.index)).name, "Plafon 30");
        EXPECT_EQ(FilesIn(OwnFolder()), (Strings{"Plafon 30.gsm"}));
    }
}

} // namespace
} // namespace Merivane::Archicad
