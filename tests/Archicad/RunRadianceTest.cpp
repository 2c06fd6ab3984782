#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Archicad/RunRadiance.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Host/Session.hpp"
#include "Simulation/Run/RunScenes.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Archicad {
namespace {

using namespace Merivane::Simulation;
using Lines = std::vector<std::string>;
using Values = std::vector<std::int32_t>;

const LastRunRecord Earlier{true, 5, 6.0, 7.0, 1};

/// A small room, calculated by the real programs in a temporary folder of the test's own.
class RunOfRadiance : public testing::Test {
protected:
    RunOfRadiance() : programs(folder.Path() / "radiance") {
        options.temporaryFolder = Text::WidePath(folder.Path());
        Open();
        installation.complete = true;
        installation.binFolder = Text::WidePath(programs.Path());
        installation.libFolder = Text::WidePath(Tests::RadianceLibFolder());
    }
    ~RunOfRadiance() override { Workbench::OpenSession({}); }

    void Open() const {
        Workbench::OpenSession(options);
        EngineSettings engine = ProfileSettings(0);
        engine.maxProcesses = 1;
        SaveEngineSettings(engine);
        SaveLastRun(Earlier);
    }

    bool Run() { return RunRadiance(scene, installation, result, workFolderText, asked); }

    std::string WorkFolder() const { return (folder.Path() / "Vantoro" / "calculo").string(); }

    /// What stands in the report window, an alert with "!" before it.
    static Lines Reports() {
        Lines lines;
        for (const Workbench::ReportLine& line : Workbench::CurrentSession().reportLines) {
            lines.push_back((line.alert ? "!" : "") + line.text);
        }
        return lines;
    }

    static const Workbench::ProcessWindow& Window() {
        EXPECT_EQ(Workbench::CurrentSession().processWindows.size(), 1U);
        return Workbench::CurrentSession().processWindows.at(0);
    }

    static Lines PhaseTitles() {
        Lines titles;
        for (const Workbench::ProcessPhase& phase : Window().phases) {
            titles.push_back(phase.title);
        }
        return titles;
    }

    Tests::TemporaryFolder folder;
    Tests::ProgramFolder programs;
    Workbench::SessionOptions options;
    Radiance::Installation installation;
    Scene scene = Tests::SmallRoom(1.0);
    SimulationResult result;
    std::string workFolderText;
    RunOptions asked;
};

TEST_F(RunOfRadiance, CalculatesInTheFolderThatAllRunsShare) {
    ASSERT_TRUE(Run()) << result.error;
    EXPECT_EQ(workFolderText, WorkFolder());
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "Vantoro" / "calculo" / "scene.oct"));
    ASSERT_EQ(result.zones.size(), 1U);
    EXPECT_GT(result.zones[0].statistics.mean, 50.0);
    EXPECT_LT(result.zones[0].statistics.mean, 500.0);
}

TEST_F(RunOfRadiance, ShowsEachStageAsAPhaseOf100Steps) {
    scene.points = {{1, 1, 1, 0, 0, 1}};
    ASSERT_TRUE(Run()) << result.error;
    const std::string total = std::to_string(PlanePointCount(scene) + 1);
    EXPECT_EQ(Window().title, "Vantoro: cálculo de iluminação");
    EXPECT_EQ(Window().phaseCount, 4);
    EXPECT_EQ(PhaseTitles(), (Lines{"Preparando a cena (luminárias e geometria)",
                                    "Pontos de cálculo (" + total + ")", "Observadores (UGR)"}));
    EXPECT_EQ(Window().phases[0].values, (Values{0, 100}));
    for (const Workbench::ProcessPhase& phase : Window().phases) {
        SCOPED_TRACE(phase.title);
        EXPECT_EQ(phase.highest, 100);
        ASSERT_FALSE(phase.values.empty());
        EXPECT_EQ(phase.values.front(), 0);
        // Ever larger: none told twice, none going back.
        EXPECT_EQ(
            std::adjacent_find(phase.values.begin(), phase.values.end(), std::greater_equal<>()),
            phase.values.end());
    }
    EXPECT_FALSE(Window().open);
}

