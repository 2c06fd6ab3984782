#include <algorithm>
#include <chrono>
#include <filesystem>
#include <set>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "Catalog/Json.hpp"
#include "Program/ProgramRun.hpp"
#include "Program/SampleScene.hpp"
#include "Support/Places.hpp"

namespace Merivane::Tests {

namespace {

/// Names of everything in a folder; empty when there is none.
std::set<std::string> NamesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    std::error_code none;
    for (const auto& entry : std::filesystem::directory_iterator(folder, none)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

const std::set<std::string> AllOutputs = {"resultado.json", "Sala.csv", "planta.svg", "planta.pdf",
                                          "planta.png"};

std::string RealTool(const std::string& tool) {
    return ShellWord((BuildFolder() / "Vantoro Radiance" / "bin" / tool).string());
}

/// A folder with the sample scene and a place for its results.
struct SampleRun {
    TemporaryFolder folder;
    std::filesystem::path scene = WriteSampleScene(folder.Path());
    std::filesystem::path out = folder.Path() / "saida";
    std::filesystem::path temporary = folder.Path() / "tmp"; ///< the system's, where it is set

    SampleRun() { std::filesystem::create_directory(temporary); }

    std::string SetTemporary() const {
        return "export TMPDIR=" + ShellWord(temporary.string()) + ";";
    }

    /// How a refusal ends that names the folder with the files of the calculation.
    std::string FilesSentence() const {
        return " (arquivos do cálculo em \"" + (temporary / "vantoro-1").string() + "\").\n";
    }

    std::vector<std::string> Arguments(const std::vector<std::string>& more = {}) const {
        std::vector<std::string> arguments = {"simular", scene.string(), "--saida", out.string()};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return arguments;
    }
};

/// Calls a copy of the program with a Radiance program replaced; empty script = removed.
ProgramEnd RunWithTool(const SampleRun& run, const std::string& tool, const std::string& script) {
    const TemporaryFolder place;
    ProgramCall call;
    call.program = CopyProgram(place.Path());
    call.prelude = "PATH=/usr/bin:/bin; unset RADIANCE;" + run.SetTemporary();
    ReplaceTool(call.program, tool, script);
    return RunVantoro(run.Arguments(), call);
}

/// `rtrace` that is the real one for the version and the self-test, and otherwise runs `script`.
std::string RtraceThat(const std::string& script) {
    // The self-test's scene has no material called Branco.
    return "if [ \"$1\" = -version ] || ! grep -q Branco materials.rad; then exec " +
           RealTool("rtrace") + " \"$@\"; fi\n" + script + "\n";
}

/// True when within 5 s no process of the test with this mark is left: one that was killed needs a
/// moment to go.
bool AllGone(const std::string& mark) {
    for (int i = 0; i < 500 && ProcessesWith(mark) > 0; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return ProcessesWith(mark) == 0;
}

/// Shell commands that send the program a signal once the file `begun` is there, and note the time
/// of it in the file `asked`. `mark` stands in the environment of all.
std::string WatcherThatSends(const std::string& signal, const std::string& mark,
                             const std::string& begun, const std::string& asked) {
    return "export " + mark + "; me=$$; (while [ ! -e " + begun +
           " ]; do sleep 0.05; done; date +%s.%N >" + asked + "; kill -" + signal +
           " $me) >/dev/null 2>&1 &";
}

/// Seconds since 1970, as `date +%s.%N` gives them.
double SystemSeconds() {
    return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}

void ExpectNothingWritten(const SampleRun& run) {
    EXPECT_EQ(NamesIn(run.out), std::set<std::string>{});
}

} // namespace

TEST(Simulate, WritesNumbersTablesAndPlans) {
    const SampleRun run;
    const ProgramEnd end = RunVantoro(run.Arguments());
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(NamesIn(run.out), AllOutputs);

    Catalog::JsonValue result;
    ASSERT_TRUE(Catalog::JsonParse(ReadBytes(run.out / "resultado.json"), result).ok);
    ASSERT_NE(result.Find("planos"), nullptr);
    ASSERT_EQ(result.Find("planos")->items.size(), 1U);
    const Catalog::JsonValue& plane = result.Find("planos")->items[0];
    EXPECT_EQ(plane.StringOr("nome", ""), "Sala");
    const Catalog::JsonValue* statistics = plane.Find("estatisticas");
    ASSERT_NE(statistics, nullptr);
    EXPECT_GT(statistics->NumberOr("Em", 0), 50.0);
    EXPECT_LT(statistics->NumberOr("Emin", 1e9), statistics->NumberOr("Em", 0));
    EXPECT_NEAR(statistics->NumberOr("U0", 0),
                statistics->NumberOr("Emin", 0) / statistics->NumberOr("Em", 1), 1e-12);
    EXPECT_EQ(result.Find("pontos")->items.size(), 1U);
    EXPECT_NE(end.output.find("Planta: " + (run.out / "planta.png").string()), std::string::npos);
}

TEST(Simulate, TellsTheStagesAsLinesWhereThereIsNoTerminal) {
    const SampleRun run;
    const ProgramEnd end = RunVantoro(run.Arguments());
    EXPECT_EQ(end.error, "Preparando a cena (luminárias e geometria)\nPontos de cálculo (" +
                             std::to_string(13 * 9 + 1 + 4) + ")\nObservadores (UGR)\n");
}

TEST(Simulate, IsSilentWhenAskedTo) {
    const SampleRun run;
    const ProgramEnd end = RunVantoro(run.Arguments({"--silencioso"}));
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "");
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(NamesIn(run.out), AllOutputs);
}

TEST(Simulate, GivesAProgramTheResultDocumentOnStandardOutput) {
    const SampleRun run;
    const ProgramEnd end = RunVantoro(run.Arguments({"--json"}));
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(end.output, ReadBytes(run.out / "resultado.json"));
}

TEST(Simulate, RepeatsByteForByteWhenAskedTo) {
    const SampleRun first;
    const SampleRun second;
    EXPECT_EQ(RunVantoro(first.Arguments({"--repetivel"})).status, 0);
    EXPECT_EQ(RunVantoro(second.Arguments({"--repetivel"})).status, 0);
    for (const std::string& name : AllOutputs) {
        if (name != "resultado.json") { // it tells the seconds that the run took
            EXPECT_EQ(ReadBytes(first.out / name), ReadBytes(second.out / name)) << name;
        }
    }
}

TEST(Simulate, KeepsAWorkFolderThatTheUserNamedAndRemovesItsOwn) {
    const SampleRun run;
    const std::filesystem::path work = run.folder.Path() / "trabalho";
    EXPECT_EQ(RunVantoro(run.Arguments({"--pasta-de-trabalho", work.string()})).status, 0);
    EXPECT_EQ(NamesIn(work).count("illuminance.txt"), 1U);

    ProgramCall call;
    call.prelude = run.SetTemporary();
    EXPECT_EQ(RunVantoro(run.Arguments(), call).status, 0);
    EXPECT_EQ(NamesIn(run.temporary), std::set<std::string>{});
}

TEST(Simulate, WorksWhereAnotherRunAndAnotherUserLeftTheirFolders) {
    const SampleRun run;
    WriteBytes(run.temporary / "Vantoro", "nothing can be made below it");
    std::filesystem::create_directory(run.temporary / "vantoro-1");
    WriteBytes(run.temporary / "vantoro-2", "a file");
    ProgramCall call;
    call.prelude = run.SetTemporary();
    const ProgramEnd end = RunVantoro(run.Arguments(), call);
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(NamesIn(run.temporary), (std::set<std::string>{"Vantoro", "vantoro-1", "vantoro-2"}));
    EXPECT_EQ(NamesIn(run.temporary / "vantoro-1"), std::set<std::string>{});
}

TEST(Simulate, RefusesATemporaryFolderThatCannotBeWrittenIn) {
    const SampleRun run;
    const std::string place = (run.scene / "tmp").string(); // below a file
    ProgramCall call;
    call.prelude = "export TMPDIR=" + ShellWord(place) + ";";
    const ProgramEnd end = RunVantoro(run.Arguments(), call);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "vantoro: não foi possível criar uma pasta de trabalho em \"" + place + "\".\n");
    ExpectNothingWritten(run);
}

TEST(Simulate, FailsWhenItsAnswerCannotBeWritten) {
    const SampleRun run;
    ProgramCall call;
    call.output = "/dev/full";
    const ProgramEnd end = RunVantoro(run.Arguments({"--json"}), call);
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: não foi possível escrever na saída padrão.\n");
    EXPECT_EQ(NamesIn(run.out), AllOutputs); // which were whole before
}

TEST(Simulate, LeavesOtherFilesOfTheOutputFolderAlone) {
    const SampleRun run;
    std::filesystem::create_directories(run.out);
    WriteBytes(run.out / "notas.txt", "minhas");
    WriteBytes(run.out / "planta.png", "velha");
    EXPECT_EQ(RunVantoro(run.Arguments()).status, 0);
    EXPECT_EQ(ReadBytes(run.out / "notas.txt"), "minhas");
    EXPECT_NE(ReadBytes(run.out / "planta.png"), "velha");
}

TEST(Simulate, RefusesADocumentThatCannotBeReadAndWritesNothing) {
    const SampleRun run;
    std::filesystem::remove(run.scene);
    const ProgramEnd end = RunVantoro(run.Arguments());
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.output, "");
    EXPECT_NE(end.error.find("cena.json"), std::string::npos) << end.error;
    EXPECT_EQ(std::count(end.error.begin(), end.error.end(), '\n'), 1) << end.error;
    ExpectNothingWritten(run);
}

