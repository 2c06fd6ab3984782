#include <gtest/gtest.h>

#include "RunScenes.hpp"
#include "Simulation/Run/FolderLock.hpp"
#include "Simulation/Run/RunSimulation.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Simulation {
namespace {

namespace fs = std::filesystem;
using namespace Merivane::Tests;

// A room with one plane and one loose point, and the programs that a test may break.
class RunFailures : public testing::Test {
protected:
    RunFailures() : programs(folder.Path() / "radiance"), options(RunOptions(Work())) {
        options.radianceBinFolder = Text::WidePath(programs.Path());
        scene.points = {{2, 1.5, 0.75, 0, 0, 1}};
        scene.luminaires[0].displayName = "Downlight D1";
        scene.luminaires[0].contract.iesFileName = "d1.ies";
    }

    fs::path Work() const { return folder.Path() / "trabalho"; }

    std::string Error() const {
        const SimulationResult result = RunSimulation(scene, options, {}, {}, {});
        EXPECT_FALSE(result.success);
        EXPECT_FALSE(result.cancelled);
        return result.error;
    }

    // A folder where the run wants to write a file: writing fails for root too.
    void Block(const std::string& name) const { fs::create_directories(Work() / name / "x"); }

    TemporaryFolder folder;
    ProgramFolder programs;
    Scene scene = SmallRoom(1.0);
    SimulationOptions options;
};

// Lets `rtrace` do its work, but for the call whose arguments hold a word.
std::string FailingCall(const std::string& word, const std::string& failure) {
    return "case \"$*\" in *'" + word + "'*) " + failure + " ;; esac\nexec \"$REAL\" \"$@\"";
}

TEST_F(RunFailures, WorkFolderCantBeMade) {
    WriteBytes(folder.Path() / "arquivo", "");
    const std::string expected = "nao foi possivel criar a pasta de trabalho do calculo";
    options.workFolder = Text::WidePath(folder.Path() / "arquivo");
    EXPECT_EQ(Error(), expected);
    options.workFolder = Text::WidePath(folder.Path() / "arquivo" / "dentro");
    EXPECT_EQ(Error(), expected);
    options.workFolder = L"";
    EXPECT_EQ(Error(), expected);
    options.workFolder = Text::WidePath(folder.Path() / std::string(300, 'n'));
    EXPECT_EQ(Error(), expected);
}

TEST_F(RunFailures, WorkFolderIsInUse) {
    fs::create_directories(Work());
    WriteBytes(Work() / "illuminance.txt", "do outro calculo");
    std::shared_ptr<void> lock;
    ASSERT_EQ(LockFile(Text::WidePath(Work() / "vantoro.lock"), lock), LockOutcome::Held);
    EXPECT_EQ(Error(), "a pasta de trabalho ja esta em uso por outro calculo");
    EXPECT_EQ(ReadBytes(Work() / "illuminance.txt"), "do outro calculo");
    lock.reset();
    EXPECT_TRUE(RunSimulation(scene, options, {}, {}, {}).success);
}

TEST_F(RunFailures, SecondRunWhileTheFirstCalculates) {
    std::string second;
    const auto log = [&](const std::string& line) {
        if (line.starts_with("octree montado")) {
            second = Error();
        }
    };
    EXPECT_TRUE(RunSimulation(scene, options, {}, log, {}).success);
    EXPECT_EQ(second, "a pasta de trabalho ja esta em uso por outro calculo");
    EXPECT_TRUE(RunSimulation(scene, options, {}, {}, {}).success); // free again
}

TEST_F(RunFailures, SceneFilesCantBeWritten) {
    for (const char* name :
         {"vantoro.lock", "lamp.tab", "materials.rad", "geometry.rad", "sensors.pts"}) {
        SCOPED_TRACE(name);
        Block(name);
        EXPECT_EQ(Error(), "nao foi possivel gravar os arquivos da cena");
        fs::remove_all(Work());
    }
}

TEST_F(RunFailures, FirstSceneFileEndsTheWriting) {
    Block("materials.rad");
    Error();
    EXPECT_FALSE(fs::exists(Work() / "geometry.rad"));
    EXPECT_FALSE(fs::exists(Work() / "sensors.pts"));
}

TEST_F(RunFailures, NoPointAnywhere) {
    scene.points.clear();
    scene.sensorPlanes[0].grid.active.assign(scene.sensorPlanes[0].grid.active.size(), false);
    EXPECT_EQ(Error(), "nenhum ponto de calculo nas zonas");
    scene.sensorPlanes.clear();
    EXPECT_EQ(Error(), "nenhum ponto de calculo nas zonas");
}

TEST_F(RunFailures, GridBeyondTwentyMillionNodes) {
    CalculationGrid& grid = scene.sensorPlanes[0].grid;
    grid.columns = 5'000'001; // far beyond what memory for two bits a node would take
    grid.rows = 4;
    EXPECT_EQ(Error(), "Sala: a malha de calculo tem mais de 20 milhoes de nos");
    grid.columns = INT32_MAX;
    grid.rows = INT32_MAX;
    EXPECT_EQ(Error(), "Sala: a malha de calculo tem mais de 20 milhoes de nos");
}

TEST_F(RunFailures, GridOfTwentyMillionNodesIsNotTooLarge) {
    CalculationGrid& grid = scene.sensorPlanes[0].grid;
    grid.columns = 5'000'000;
    grid.rows = 4;
    grid.active.assign(20'000'000, false);
    scene.points.clear();
    EXPECT_EQ(Error(), "nenhum ponto de calculo nas zonas");
}

TEST_F(RunFailures, PhotometryCantBeWritten) {
    Block("lum1.ies");
    EXPECT_EQ(Error(), "nao foi possivel gravar o IES de Downlight D1");
}

TEST_F(RunFailures, TiltInAnotherFile) {
    scene.luminaires.push_back(scene.luminaires[0]);
    scene.luminaires[1].displayName = "Projetor P2";
    scene.luminaires[1].contract.iesFileName = "p2.ies";
    scene.luminaires[1].photometry.tiltMode = 2;
    scene.luminaires[1].photometry.tiltFile = "P2.TLT";
    EXPECT_EQ(Error(), "Projetor P2: o arquivo IES p2.ies aponta para um TILT externo (P2.TLT), "
                       "que nao e lido");
    scene.luminaires[1].contract.iesFileName.clear();
    EXPECT_EQ(Error(),
              "Projetor P2: o arquivo IES aponta para um TILT externo (P2.TLT), que nao e lido");
}

TEST_F(RunFailures, ProgramEndsWithAnError) {
    struct Case {
        std::string tool;
        std::string script;
        std::string error;
    };
    const Case cases[] = {
        {"ies2rad", "echo 'lum1.ies: not in IES format' >&2; exit 1",
         "Downlight D1: ies2rad terminou com erro 1: lum1.ies: not in IES format"},
        {"ies2rad", "exit 3", "Downlight D1: ies2rad terminou com erro 3"},
        {"xform", "printf 'xform: quebrado\\r\\nmais' >&2; exit 1",
         "Downlight D1: xform terminou com erro 1: xform: quebrado"},
        {"oconv", "echo 'oconv: fatal - x' >&2; echo y >&2; exit 1",
         "montagem da cena (oconv): oconv terminou com erro 1: oconv: fatal - x"},
        {"oconv", "kill -9 $$", "montagem da cena (oconv): oconv terminou com erro 137"},
        {"rtrace", "echo 'rtrace: system - x' >&2; exit 2",
         "calculo (rtrace): rtrace terminou com erro 2: rtrace: system - x"},
        {"rtrace", "kill -TERM $$", "calculo (rtrace): rtrace terminou com erro 143"},
        {"rtrace", FailingCall("-ab 0", "echo direta >&2; exit 5"),
         "pontos avulsos, luz direta (rtrace): rtrace terminou com erro 5: direta"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.script);
        const ProgramFolder broken(folder.Path() / std::to_string(&c - cases));
        broken.Replace(c.tool, c.script);
        options.radianceBinFolder = Text::WidePath(broken.Path());
        EXPECT_EQ(Error(), c.error);
    }
}

TEST_F(RunFailures, FirstLoosePassFails) {
    programs.Replace("rtrace", "read line\nread second || { echo avulso >&2; exit 4; }\n"
                               "while read more; do :; done\n"
                               "n=$(grep -c . sensors.pts)\n"
                               "while [ $n -gt 0 ]; do echo 1 1 1; n=$((n-1)); done");
    EXPECT_EQ(Error(), "pontos avulsos (rtrace): rtrace terminou com erro 4: avulso");
}

TEST_F(RunFailures, ProgramIsMissing) {
    for (const auto& [tool, prefix] :
         {std::pair<std::string, std::string>{"rtrace", "calculo (rtrace): rtrace: "},
          {"oconv", "montagem da cena (oconv): oconv: "},
          {"xform", "Downlight D1: xform: "},
          {"ies2rad", "Downlight D1: ies2rad: "}}) {
        programs.Remove(tool);
        EXPECT_EQ(Error(), prefix + "o programa nao pode ser iniciado");
    }
}

TEST_F(RunFailures, FailedOctreeIsNotLeftBehind) {
    programs.Replace("oconv", "echo '#?RADIANCE'; exit 1");
    Error();
    EXPECT_FALSE(fs::exists(Work() / "scene.oct"));
}

TEST_F(RunFailures, ConvertedSourceIsMissingOrEmpty) {
    const std::string expected = "Downlight D1: ies2rad nao gerou a fonte lum1.rad";
    for (const char* script : {"exit 0", ": > lum1.rad", "echo '# so o cabecalho' > lum1.rad",
                               "printf '# cabecalho\\nvoid light x' > lum1.rad"}) {
        SCOPED_TRACE(script);
        // A source that an earlier run left must not be taken for this one's.
        fs::create_directories(Work());
        WriteBytes(Work() / "lum1.rad", "void light velho\n0\n0\n3 1 1 1\n");
        programs.Replace("ies2rad", script);
        EXPECT_EQ(Error(), expected);
    }
}

TEST_F(RunFailures, PlacedSourceIsMissingOrEmpty) {
    for (const char* script : {"exit 0", "echo '# xform -t 0 0 0'"}) {
        SCOPED_TRACE(script);
        programs.Replace("xform", script);
        EXPECT_EQ(Error(), "Downlight D1: xform nao gerou a fonte lum1_placed.rad");
    }
}

TEST_F(RunFailures, OutputIsNotOneValueAPoint) {
    const std::string expected = "a saida do rtrace nao tem um valor por ponto";
    for (const char* script : {"exit 0", "echo 1 1 1", "\"$REAL\" \"$@\" | sed 1d",
                               "\"$REAL\" \"$@\"; echo 1 1 1", "\"$REAL\" \"$@\" | cut -f 1,2"}) {
        SCOPED_TRACE(script);
        programs.Replace("rtrace", script);
        EXPECT_EQ(Error(), expected);
    }
}

TEST_F(RunFailures, LoosePointsAreNotOneValueEach) {
    scene.sensorPlanes.clear();
    programs.Replace("rtrace", "exit 0");
    EXPECT_EQ(Error(), "pontos avulsos (rtrace): a saida do rtrace nao tem um valor por ponto");
    programs.Replace("rtrace", FailingCall("-ab 0", "echo 1 1; exit 0"));
    EXPECT_EQ(Error(),
              "pontos avulsos, luz direta (rtrace): a saida do rtrace nao tem um valor por ponto");
}

TEST_F(RunFailures, LoosePointsCantBeWritten) {
    Block("points.pts");
    EXPECT_EQ(Error(), "nao foi possivel gravar os pontos avulsos");
}

TEST_F(RunFailures, SeedCantBeWritten) {
    options.processCount = 3;
    Block("seed.pts");
    EXPECT_EQ(Error(), "nao foi possivel gravar os pontos da semente");
}

TEST_F(RunFailures, SeedFails) {
    options.processCount = 3;
    programs.Replace("rtrace", FailingCall("ambient.amb", "echo escuro >&2; exit 6"));
    EXPECT_EQ(Error(), "calculo (rtrace, semente): rtrace terminou com erro 6: escuro");
}

TEST_F(RunFailures, ShareCantBeWritten) {
    options.processCount = 3;
    Block("sensors_2.pts");
    EXPECT_EQ(Error(), "nao foi possivel gravar os pontos do processo 2");
}

TEST_F(RunFailures, OneProcessOfSeveralFails) {
    options.processCount = 3;
    programs.Replace("rtrace", FailingCall("ambient_2.amb", "echo sem luz >&2; exit 9"));
    EXPECT_EQ(Error(), "calculo (rtrace, processo 2): erro 9 sem luz");
    programs.Replace("rtrace", FailingCall("ambient_3.amb", "kill -9 $$"));
    EXPECT_EQ(Error(), "calculo (rtrace, processo 3): erro 137 ");
    // The first in their order is told, not the first to fail.
    programs.Replace("rtrace",
                     FailingCall("ambient_1.amb", "sleep 0.3; echo um >&2; exit 1") + "\n" + "");
    EXPECT_EQ(Error(), "calculo (rtrace, processo 1): erro 1 um");
}

TEST_F(RunFailures, OneProcessOfSeveralCantBeStarted) {
    options.processCount = 2;
    Block("illuminance_2.txt");
    EXPECT_EQ(Error(), "calculo (rtrace, processo 2): nao foi possivel abrir o arquivo de entrada "
                       "ou de saida");
}

TEST_F(RunFailures, OutputOfAProcessCantBeRead) {
    options.processCount = 2;
    programs.Replace("rtrace", FailingCall("ambient_1.amb", "rm illuminance_1.txt; exit 0"));
    EXPECT_EQ(Error(), "nao foi possivel ler a saida do processo 1");
}

TEST_F(RunFailures, OutputsDontAddUp) {
    options.processCount = 2;
    const std::string expected = "as saidas dos processos do rtrace nao fecham com os pontos";
    programs.Replace("rtrace", FailingCall("ambient_1.amb", "exit 0"));
    EXPECT_EQ(Error(), expected);
    programs.Replace("rtrace", FailingCall("ambient_2.amb", "\"$REAL\" \"$@\"; echo 1 1 1; exit"));
    EXPECT_EQ(Error(), expected);
}

TEST_F(RunFailures, MissingSeedValuesAreNoFailure) {
    options.processCount = 2;
    programs.Replace("rtrace", "case \"$*\" in *ambient.amb*) exit 0 ;; esac\n"
                               "exec \"$REAL\" \"$@\"");
    const SimulationResult result = RunSimulation(scene, options, {}, {}, {});
    EXPECT_TRUE(result.success) << result.error;
    EXPECT_FALSE(fs::exists(Work() / "ambient.amb"));
}

TEST_F(RunFailures, LogKeepsWhatHappenedBefore) {
    programs.Replace("oconv", "exit 1");
    const SimulationResult result = RunSimulation(scene, options, {}, {}, {});
    EXPECT_EQ(result.log,
              (std::vector<std::string>{"cena: 6 superficie(s), 1 material(is), 1 luminaria(s)",
                                        "1 luminaria(s) convertida(s) e posicionada(s)"}));
    EXPECT_TRUE(result.zones.empty());
}

} // namespace
} // namespace Merivane::Simulation