TEST_F(RunOfRadiance, GoesThroughAllFourPhasesInSeveralProcesses) {
    EngineSettings engine = ProfileSettings(0);
    engine.maxProcesses = 2;
    SaveEngineSettings(engine);
    scene.points = {{1, 1, 1, 0, 0, 1}};
    ASSERT_TRUE(Run()) << result.error;
    const std::string total = std::to_string(PlanePointCount(scene) + 1);
    EXPECT_EQ(PhaseTitles(), (Lines{"Preparando a cena (luminárias e geometria)",
                                    "Luz refletida entre as superfícies (semente)",
                                    "Pontos de cálculo (" + total + ")", "Observadores (UGR)"}));
}

TEST_F(RunOfRadiance, RoundsTheStepsOfAPhase) {
    scene.luminaires.resize(7, scene.luminaires[0]);
    ASSERT_TRUE(Run()) << result.error;
    // i of 8: 12.5 is 13, 37.5 is 38, 62.5 is 63.
    EXPECT_EQ(Window().phases[0].values, (Values{0, 13, 25, 38, 50, 63, 75, 100}));
}

TEST_F(RunOfRadiance, LogsTheEngineTheRunAndHowLongItTook) {
    ASSERT_TRUE(Run()) << result.error;
    const Lines lines = Reports();
    ASSERT_EQ(lines.size(), result.log.size() + 2);
    EXPECT_EQ(lines.front(), "Vantoro: motor: Estudo rápido (reflexões 2, raios 256)");
    for (std::size_t i = 0; i < result.log.size(); ++i) {
        EXPECT_EQ(lines[i + 1], "Vantoro: " + result.log[i]);
    }
    const std::string seconds = std::to_string(std::lround(LoadLastRun().seconds));
    EXPECT_EQ(lines.back(), "Vantoro: Radiance: " + std::to_string(PlanePointCount(scene)) +
                                " ponto(s) em " + seconds + " s");
    EXPECT_EQ(Tests::LinesOf(folder.Path() / "Vantoro" / "relatorio.txt").size(), lines.size());
}

TEST_F(RunOfRadiance, WorksInTheFolderThatItIsAskedTo) {
    asked.workFolder = Text::WidePath(folder.Path() / "aqui");
    ASSERT_TRUE(Run()) << result.error;
    EXPECT_EQ(workFolderText, (folder.Path() / "aqui").string());
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "aqui" / "scene.oct"));
    EXPECT_FALSE(std::filesystem::exists(WorkFolder()));
}

TEST_F(RunOfRadiance, RepeatsItsValuesAndItsLogInOneProcess) {
    EngineSettings engine = ProfileSettings(0);
    engine.maxProcesses = 2;
    SaveEngineSettings(engine);
    asked.repeatable = true;
    ASSERT_TRUE(Run()) << result.error;
    const SimulationResult first = result;
    ASSERT_TRUE(Run()) << result.error;
    EXPECT_EQ(result.zones[0].illuminance, first.zones[0].illuminance);
    EXPECT_EQ(result.log, first.log);
    EXPECT_EQ(Workbench::CurrentSession().processWindows[0].phases.size(), 2U); // no seed
    EXPECT_EQ(Reports().back(), "Vantoro: Radiance: " + std::to_string(PlanePointCount(scene)) +
                                    " ponto(s)"); // the time would differ
}

TEST_F(RunOfRadiance, RemembersHowLongItTook) {
    scene.points = {{1, 1, 1, 0, 0, 1}}; // loose points are none of the planes'
    ASSERT_TRUE(Run()) << result.error;
    const LastRunRecord record = LoadLastRun();
    EXPECT_TRUE(record.valid);
    EXPECT_EQ(record.points, static_cast<std::int32_t>(PlanePointCount(scene)));
    EXPECT_GT(record.seconds, 0.0);
    EXPECT_LT(record.seconds, 60.0);
    EXPECT_EQ(record.costFactor, CostFactor(ProfileSettings(0)));
}

TEST_F(RunOfRadiance, EndsWhenTheUserStopsIt) {
    options.cancelAsked = [] { return true; };
    Open();
    EXPECT_FALSE(Run());
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(Reports().back(), "Vantoro: calculo cancelado - nada foi desenhado.");
    const auto& lines = Workbench::CurrentSession().reportLines;
    EXPECT_TRUE(std::none_of(lines.begin(), lines.end(), [](const auto& l) { return l.alert; }));
    EXPECT_FALSE(Window().open);
    EXPECT_EQ(LoadLastRun(), Earlier);
}