TEST(Simulate, RefusesAnOutputFolderThatCannotBeMade) {
    SampleRun run;
    WriteBytes(run.folder.Path() / "arquivo", "x");
    run.out = run.folder.Path() / "arquivo" / "saida";
    const ProgramEnd end = RunVantoro(run.Arguments());
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: não foi possível criar a pasta \"" + run.out.string() + "\".\n");
}

TEST(Simulate, RefusesAWorkFolderThatCannotBeMade) {
    const SampleRun run;
    WriteBytes(run.folder.Path() / "arquivo", "x");
    const std::string work = (run.folder.Path() / "arquivo" / "trabalho").string();
    const ProgramEnd end = RunVantoro(run.Arguments({"--pasta-de-trabalho", work}));
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: não foi possível criar a pasta \"" + work + "\".\n");
    ExpectNothingWritten(run);
}

TEST(Simulate, LeavesNothingHalfWrittenOnAFullDisk) {
    const SampleRun run;
    ProgramCall call;
    // No file may grow past 16 blocks of 512 bytes: the octree fits, the pictures do not.
    call.prelude = "trap '' XFSZ; ulimit -f 16;" + run.SetTemporary();
    const ProgramEnd end = RunVantoro(run.Arguments({"--silencioso"}), call);
    EXPECT_EQ(end.status, 1);
    EXPECT_TRUE(
        end.error.starts_with("vantoro: não foi possível gravar \"" + run.out.string() + "/"))
        << end.error;
    EXPECT_TRUE(end.error.ends_with("\" (disco cheio ou sem permissão); nada foi gravado" +
                                    run.FilesSentence()))
        << end.error;
    EXPECT_EQ(std::count(end.error.begin(), end.error.end(), '\n'), 1) << end.error;
    ExpectNothingWritten(run);
    // What was calculated is not lost.
    EXPECT_EQ(NamesIn(run.temporary / "vantoro-1").count("illuminance.txt"), 1U);
}

