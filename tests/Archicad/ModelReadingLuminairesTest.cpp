#include <cstdint>
#include <numbers>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/ModelReadingLuminaires.hpp"
#include "Host/Stories.hpp"
#include "ModelSample.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using namespace Merivane::Tests;

using Strings = std::vector<std::string>;

struct Collected {
    std::vector<Simulation::SceneLuminaire> luminaires;
    std::vector<Host::Guid> guids;
    Strings log;
};

Collected Collect(Workbench::Project project, const std::vector<std::int32_t>& floors = {0}) {
    OpenSample(std::move(project));
    Collected collected;
    collected.luminaires = CollectLuminaires(floors, collected.guids, collected.log);
    return collected;
}

/// One lamp, number 0x1A2B3C4D, at (2, 3).
Workbench::Project OneLamp() {
    Workbench::Project project = SampleProject();
    AddLamp(project, 0x1A2B3C4D, AddLampPart(project, "Plafon"), {2.0, 3.0});
    return project;
}

std::vector<Host::LibraryParameter>& PartParameters(Workbench::Project& project) {
    return project.parts[0].parameters;
}

TEST(CollectLuminaires, FillsTheWholeRecord) {
    Workbench::Project project = OneLamp();
    SetNumber(PartParameters(project), "mvFlangeDepth", 0.04);
    SetNumber(PartParameters(project), "mvTiltAngle", std::numbers::pi / 6.0);
    auto& object = std::get<Host::ObjectData>(project.elements[0].element.data);
    object.angle = 0.75;
    object.mirrored = true;
    const Collected collected = Collect(std::move(project));
    ASSERT_EQ(collected.luminaires.size(), 1U);
    const Simulation::SceneLuminaire& luminaire = collected.luminaires[0];
    EXPECT_EQ(luminaire.id, "lum_1A2B3C4D");
    EXPECT_EQ(luminaire.displayName, "COD-1");
    EXPECT_EQ(luminaire.guid, "{1A2B3C4D-0000-0000-0000-000000000000}");
    EXPECT_EQ(luminaire.manufacturer, "Fabrica");
    EXPECT_EQ(luminaire.lamp, "LED 830");
    EXPECT_EQ(luminaire.typeKey, "COD-1\x1F"
                                 "COD-1\x1F"
                                 "LED 830");
    EXPECT_EQ(luminaire.inputWatts, 12.0);
    EXPECT_EQ(luminaire.photometry.candela[0][1], 200.0);
    EXPECT_EQ(luminaire.contract.iesFileName, "plafon.ies");
    EXPECT_NEAR(luminaire.contract.tiltAngle, 30.0, 1e-12);
    EXPECT_EQ(luminaire.contract.maintenanceFactor, 0.8);
    EXPECT_EQ(luminaire.dimming, 1.0);
    EXPECT_EQ(luminaire.x, 2.0);
    EXPECT_EQ(luminaire.y, 3.0);
    EXPECT_DOUBLE_EQ(luminaire.z, 2.46);
    EXPECT_EQ(luminaire.rotation, 0.75);
    EXPECT_TRUE(luminaire.mirrored);
    EXPECT_EQ(luminaire.arrayCountX, 1);
    EXPECT_EQ(luminaire.lengthScale, 1.0);
    EXPECT_EQ(collected.guids, (std::vector<Host::Guid>{NumberedGuid(0x1A2B3C4D)}));
    EXPECT_TRUE(collected.log.empty());
}

TEST(CollectLuminaires, TakesTheColourRenderingOfOlderPartsOrOfTheHeader) {
    struct Case {
        double parameter; // of parts made earlier; 0 = absent
        std::string header;
        double expected;
    };
    const Case cases[] = {{0, "[_RA] 90", 90},
                          {0, "[LAMP] LED CRI>80", 80},
                          {0, "[LAMP] LED", 0},
                          {70, "[_RA] 90", 70}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.header);
        Workbench::Project project = OneLamp();
        auto& parameters = PartParameters(project);
        std::erase_if(parameters, [](const auto& entry) { return entry.name == "mvIesKeywords"; });
        Host::LibraryParameter& header = parameters.emplace_back();
        header.name = "mvIesKeywords";
        header.type = Host::ParameterType::String;
        header.isArray = true;
        header.dim1 = 1;
        header.dim2 = 1;
        header.texts = {c.header};
        if (c.parameter > 0.0) {
            SetNumber(parameters, "mvColourRendering", c.parameter);
        }
        const Collected collected = Collect(std::move(project));
        ASSERT_EQ(collected.luminaires.size(), 1U);
        EXPECT_EQ(collected.luminaires[0].contract.colourRendering, c.expected);
    }
}

