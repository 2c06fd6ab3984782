#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include <sys/resource.h>
#include <unistd.h>

#include "AddOn/CalculationSession.hpp"
#include "AddOn/Commands/CalculateLighting.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Simulation/Run/RunScenes.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Commands {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;
using Workbench::CurrentSession;

/// No file can grow beyond so many bytes, as on a disk that is full; programs that are started have
/// the same limit.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit tight = {bytes, usual.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &usual);
        std::signal(SIGXFSZ, handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*handler)(int);
    rlimit usual = {};
};

/// The process of this name that this one started and that still runs.
std::optional<pid_t> FindChild(const std::string& name) {
    for (const fs::directory_entry& entry : fs::directory_iterator("/proc")) {
        std::ifstream file(entry.path() / "stat");
        pid_t id = 0;
        std::string command;
        std::string state;
        pid_t parent = 0;
        if (file >> id >> command >> state >> parent && parent == getpid() && state != "Z" &&
            command == "(" + name + ")") {
            return id;
        }
    }
    return std::nullopt;
}

/// The main command with programs of Radiance that a test may break.
class BadDays : public Tests::CalculationSession {
protected:
    BadDays() : programs(Folder() / "Vantoro Radiance") { Begin(); }

    void Begin() {
        OpenSample();
        CurrentSession().options.ownLocation = Text::WidePath(Folder() / "Vantoro.apx");
        before = CurrentSession().project;
    }

    static void UseProcesses(int count) {
        Simulation::EngineSettings engine = Archicad::LoadEngineSettings();
        engine.maxProcesses = count;
        EXPECT_EQ(Archicad::SaveEngineSettings(engine), Host::NoError);
    }

    fs::path WorkFolder() const { return Folder() / "Vantoro" / "calculo"; }

    static Calculation Run() {
        Tests::PrepareAnswers("[" + DialogAnswer() + "]");
        return RunCalculation();
    }

    /// The project is as it was but for the activities of its Zones.
    void ExpectUntouched() const {
        Workbench::Project now = CurrentSession().project;
        now.data = before.data;
        EXPECT_TRUE(now == before);
        EXPECT_TRUE(Workbench::UndoNames().empty());
    }

    /// The run's end stands in the report window and in the report's file.
    void ExpectTold(const std::string& text) const {
        EXPECT_EQ(Tests::ReportWindow().back(), "!Vantoro: " + text);
        const std::string report = Tests::ReadBytes(Folder() / "Vantoro" / "relatorio.txt");
        EXPECT_NE(report.find(text), std::string::npos) << report;
    }

    void ExpectFailure(const std::string& error) {
        EXPECT_EQ(Run().end, CalculationEnd::Failed);
        ExpectTold("O calculo falhou: " + error + "\nArquivos em: " + WorkFolder().string());
        ExpectUntouched();
    }

    Tests::ProgramFolder programs;
    Workbench::Project before;
};

TEST_F(BadDays, OfAProgramThatIsBrokenAreToldByItsName) {
    const struct {
        const char* tool;
        const char* script;
        const char* error;
    } cases[] = {
        {"ies2rad", "echo 'bad syntax' >&2; exit 1",
         "COD-1: ies2rad terminou com erro 1: bad syntax"},
        {"xform", "exit 2", "COD-1: xform terminou com erro 2"},
        {"oconv", "kill -9 $$", "montagem da cena (oconv): oconv terminou com erro 137"},
        {"rtrace", "echo 'system - out of memory' >&2; exit 3",
         "calculo (rtrace): rtrace terminou com erro 3: system - out of memory"},
        {"rtrace", "exit 0", "a saida do rtrace nao tem um valor por ponto"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.error);
        Begin();
        programs.Replace(c.tool, c.script);
        ExpectFailure(c.error);
        programs.Replace(c.tool, "exec \"$REAL\" \"$@\"");
    }
    Begin();
    EXPECT_EQ(Run().end, CalculationEnd::Done); // nothing is left behind that breaks the next run
}