TEST(Simulate, WritesNothingWhereAFolderStandsInThePlaceOfAResult) {
    const SampleRun run;
    std::filesystem::create_directories(run.out / "planta.png");
    WriteBytes(run.out / "Sala.csv", "velha");
    const ProgramEnd end = RunVantoro(run.Arguments({"--silencioso"}));
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.error.find("não foi possível gravar \"" + (run.out / "planta.png").string()),
              std::string::npos)
        << end.error;
    EXPECT_EQ(NamesIn(run.out), (std::set<std::string>{"planta.png", "Sala.csv"}));
    EXPECT_EQ(ReadBytes(run.out / "Sala.csv"), "velha");
}

TEST(Simulate, SaysThatThereIsNoRadiance) {
    const SampleRun run;
    const ProgramEnd end = RunWithTool(run, "rtrace", "");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "vantoro: Radiance não encontrado; veja \"vantoro verificar-radiance\".\n");
    ExpectNothingWritten(run);
}

TEST(Simulate, NamesTheProgramThatAnInstallationLacks) {
    const SampleRun run;
    const ProgramEnd end = RunWithTool(run, "oconv", "");
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.error.find("vantoro: instalação do Radiance incompleta em \""),
              std::string::npos);
    EXPECT_NE(end.error.find("\": falta(m) oconv.\n"), std::string::npos) << end.error;
    ExpectNothingWritten(run);
}

