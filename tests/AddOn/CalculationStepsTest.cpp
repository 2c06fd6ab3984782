#include <algorithm>
#include <string>
#include <vector>

#include "AddOn/CalculationSession.hpp"
#include "AddOn/Commands/CalculateLighting.hpp"
#include "AddOn/Entry/ResourceIds.hpp"
#include "Archicad/ModelSample.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Archicad/ZoneTaskStorage.hpp"
#include "Host/Elements.hpp"
#include "Simulation/Study/ZoneLogLines.hpp"

namespace Merivane::Commands {
namespace {

using Lines = std::vector<std::string>;
using Simulation::ReferenceStandard;
using Workbench::CurrentSession;

constexpr const char* ValuesAlone = R"({"item": 22, "marcado": false},
    {"item": 26, "marcado": false}, {"item": 27, "marcado": false}, {"item": 29, "marcado": true})";

/// What each step of the main command hands to the next, and what it tells of it.
class CalculationSteps : public Tests::CalculationSession {
protected:
    static Calculation Run(const std::string& moreItems = "") {
        Tests::PrepareAnswers("[" + DialogAnswer(moreItems) + "]");
        return RunCalculation();
    }

    /// The sample with a lamp on the floor above too, and both Zones selected.
    void OpenTwoFloors() {
        Workbench::Project project = Tests::CalculationSample();
        const std::int32_t part = static_cast<std::int32_t>(project.parts.size());
        Tests::AddLamp(project, 30, part, {1.0, 1.0}).element.header.floorIndex = 1;
        OpenSample(std::move(project));
        Select({Tests::RoomZone, Tests::UpperZone});
    }

    static void Select(const std::vector<std::uint32_t>& numbers) {
        std::vector<Host::Guid> guids;
        guids.reserve(numbers.size());
        for (const std::uint32_t number : numbers) {
            guids.push_back(Tests::NumberedGuid(number));
        }
        ASSERT_EQ(Host::SetSelection(guids), Host::NoError);
    }

    static void StoreActivity(const std::string& task, ReferenceStandard standard) {
        const std::string key = Archicad::ZoneKey(Tests::NumberedGuid(Tests::RoomZone));
        ASSERT_EQ(Archicad::SaveZoneTasks({{key, {task, 500.0, 0.6, 0}}}, standard), Host::NoError);
    }

    /// How many elements of a result layer stand on a floor.
    static int CountOn(const std::string& layer, std::int32_t floor,
                       Host::ElementType type = Host::ElementType::Text) {
        const Workbench::Project& project = CurrentSession().project;
        return static_cast<int>(std::count_if(
            project.elements.begin(), project.elements.end(), [&](const auto& element) {
                const Host::ElementHeader& header = element.element.header;
                const auto found = std::find_if(
                    project.layers.begin(), project.layers.end(), [&](const auto& row) {
                        return row.first == header.layer.value && row.second.name == layer;
                    });
                return found != project.layers.end() && header.floorIndex == floor &&
                       header.type == type;
            }));
    }