TEST(CollectLuminaires, ReadsThePlanWhateverDatabaseIsCurrent) {
    Workbench::Project project = OneLamp();
    Workbench::ProjectDatabase sheet;
    sheet.window.type = Host::WindowType::Worksheet;
    sheet.window.database = NumberedGuid(9);
    project.databases.push_back(sheet);
    OpenSample(std::move(project));
    ASSERT_EQ(Host::ChangeCurrentDatabase(sheet.window), Host::NoError);
    std::vector<Host::Guid> guids;
    Strings log;
    EXPECT_EQ(CollectLuminaires({0}, guids, log).size(), 1U);
    Host::Window current;
    ASSERT_EQ(Host::GetCurrentDatabase(current), Host::NoError);
    EXPECT_EQ(current.database, NumberedGuid(9));
}

TEST(CollectLuminaires, AddsTheStoryLevel) {
    Workbench::Project project = OneLamp();
    project.elements[0].element.header.floorIndex = 1;
    const Collected collected = Collect(std::move(project), {1});
    ASSERT_EQ(collected.luminaires.size(), 1U);
    EXPECT_DOUBLE_EQ(collected.luminaires[0].z, 5.5);
}

TEST(CollectLuminaires, TakesThoseOfTheWantedFloorsLampsBeforeObjects) {
    Workbench::Project project = SampleProject();
    const std::int32_t part = AddLampPart(project, "Plafon");
    AddLamp(project, 1, part, {0, 0}).element.header.type = Host::ElementType::Object;
    AddLamp(project, 2, part, {0, 0});
    AddLamp(project, 3, part, {0, 0}).element.header.floorIndex = 1;
    AddLamp(project, 4, part, {0, 0}).element.header.layer = {2}; // hidden
    const std::vector<std::vector<std::uint32_t>> expected = {{2, 4, 1}, {3}, {2, 3, 4, 1}, {}};
    const std::vector<std::vector<std::int32_t>> floors = {{0}, {1}, {1, 0}, {7}};
    for (std::size_t i = 0; i < floors.size(); ++i) {
        const Collected collected = Collect(project, floors[i]);
        std::vector<Host::Guid> guids;
        for (const std::uint32_t number : expected[i]) {
            guids.push_back(NumberedGuid(number));
        }
        EXPECT_EQ(collected.guids, guids) << i;
        EXPECT_EQ(collected.luminaires.size(), guids.size()) << i;
    }
}

TEST(CollectLuminaires, PassesOverObjectsThatAreNotOfTheContract) {
    Workbench::Project project = OneLamp();
    DropParameter(PartParameters(project), "mvContractVersion");
    const Collected collected = Collect(std::move(project));
    EXPECT_TRUE(collected.luminaires.empty());
    EXPECT_TRUE(collected.guids.empty());
    EXPECT_TRUE(collected.log.empty());
}

TEST(CollectLuminaires, CountsThoseSwitchedOffAndKeepsTheirGuids) {
    Workbench::Project project = OneLamp();
    AddLamp(project, 2, 1, {0, 0});
    AddLamp(project, 3, 1, {0, 0});
    for (const std::size_t at : {0U, 2U}) {
        project.elements[at].memo.parameters = PartParameters(project);
        SetNumber(project.elements[at].memo.parameters, "mvLightOn", 0.0);
    }
    const Collected collected = Collect(std::move(project));
    EXPECT_EQ(collected.luminaires.size(), 1U);
    EXPECT_EQ(collected.guids.size(), 3U);
    EXPECT_EQ(collected.log, (Strings{"2 luminaria(s) desligada(s) (mvLightOn) fora do calculo"}));
}