TEST_F(RunOfRadiance, EndsAProgramThatNeverEndsWhenTheUserStopsIt) {
    programs.Replace("rtrace", "while :; do sleep 0.1; done");
    options.onProgress = [](const Workbench::ProcessWindow& window) {
        if (window.phases.size() == 2) { // the points have begun
            Workbench::CurrentSession().processWindows.back().cancelled = true;
        }
    };
    Open();
    EXPECT_FALSE(Run());
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(PhaseTitles().size(), 2U);
    EXPECT_FALSE(Window().open);
    EXPECT_EQ(Reports().back(), "Vantoro: calculo cancelado - nada foi desenhado.");
}

TEST_F(RunOfRadiance, TellsAFailureInAnAlertThatNamesTheFolder) {
    programs.Remove("oconv");
    EXPECT_FALSE(Run());
    EXPECT_FALSE(result.cancelled);
    EXPECT_EQ(Reports().back(), "!Vantoro: O calculo falhou: montagem da cena (oconv): oconv: o "
                                "programa nao pode ser iniciado\nArquivos em: " +
                                    WorkFolder());
    EXPECT_FALSE(Window().open);
    EXPECT_EQ(LoadLastRun(), Earlier);
}

TEST_F(RunOfRadiance, TellsThatThereIsNothingToCalculate) {
    scene.sensorPlanes.clear();
    EXPECT_FALSE(Run());
    EXPECT_EQ(Reports().back(),
              "!Vantoro: O calculo falhou: nenhum ponto de calculo nas zonas\nArquivos em: " +
                  WorkFolder());
}

TEST_F(RunOfRadiance, FailsWithoutATemporaryFolder) {
    // The log asks for it too: once for each line before the run ends.
    Workbench::FailCall("GetTemporaryFolder", 1, Host::GeneralError);
    EXPECT_FALSE(Run());
    EXPECT_EQ(workFolderText, "");
    EXPECT_EQ(Reports().back(), "!Vantoro: O calculo falhou: nao foi possivel criar a pasta de "
                                "trabalho do calculo\nArquivos em: ");
}

TEST_F(RunOfRadiance, CalculatesAlsoWithoutAProcessWindow) {
    Workbench::FailCall("OpenProcessWindow", 1, Host::GeneralError);
    EXPECT_TRUE(Run()) << result.error;
    EXPECT_TRUE(Workbench::CurrentSession().processWindows.empty());
    EXPECT_EQ(Reports().front(), "Vantoro: Abrir a janela de progresso failed: APIERR_GENERAL "
                                 "(0x81060001)");
}

TEST_F(RunOfRadiance, GoesOnWhenTheProcessWindowFailsOnTheWay) {
    for (const char* const call :
         {"BeginProcessPhase", "SetProcessValue", "CheckProcessCancelled", "CloseProcessWindow"}) {
        SCOPED_TRACE(call);
        Open();
        Workbench::FailCall(call, 1, Host::GeneralError);
        EXPECT_TRUE(Run()) << result.error;
    }
}

TEST_F(RunOfRadiance, CalculatesByTheDefaultsWhereSettingsCanNotBeRead) {
    Workbench::FailCall("GetPreferences", 1, Host::GeneralError);
    scene = Tests::SmallRoom(2.0);
    EXPECT_TRUE(Run()) << result.error;
    EXPECT_EQ(Reports().front(), "Vantoro: motor: Projeto (reflexões 2, raios 1024)");
    EXPECT_EQ(LoadLastRun().costFactor, 1.0);
}

TEST_F(RunOfRadiance, GivesItsValuesAlsoWhereItsDurationCanNotBeKept) {
    Workbench::FailCall("SetPreferences", 1, Host::ReadOnly);
    EXPECT_TRUE(Run()) << result.error;
    EXPECT_EQ(LoadLastRun(), Earlier);
    const Lines lines = Reports();
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines[lines.size() - 2], "Vantoro: Guardar a duracao do calculo failed: "
                                       "APIERR_READONLY (0x8106038A)");
}

} // namespace
} // namespace Merivane::Archicad