    static std::size_t CountViews() { return CurrentSession().project.views.size(); }
};

bool Tells(const std::string& part) {
    const Lines report = Tests::ReportWindow();
    return std::any_of(report.begin(), report.end(),
                       [&](const std::string& line) { return line.find(part) != line.npos; });
}

/// What a run tells of its values: Zone by Zone, then the verification of all.
Lines ValueLines(const Calculation& calculation) {
    Lines lines;
    for (std::size_t zone = 0; zone < calculation.drawings.size(); ++zone) {
        for (std::size_t i = 0; i < calculation.built.planes.size(); ++i) {
            if (calculation.built.planes[i].zone == zone) {
                lines.push_back(
                    Simulation::PlaneLogLine(calculation.built.scene.sensorPlanes[i].name,
                                             calculation.result.zones[i].statistics));
            }
        }
        const Lines& glare = calculation.analyses[zone].glare.log;
        lines.insert(lines.end(), glare.begin(), glare.end());
    }
    for (const Simulation::ZoneDrawing& drawing : calculation.drawings) {
        lines.push_back(Simulation::ZoneFiguresLogLine(drawing));
        if (drawing.analysis.task) {
            lines.push_back(Simulation::ZoneTaskLogLine(drawing));
        }
        const Lines& rows = drawing.analysis.verification.log;
        lines.insert(lines.end(), rows.begin(), rows.end());
    }
    for (std::string& line : lines) {
        line.insert(0, "Vantoro: ");
    }
    return lines;
}

TEST_F(CalculationSteps, TellTheValuesOfEveryZoneThenItsVerification) {
    OpenTwoFloors();
    StoreActivity("s22.2", ReferenceStandard::Brazilian);
    Tests::PrepareAnswers(R"([{"dialogo": 32620, "itens": []}])");
    const Calculation calculation = RunCalculation();
    ASSERT_EQ(calculation.analyses.size(), 2U);
    EXPECT_TRUE(calculation.analyses[0].task);
    EXPECT_FALSE(calculation.analyses[0].glare.log.empty());
    EXPECT_FALSE(calculation.analyses[0].verification.log.empty());
    EXPECT_FALSE(calculation.analyses[1].task);
    const Lines expected = ValueLines(calculation);
    const Lines report = Tests::ReportWindow();
    EXPECT_NE(std::search(report.begin(), report.end(), expected.begin(), expected.end()),
              report.end())
        << ::testing::PrintToString(expected) << "\nis not in one piece among\n"
        << ::testing::PrintToString(report);
}

TEST_F(CalculationSteps, TakeEverySettingIntoTheStudy) {
    StoreActivity("s22.2", ReferenceStandard::International);
    const Calculation calculation = Run(
        R"({"item": 6, "valor": 0.8}, {"item": 8, "valor": 0.1}, {"item": 10, "valor": 0.3},
           {"item": 17, "marcado": false}, {"item": 33, "texto": "100; 200"})");
    EXPECT_EQ(calculation.end, CalculationEnd::Done);
    const Simulation::LightingStudy& study = calculation.study;
    EXPECT_EQ(study.levels, (Simulation::LevelList{100.0, 200.0}));
    EXPECT_FALSE(study.glare);
    EXPECT_EQ(study.engine, Archicad::LoadEngineSettings());
    EXPECT_EQ(study.engine.bounces, 1);
    EXPECT_EQ(study.standard, ReferenceStandard::International);
    ASSERT_EQ(study.zones.size(), 1U);
    EXPECT_EQ(study.zones[0].grid.workPlaneHeight, 0.8);
    EXPECT_EQ(study.zones[0].grid.wallOffset, 0.1);
    EXPECT_EQ(study.zones[0].grid.borderBand, 0.3);
    EXPECT_FALSE(study.zones[0].calculateWalls);
    EXPECT_FALSE(study.zones[0].calculateCeiling);
    EXPECT_FALSE(study.zones[0].calculateFloor);
    EXPECT_GT(calculation.seconds, 0.0);
}

TEST_F(CalculationSteps, VerifyByTheActivitiesAndTheStandardOfTheDialog) {
    StoreActivity("s22.2", ReferenceStandard::Brazilian);
    Tests::PrepareAnswers("[" + DialogAnswer() + R"(,
        {"dialogo": 32640, "itens": [{"item": )" +
                          std::to_string(ResourceIds::ZoneRequirement::Standard) +
                          R"(, "entrada": 2}]}])");
    const Calculation calculation = RunCalculation();
    EXPECT_EQ(calculation.study.standard, ReferenceStandard::International);
    EXPECT_EQ(calculation.study.zones[0].task.requirement.taskId, "s22.2");
    ReferenceStandard stored = ReferenceStandard::Brazilian;
    Archicad::LoadZoneTasks(stored);
    EXPECT_EQ(stored, ReferenceStandard::International);
}

TEST_F(CalculationSteps, TellAnActivityThatTheNameSuggestsFromOneThatWasChosen) {
    Workbench::Project project = Tests::CalculationSample();
    for (Workbench::ProjectElement& element : project.elements) {
        if (element.element.header.guid == Tests::NumberedGuid(Tests::RoomZone)) {
            std::get<Host::ZoneData>(element.element.data).name = "Escritorio";
        }
    }
    OpenSample(std::move(project));
    const Calculation calculation = Run();
    EXPECT_FALSE(calculation.study.zones[0].task.requirement.taskId.empty());
    EXPECT_TRUE(calculation.study.zones[0].task.byName);
}

TEST_F(CalculationSteps, LeaveTheBodiesOfLuminairesOutOfTheRoom) {
    const Calculation calculation = Run();
    for (const Simulation::SceneMaterial& material : calculation.study.materials) {
        EXPECT_EQ(material.name.find("Difusor"), std::string::npos) << material.name;
    }
    EXPECT_TRUE(Tells("geometria: 6 elemento(s), "));
}

TEST_F(CalculationSteps, TellOfCeilingsOnlyWhereTheyAreCalculated) {
    for (const bool surfaces : {false, true}) {
        Workbench::Project project = Tests::CalculationSample();
        Tests::AddSlab(project, 5, {Tests::PlanRectangle(0.0, 0.0, 2.0, 2.0)}, 2.9, 0.1);
        OpenSample(std::move(project));
        Run(surfaces ? R"({"item": 19, "marcado": true})" : "");
        EXPECT_EQ(Tells("Zona Sala: forro a 2,80 m do piso (100% da area), altura da Zona 3,00 m: "
                        "paredes e teto seguem o forro"),
                  surfaces);
    }
}

TEST_F(CalculationSteps, KeepHolesAndLevelsOfTheZones) {
    OpenTwoFloors();
    EXPECT_EQ(Run().study.zones.at(1).floorLevel, 3.0);
    Workbench::Project project = Tests::CalculationSample();
    for (Workbench::ProjectElement& element : project.elements) {
        if (element.element.header.guid == Tests::NumberedGuid(Tests::RoomZone)) {
            element.memo.polygon.push_back(Tests::PlanRectangle(0.8, 0.8, 0.4, 0.4));
        }
    }
    OpenSample(std::move(project));
    EXPECT_EQ(Run().study.zones.at(0).outline.holes.size(), 1U);
}

TEST_F(CalculationSteps, DrawEachZoneOnItsOwnFloor) {
    Run(ValuesAlone);
    const int alone = CountOn("Vantoro - Valores", 0);
    EXPECT_GT(alone, 0);
    OpenTwoFloors();
    const Calculation calculation = Run(ValuesAlone);
    EXPECT_EQ(calculation.end, CalculationEnd::Done);
    EXPECT_EQ(CountOn("Vantoro - Valores", 0), alone);
    EXPECT_EQ(CountOn("Vantoro - Valores", 1), alone);
    EXPECT_EQ(CountViews(), 2U);
    std::vector<Host::Story> stories;
    std::int16_t floor = 1;
    EXPECT_EQ(Host::GetStories(stories, floor), Host::NoError);
    EXPECT_EQ(floor, 0); // of the first Zone
}

TEST_F(CalculationSteps, LeaveTheResultsOfOtherFloors) {
    OpenTwoFloors();
    Run(ValuesAlone);
    const int ground = CountOn("Vantoro - Valores", 0);
    Select({Tests::UpperZone});
    Run(ValuesAlone);
    EXPECT_EQ(CountOn("Vantoro - Valores", 0), ground);
    EXPECT_EQ(CountOn("Vantoro - Valores", 1), ground);
}

TEST_F(CalculationSteps, DrawTheLegendWhereItIsAskedFor) {
    Run(R"({"item": 26, "marcado": false})");
    EXPECT_EQ(CountOn("Vantoro - Legenda", 0, Host::ElementType::Hatch), 0);
    Run(R"({"item": 26, "marcado": true})");
    EXPECT_EQ(CountOn("Vantoro - Legenda", 0, Host::ElementType::Hatch),
              9); // a band more than levels
}

TEST_F(CalculationSteps, TellOfElementsThatCannotBeDrawn) {
    Workbench::FailCall("CreateElement", 1, Host::GeneralError);
    EXPECT_EQ(Run().end, CalculationEnd::Done);
    EXPECT_TRUE(
        Tests::HoldsLine(Tests::ReportWindow(),
                         "Vantoro: 1 elemento(s) de desenho nao puderam ser criados na zona Sala"));
}

TEST_F(CalculationSteps, DrawNothingWithoutTheirLayersAndGoOn) {
    const auto before = CurrentSession().project.elements;
    Workbench::FailCall("CreateLayer", 1, Host::GeneralError);
    EXPECT_EQ(Run().end, CalculationEnd::Done);
    EXPECT_TRUE(CurrentSession().project.elements == before);
    EXPECT_TRUE(Workbench::UndoNames().empty());
    EXPECT_TRUE(Tests::HoldsLine(Tests::ReportWindow(), "Vantoro: Desenhar os resultados failed: "
                                                        "APIERR_GENERAL (0x81060001)"));
    EXPECT_EQ(CountViews(), 0U);
    EXPECT_TRUE(Tests::ReportWindow().back().starts_with("Vantoro: resultados nas camadas "));
}

TEST_F(CalculationSteps, TellNothingReplacedWhereTheEarlierResultsCannotBeDeleted) {
    Run();
    const auto before = CurrentSession().project.elements;
    CurrentSession().reportLines.clear();
    Workbench::FailCall("DeleteElements", 1, Host::GeneralError);
    Run();
    EXPECT_TRUE(CurrentSession().project.elements == before);
    EXPECT_FALSE(Tells("elemento(s) do calculo anterior substituido(s)"));
    EXPECT_TRUE(Tests::HoldsLine(Tests::ReportWindow(), "Vantoro: Desenhar os resultados failed: "
                                                        "APIERR_GENERAL (0x81060001)"));
    EXPECT_TRUE(Tells("Vista da simulacao do pavimento Terreo atualizada")); // the next step
}

TEST_F(CalculationSteps, TellOfViewsThatCannotBeMade) {
    for (const char* const operation : {"CreateView", "CreateLayerCombination"}) {
        SCOPED_TRACE(operation);
        OpenSample();
        Workbench::FailCall(operation, 1, Host::GeneralError);
        EXPECT_EQ(Run().end, CalculationEnd::Done);
        const Lines report = Tests::ReportWindow();
        EXPECT_EQ(std::count(report.begin(), report.end(),
                             "Vantoro: Criar a Vista da simulacao failed: APIERR_GENERAL "
                             "(0x81060001)"),
                  1);
        EXPECT_EQ(std::count_if(
                      report.begin(), report.end(),
                      [](const std::string& line) { return line.find(" failed: ") != line.npos; }),
                  1); // no view is tried without its combination
        EXPECT_FALSE(Tells("Vista da simulacao criada"));
        EXPECT_TRUE(report.back().starts_with("Vantoro: resultados nas camadas "));
        EXPECT_GT(CountOn("Vantoro - Legenda", 0), 0);
        EXPECT_EQ(CountViews(), 0U);
    }
}

TEST_F(CalculationSteps, LeaveCombinationsAsTheUserSetThem) {
    Run();
    auto& combinations = CurrentSession().project.combinations;
    ASSERT_EQ(combinations.size(), 2U);
    for (auto& entry : combinations) {
        for (Host::LayerState& state : entry.second.states) {
            state.hidden = state.layer.value > 1 && !state.hidden; // the first is always shown
        }
    }
    const auto users = combinations;
    EXPECT_EQ(Run().end, CalculationEnd::Done);
    EXPECT_TRUE(CurrentSession().project.combinations == users);
}

TEST_F(CalculationSteps, TellTheirNoticesToo) {
    const Calculation calculation = Run();
    ASSERT_FALSE(calculation.notices.empty());
    EXPECT_TRUE(calculation.notices[0].starts_with("Com 1 reflexão, "));
    EXPECT_TRUE(Tests::HoldsLine(Tests::ReportWindow(), "Vantoro: " + calculation.notices[0]));
}

} // namespace
} // namespace Merivane::Commands