TEST_F(BadDays, OfAKilledRadianceAreTold) {
    Simulation::EngineSettings engine = Simulation::ProfileSettings(2);
    engine.divisions = 8192; // minutes, were it not killed
    engine.bounces = 6;
    engine.maxProcesses = 1;
    ASSERT_EQ(Archicad::SaveEngineSettings(engine), Host::NoError);
    before = CurrentSession().project;
    int killed = 0;
    CurrentSession().options.cancelAsked = [&killed] {
        if (const std::optional<pid_t> rtrace = FindChild("rtrace")) {
            killed += kill(*rtrace, SIGKILL) == 0 ? 1 : 0;
        }
        return false;
    };
    ExpectFailure("calculo (rtrace): rtrace terminou com erro 137");
    EXPECT_EQ(killed, 1);
}

TEST_F(BadDays, OfAUserWhoStopsItAtAnyStageLeaveNothing) {
    const std::string slow = "sleep 0.5\nexec \"$REAL\" \"$@\"";
    programs.Replace("ies2rad", slow);
    programs.Replace("rtrace", slow);
    for (std::size_t stage = 1; stage <= 4; ++stage) {
        SCOPED_TRACE(stage);
        Begin();
        UseProcesses(2); // a seed first
        CurrentSession().options.onProgress = [stage](const Workbench::ProcessWindow& window) {
            if (window.phases.size() == stage) {
                CurrentSession().processWindows.back().cancelled = true;
            }
        };
        Tests::PrepareAnswers(R"([{"dialogo": 32620, "itens": []}])"); // with observers of glare
        EXPECT_EQ(RunCalculation().end, CalculationEnd::Cancelled);
        EXPECT_EQ(Tests::ReportWindow().back(), "Vantoro: calculo cancelado - nada foi desenhado.");
        ASSERT_EQ(CurrentSession().processWindows.size(), 1U);
        EXPECT_EQ(CurrentSession().processWindows[0].phases.size(), stage);
        EXPECT_FALSE(CurrentSession().processWindows[0].open);
        EXPECT_FALSE(FindChild("rtrace"));
        ExpectUntouched();
    }
}

TEST_F(BadDays, OfAWorkFolderThatCannotBeWrittenAreTold) {
    fs::create_directories(WorkFolder() / "materials.rad" / "x"); // refuses root too
    ExpectFailure("nao foi possivel gravar os arquivos da cena");
    fs::remove_all(WorkFolder());
    Tests::WriteBytes(WorkFolder(), "a file where the folder should be");
    Begin();
    ExpectFailure("nao foi possivel criar a pasta de trabalho do calculo");
}

TEST_F(BadDays, OfADiskThatIsFullFromTheStartAreTold) {
    const FullDisk disk(0);
    EXPECT_EQ(Run().end, CalculationEnd::Failed);
    EXPECT_EQ(
        Tests::ReportWindow().back(),
        "!Vantoro: O calculo falhou: nao foi possivel gravar os arquivos da cena\nArquivos em: " +
            WorkFolder().string());
    ExpectUntouched();
}

TEST_F(BadDays, OfADiskThatFillsUpOnTheWayAreTold) {
    Lines errors;
    CalculationEnd end = CalculationEnd::Failed;
    for (int step = 1; end == CalculationEnd::Failed && step < 20; ++step) {
        SCOPED_TRACE(step);
        Begin();
        std::optional<FullDisk> disk;
        int steps = 0;
        CurrentSession().options.onProgress = [&](const Workbench::ProcessWindow&) {
            if (++steps == step) {
                disk.emplace(0);
            }
        };
        const Calculation calculation = Run();
        disk.reset();
        end = calculation.end;
        if (end == CalculationEnd::Failed) {
            EXPECT_EQ(Tests::ReportWindow().back(),
                      "!Vantoro: O calculo falhou: " + calculation.result.error +
                          "\nArquivos em: " + WorkFolder().string());
            ExpectUntouched();
            errors.push_back(calculation.result.error);
        }
    }
    EXPECT_EQ(end, CalculationEnd::Done); // every value stood before the disk was full
    errors.erase(std::unique(errors.begin(), errors.end()), errors.end());
    ASSERT_EQ(errors.size(), 4U) << ::testing::PrintToString(errors);
    EXPECT_EQ(errors[0], "nao foi possivel gravar os arquivos da cena");
    EXPECT_EQ(errors[1], "nao foi possivel gravar o IES de COD-1");
    EXPECT_TRUE(errors[2].starts_with("COD-1: xform terminou com erro ")) << errors[2];
    EXPECT_TRUE(errors[3].starts_with("calculo (rtrace): rtrace terminou com erro ")) << errors[3];
}

} // namespace
} // namespace Merivane::Commands