TEST(Simulate, RefusesAnEngineThatCalculatesWrongly) {
    const SampleRun run;
    const ProgramEnd end = RunWithTool(
        run, "rtrace",
        "if [ \"$1\" = -version ]; then exec " + RealTool("rtrace") + " -version; fi\n" +
            RealTool("rtrace") + " \"$@\" | awk '{ print $1 * 0.36, $2 * 0.36, $3 * 0.36 }'\n");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "vantoro: o Radiance calcula errado: o teste deu 3,24 lx onde o exato é "
                         "8,99 lx; reinstale-o e confira com \"vantoro verificar-radiance\"" +
                             run.FilesSentence());
    ExpectNothingWritten(run);
}

TEST(Simulate, RefusesAnEngineThatDoesNotCalculate) {
    const SampleRun run;
    const ProgramEnd end = RunWithTool(run, "oconv", "echo 'oconv: fatal - nada' >&2\nexit 1\n");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "vantoro: o teste do Radiance não pôde ser feito: montagem da cena (oconv): "
              "oconv terminou com erro 1: oconv: fatal - nada" +
                  run.FilesSentence());
    EXPECT_EQ(NamesIn(run.temporary / "vantoro-1"), std::set<std::string>{"teste_radiance"});
    ExpectNothingWritten(run);
}

TEST(Simulate, SaysWhichProgramWasKilledFromOutside) {
    const SampleRun run;
    const ProgramEnd end = RunWithTool(run, "rtrace", RtraceThat("kill -9 $$"));
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, "Preparando a cena (luminárias e geometria)\nPontos de cálculo (122)\n"
                         "vantoro: o cálculo falhou: calculo (rtrace): rtrace terminou com "
                         "erro 137" +
                             run.FilesSentence());
    EXPECT_EQ(NamesIn(run.temporary / "vantoro-1").count("scene.oct"), 1U);
    ExpectNothingWritten(run);
}

TEST(Simulate, StopsOnInterruptWithinFiveSecondsAndLeavesNoChild) {
    for (const std::string signal : {"INT", "TERM", "HUP"}) {
        SCOPED_TRACE(signal);
        const SampleRun run;
        const TemporaryFolder place;
        const std::string mark = "VANTORO_TEST_MARK=" + place.Path().string();
        const std::string begun = ShellWord((place.Path() / "begun").string());
        const std::string asked = ShellWord((place.Path() / "asked").string());
        ProgramCall call;
        call.program = CopyProgram(place.Path());
        ReplaceTool(call.program, "rtrace", RtraceThat("touch " + begun + "\nsleep 60"));
        call.prelude = run.SetTemporary() + WatcherThatSends(signal, mark, begun, asked);
        const ProgramEnd end = RunVantoro(run.Arguments({"--silencioso"}), call);
        const double ended = SystemSeconds();
        EXPECT_EQ(end.status, 130);
        EXPECT_EQ(end.error, "vantoro: cálculo cancelado; nada foi gravado.\n");
        EXPECT_LT(ended - std::stod("0" + ReadBytes(place.Path() / "asked")), 5.0);
        EXPECT_TRUE(AllGone(mark));
        EXPECT_EQ(NamesIn(run.temporary), std::set<std::string>{});
        ExpectNothingWritten(run);
    }
}

TEST(Simulate, GoesOnWhereItWasStartedWithTheInterruptIgnored) {
    const SampleRun run;
    const TemporaryFolder place;
    ProgramCall call;
    call.program = CopyProgram(place.Path());
    ReplaceTool(call.program, "rtrace",
                RtraceThat("kill -INT $PPID\nexec " + RealTool("rtrace") + " \"$@\""));
    call.prelude = "trap '' INT;";
    EXPECT_EQ(RunVantoro(run.Arguments({"--silencioso"}), call).status, 0);
    EXPECT_EQ(NamesIn(run.out), AllOutputs);
}

} // namespace Merivane::Tests