TEST(CollectLuminaires, TellsWhyAContractCannotBeRead) {
    Workbench::Project project = OneLamp();
    AddLamp(project, 2, AddLampPart(project, "Nova"), {0, 0});
    AddLamp(project, 3, AddLampPart(project, "Sem tabela"), {0, 0});
    AddLamp(project, 4, AddLampPart(project, "Desligada"), {0, 0});
    SetNumber(project.parts[1].parameters, "mvContractVersion", 8.0);
    DropParameter(project.parts[2].parameters, "mvCandela");
    SetNumber(project.parts[3].parameters, "mvContractVersion", 8.0);
    SetNumber(project.parts[3].parameters, "mvLightOn", 0.0);
    const Collected collected = Collect(std::move(project));
    EXPECT_EQ(collected.luminaires.size(), 1U);
    EXPECT_EQ(collected.guids.size(), 4U);
    EXPECT_EQ(collected.log,
              (Strings{"luminaria {00000002-0000-0000-0000-000000000000} ignorada: luminaria com "
                       "versao de contrato 8 (este Vantoro entende ate a 7)",
                       "luminaria {00000003-0000-0000-0000-000000000000} ignorada: tabela ausente: "
                       "mvCandela",
                       "1 luminaria(s) desligada(s) (mvLightOn) fora do calculo",
                       "2 luminaria(s) com fotometria ilegivel fora do calculo"}));
}

TEST(CollectLuminaires, ClampsTheDimming) {
    struct Case {
        double stored;
        double read;
    };
    for (const Case& c : {Case{-0.1, 0.0}, {0.0, 0.0}, {0.35, 0.35}, {1.0, 1.0}, {1.01, 1.0}}) {
        Workbench::Project project = OneLamp();
        SetNumber(PartParameters(project), "mvDimming", c.stored);
        EXPECT_EQ(Collect(std::move(project)).luminaires.at(0).dimming, c.read) << c.stored;
    }
    Workbench::Project project = OneLamp();
    DropParameter(PartParameters(project), "mvDimming");
    EXPECT_EQ(Collect(std::move(project)).luminaires.at(0).dimming, 1.0);
}

TEST(CollectLuminaires, NamesALuminaireByCodeDescriptionFileOrGuid) {
    struct Case {
        const char* catalog;
        const char* luminaire;
        const char* file;
        const char* name;
        const char* key;
    };
    const Case cases[] = {
        {"COD", "Plafon", "a.ies", "COD",
         "COD\x1F"
         "COD\x1FLED 830"},
        {"", "Plafon", "a.ies", "Plafon", "\x1FPlafon\x1FLED 830"},
        {"", "", "a.ies", "a.ies",
         "\x1F"
         "a.ies\x1FLED 830"},
        {"", "", "", "luminaria 1A2B3C4D", "\x1Fluminaria 1A2B3C4D\x1FLED 830"},
    };
    for (const Case& c : cases) {
        Workbench::Project project = OneLamp();
        SetText(PartParameters(project), "mvCatalog", c.catalog);
        SetText(PartParameters(project), "mvLuminaire", c.luminaire);
        SetText(PartParameters(project), "mvIesFileName", c.file);
        const Collected collected = Collect(std::move(project));
        EXPECT_EQ(collected.luminaires.at(0).displayName, c.name);
        EXPECT_EQ(collected.luminaires.at(0).typeKey, c.key);
    }
}

TEST(CollectLuminaires, RepairsDegreeSignsInTheNameAlone) {
    Workbench::Project project = OneLamp();
    SetText(PartParameters(project), "mvCatalog",
            "\xC2\xA1\xC3\xA3 24\xC2\xA1\xC3\xA3\xC2\xA1\xC3\xA3 \xC3\xA3\xC2\xA1");
    const Collected collected = Collect(std::move(project));
    EXPECT_EQ(collected.luminaires.at(0).displayName,
              "\xC2\xB0 24\xC2\xB0\xC2\xB0 \xC3\xA3\xC2\xA1");
    EXPECT_NE(collected.luminaires.at(0).typeKey.find("24\xC2\xA1\xC3\xA3"), std::string::npos);
}

TEST(CollectLuminaires, TakesTheWattsOfTheContractThatUsersEdit) {
    Workbench::Project project = OneLamp();
    project.elements[0].memo.parameters = PartParameters(project);
    SetNumber(project.elements[0].memo.parameters, "mvInputWatts", 9.5);
    EXPECT_EQ(Collect(std::move(project)).luminaires.at(0).inputWatts, 9.5);
}

/// Makes a part one of tapes, with a path in its plan [m].
void MakeLinear(Workbench::ProjectPart& part, const std::vector<double>& path) {
    SetNumber(part.parameters, "mvLinearVersion", 1.0);
    SetNumber(part.parameters, "mvLinearCount", static_cast<double>(path.size()) / 2.0);
    SetNumber(part.parameters, "mvLinearPath", 0.0);
    Host::LibraryParameter& table = part.parameters.back();
    table.isArray = true;
    table.dim1 = static_cast<std::int32_t>(path.size()) / 2;
    table.dim2 = 2;
    table.numbers = path;
}

TEST(CollectLuminaires, CutsALinearOneIntoPieces) {
    Workbench::Project project = OneLamp();
    MakeLinear(project.parts[0], {0, 0, 0, 2.5});
    AddLamp(project, 2, AddLampPart(project, "Ponto"), {0, 0});
    AddLamp(project, 3, 1, {7, 0});
    const Collected collected = Collect(std::move(project));
    ASSERT_EQ(collected.luminaires.size(), 7U);
    EXPECT_EQ(collected.guids.size(), 3U);
    const Simulation::SceneLuminaire& last = collected.luminaires[2];
    EXPECT_EQ(last.id, "lum_1A2B3C4D_p3");
    EXPECT_EQ(last.displayName, "COD-1");
    EXPECT_TRUE(last.typeKey.ends_with("LED 830\nfita"));
    EXPECT_NEAR(last.lengthScale, 0.5, 1e-12);
    EXPECT_NEAR(last.x, 2.0, 1e-12);
    EXPECT_NEAR(last.y, 5.25, 1e-12);
    EXPECT_EQ(last.z, 2.5);
    EXPECT_NEAR(last.contract.c0Rotation, 90.0, 1e-12);
    EXPECT_EQ(collected.luminaires[3].id, "lum_00000002");
    EXPECT_TRUE(collected.luminaires[3].typeKey.ends_with("LED 830"));
    EXPECT_EQ(collected.log, (Strings{"2 fita(s) / linear(es), 500 cm em 6 trecho(s) do "
                                      "comprimento medido no IES"}));
}

TEST(CollectLuminaires, RoundsTheLengthOfRunsToCentimetres) {
    Workbench::Project project = OneLamp();
    MakeLinear(project.parts[0], {0, 0, 1.236, 0});
    EXPECT_EQ(Collect(std::move(project)).log,
              (Strings{"1 fita(s) / linear(es), 124 cm em 2 trecho(s) do comprimento medido no "
                       "IES"}));
}

TEST(CollectLuminaires, TellsOfALinearOneThatCannotBeRead) {
    Workbench::Project project = OneLamp();
    MakeLinear(project.parts[0], {0, 0});
    SetText(project.parts[0].parameters, "mvCatalog", "Fita \xC2\xA1\xC3\xA3");
    for (const double length : {0.005, 1.0, 1.0}) {
        const std::int32_t part = AddLampPart(project, "Fita");
        MakeLinear(project.parts.back(), {0, 0, length, 0});
        AddLamp(project, 1U + static_cast<std::uint32_t>(part), part, {0, 0});
    }
    SetNumber(project.parts[2].parameters, "mvLinearVersion", 2.0);
    SetNumber(project.parts[3].parameters, "mvLightOn", 0.0);
    AddLamp(project, 9, AddLampPart(project, "Inteira"), {0, 0});
    MakeLinear(project.parts.back(), {0, 0, 1, 0});
    const Collected collected = Collect(std::move(project));
    EXPECT_EQ(collected.luminaires.size(), 1U);
    EXPECT_EQ(collected.guids.size(), 5U);
    const std::string tooShort = "luminaria linear Fita \xC2\xB0 ignorada: percurso da luminaria "
                                 "linear com menos de 2 pontos";
    EXPECT_EQ(
        collected.log,
        (Strings{tooShort, "luminaria linear COD-1 ignorada: percurso da luminaria linear ilegivel",
                 "luminaria linear COD-1 ignorada: luminaria linear de versao mais nova (2)",
                 "1 fita(s) / linear(es), 100 cm em 1 trecho(s) do comprimento medido no IES",
                 "1 luminaria(s) desligada(s) (mvLightOn) fora do calculo",
                 "3 luminaria(s) com fotometria ilegivel fora do calculo"}));
}

TEST(CollectLuminaires, LeavesOutWhatTheHostDoesNotGive) {
    OpenSample(OneLamp());
    for (const char* operation : {"ListElements", "GetElement", "GetMemo", "GetStories"}) {
        Workbench::FailCall(operation, 1, Host::GeneralError);
        std::vector<Host::Guid> guids;
        Strings log;
        EXPECT_TRUE(CollectLuminaires({0}, guids, log).empty()) << operation;
        EXPECT_TRUE(guids.empty() && log.empty()) << operation;
        EXPECT_EQ(CollectLuminaires({0}, guids, log).size(), 1U) << operation;
    }
}

} // namespace
} // namespace Merivane::Archicad
