#include <algorithm>
#include <chrono>
#include <fstream>
#include <set>
#include <thread>

#include <gtest/gtest.h>

#include "RunScenes.hpp"
#include "Simulation/Run/RunSimulation.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Simulation {
namespace {

namespace fs = std::filesystem;
using namespace Merivane::Tests;
using Seconds = std::chrono::duration<double>;

struct Step {
    SimulationStage stage;
    double fraction;

    bool operator==(const Step&) const = default;
};

// True while a process whose command line holds `text` is alive.
bool ProcessLives(const std::string& text) {
    for (const fs::directory_entry& entry : fs::directory_iterator("/proc")) {
        std::ifstream file(entry.path() / "cmdline");
        std::string line;
        std::getline(file, line); // throws nothing where the process ends meanwhile
        std::replace(line.begin(), line.end(), '\0', ' ');
        if (line.find(text) != std::string::npos) {
            return true;
        }
    }
    return false;
}

// Programs of which one sleeps forever; its script's path tells its process from all others.
struct SleepingPrograms {
    SleepingPrograms(const fs::path& folder, const std::string& tool, const std::string& calls)
        : programs(folder) {
        programs.Replace(tool, "case \"$*\" in *'" + calls +
                                   "'*) while :; do sleep 0.1; done ;; "
                                   "esac\nexec \"$REAL\" \"$@\"");
    }

    ProgramFolder programs;
};

TEST(RunProgress, TellsEachStageFromItsBeginning) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(1.0);
    scene.luminaires.push_back(scene.luminaires[0]);
    scene.luminaires[1].x = 1.0;
    scene.points = {{1, 1, 1, 0, 0, 1}};
    std::vector<Step> steps;
    const auto progress = [&](SimulationStage stage, double fraction) {
        if (steps.empty() || steps.back() != Step{stage, fraction}) {
            steps.push_back({stage, fraction});
        }
    };
    EXPECT_TRUE(RunSimulation(scene, RunOptions(folder.Path()), {}, {}, progress).success);
    ASSERT_GE(steps.size(), 5u);
    EXPECT_EQ(steps[0], (Step{SimulationStage::Preparing, 0.0}));
    EXPECT_EQ(steps[1], (Step{SimulationStage::Preparing, 1.0 / 3.0}));
    EXPECT_EQ(steps[2], (Step{SimulationStage::Preparing, 1.0}));
    EXPECT_EQ(steps[3], (Step{SimulationStage::Points, 0.0}));
    EXPECT_EQ(std::count(steps.begin(), steps.end(), Step{SimulationStage::Observers, 0.0}), 1);
    EXPECT_EQ(steps.back().stage, SimulationStage::Observers);
    for (std::size_t i = 1; i < steps.size(); ++i) {
        EXPECT_TRUE(
            steps[i].stage > steps[i - 1].stage ||
            (steps[i].stage == steps[i - 1].stage && steps[i].fraction >= steps[i - 1].fraction));
    }
}

TEST(RunProgress, OfSeveralProcessesGoesThroughTheSeed) {
    const TemporaryFolder folder;
    SimulationOptions options = RunOptions(folder.Path());
    options.processCount = 2;
    std::vector<Step> steps;
    const auto progress = [&](SimulationStage stage, double fraction) {
        if (fraction == 0.0 || fraction == 1.0) {
            steps.push_back({stage, fraction});
        }
    };
    EXPECT_TRUE(RunSimulation(SmallRoom(1.0), options, {}, {}, progress).success);
    steps.erase(std::unique(steps.begin(), steps.end()), steps.end());
    EXPECT_EQ(steps, (std::vector<Step>{{SimulationStage::Preparing, 0.0},
                                        {SimulationStage::Preparing, 1.0},
                                        {SimulationStage::Seed, 0.0},
                                        {SimulationStage::Seed, 1.0},
                                        {SimulationStage::Points, 0.0},
                                        {SimulationStage::Points, 1.0}}));
}

TEST(RunProgress, CountsTheLinesOfAllOutputs) {
    const TemporaryFolder folder;
    const ProgramFolder programs(folder.Path() / "radiance");
    // Each process writes a quarter of its values, waits until the test has seen them, and goes on.
    programs.Replace("rtrace", "case \"$*\" in *ambient.amb*) exec \"$REAL\" \"$@\" ;; esac\n"
                               "head -c 0; for i in 1 2 3; do echo 1 1 1; done\n"
                               "while [ ! -e visto ]; do sleep 0.05; done\n"
                               "for i in 4 5 6 7 8 9 10 11 12; do echo 1 1 1; done");
    Scene scene = SmallRoom(1.0);
    CalculationGrid& grid = scene.sensorPlanes[0].grid;
    grid.columns = 4;
    grid.rows = 6;
    grid.stepX = 0.9;
    grid.stepY = 0.5;
    grid.active.assign(24, true);
    grid.task.assign(24, true);
    SimulationOptions options = RunOptions(folder.Path() / "t");
    options.radianceBinFolder = Text::WidePath(programs.Path());
    options.processCount = 2;
    std::set<double> fractions;
    const auto progress = [&](SimulationStage stage, double fraction) {
        if (stage == SimulationStage::Points) {
            fractions.insert(fraction);
            if (fraction == 0.25) {
                WriteBytes(folder.Path() / "t" / "visto", "");
            }
        }
    };
    const SimulationResult result = RunSimulation(scene, options, {}, {}, progress);
    EXPECT_TRUE(result.success) << result.error;
    EXPECT_TRUE(fractions.contains(0.25)); // 6 of 24 lines
    EXPECT_TRUE(fractions.contains(0.0));
    EXPECT_TRUE(fractions.contains(1.0));
}

TEST(RunProgress, CountsLoosePointsTwice) {
    const TemporaryFolder folder;
    const ProgramFolder programs(folder.Path() / "radiance");
    // The direct pass writes one of its two values and waits until the test has seen it.
    programs.Replace("rtrace", "echo 1 1 1\ncase \"$*\" in *'-ab 0'*)\n"
                               "for i in $(seq 100); do [ -e visto ] || sleep 0.1; done ;; esac\n"
                               "echo 1 1 1");
    SimulationOptions options = RunOptions(folder.Path() / "t");
    options.radianceBinFolder = Text::WidePath(programs.Path());
    Scene scene = SmallRoom(1.0);
    scene.sensorPlanes.clear();
    scene.points = {{1, 1, 1, 0, 0, 1}, {2, 1, 1, 0, 0, 1}};
    bool seen = false;
    const auto progress = [&](SimulationStage stage, double fraction) {
        if (stage == SimulationStage::Observers && fraction == 0.75) {
            seen = true; // 3 of 4 lines
            WriteBytes(folder.Path() / "t" / "visto", "");
        }
    };
    const SimulationResult result = RunSimulation(scene, options, {}, {}, progress);
    EXPECT_TRUE(result.success) << result.error;
    EXPECT_TRUE(seen);
}

TEST(RunProgress, CountsAtMostTwiceASecond) {
    const TemporaryFolder folder;
    const ProgramFolder programs(folder.Path() / "radiance");
    programs.Replace("rtrace", "sleep 1.3; exec \"$REAL\" \"$@\"");
    SimulationOptions options = RunOptions(folder.Path() / "t");
    options.radianceBinFolder = Text::WidePath(programs.Path());
    int reports = 0;
    const auto progress = [&](SimulationStage stage, double) {
        reports += stage == SimulationStage::Points ? 1 : 0;
    };
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_TRUE(RunSimulation(SmallRoom(2.0), options, {}, {}, progress).success);
    const Seconds elapsed = std::chrono::steady_clock::now() - begin;
    EXPECT_GE(reports, 3);                         // the stage's 0, then after 0, 0.5 and 1 s
    EXPECT_LE(reports, 2 + elapsed.count() / 0.5); // 0, the first count, one each half second
}

TEST(RunCancel, StopsAtEveryStageWithinSecondsAndLeavesNoProcess) {
    struct Case {
        std::string tool;
        std::string calls; ///< a word of the calls that never end
        std::int32_t processes;
        std::string error;
    };
    const Case cases[] = {
        {"ies2rad", "lum1", 1, "Luminária: calculo cancelado"},
        {"xform", "lum1", 1, "Luminária: calculo cancelado"},
        {"oconv", "materials.rad", 1, "montagem da cena (oconv): calculo cancelado"},
        {"rtrace", "scene.oct", 1, "calculo (rtrace): calculo cancelado"},
        {"rtrace", "ambient.amb", 3, "calculo (rtrace, semente): calculo cancelado"},
        {"rtrace", "ambient_2.amb", 3, "calculo cancelado"},
        {"rtrace", "-ab 0", 1, "pontos avulsos, luz direta (rtrace): calculo cancelado"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.error);
        const TemporaryFolder folder;
        const SleepingPrograms sleeping(folder.Path() / "radiance", c.tool, c.calls);
        SimulationOptions options = RunOptions(folder.Path() / "t");
        options.radianceBinFolder = Text::WidePath(sleeping.programs.Path());
        options.processCount = c.processes;
        Scene scene = SmallRoom(1.5);
        scene.points = {{1, 1, 1, 0, 0, 1}};

        // The user stops as soon as the program that never ends is there.
        const std::string program = (sleeping.programs.Path() / c.tool).string();
        const auto begin = std::chrono::steady_clock::now();
        std::chrono::steady_clock::time_point asked{};
        const auto cancel = [&] {
            const auto now = std::chrono::steady_clock::now();
            if (asked == std::chrono::steady_clock::time_point{} && ProcessLives(program) &&
                ProcessLives(c.calls)) {
                asked = now;
            }
            // Real programs that are still at work end in much less than this.
            const bool stop = asked != std::chrono::steady_clock::time_point{} &&
                              now - asked > std::chrono::milliseconds(300);
            return stop || now - begin > std::chrono::seconds(60);
        };
        const SimulationResult result = RunSimulation(scene, options, cancel, {}, {});
        const Seconds waited = std::chrono::steady_clock::now() - asked;
        EXPECT_FALSE(result.success);
        EXPECT_TRUE(result.cancelled);
        EXPECT_EQ(result.error, c.error);
        EXPECT_LT(waited.count(), 5.0);
        EXPECT_FALSE(ProcessLives(program));
        EXPECT_FALSE(ProcessLives((folder.Path() / "t").string()));
    }
}

TEST(RunCancel, StopsARealCalculation) {
    const TemporaryFolder folder;
    Scene scene = SmallRoom(0.1);
    SimulationOptions options = RunOptions(folder.Path());
    options.engine = ProfileSettings(2);
    options.processCount = 2;
    const auto begin = std::chrono::steady_clock::now();
    const SimulationResult result = RunSimulation(
        scene, options,
        [&] { return std::chrono::steady_clock::now() - begin > std::chrono::seconds(1); }, {}, {});
    const Seconds elapsed = std::chrono::steady_clock::now() - begin;
    EXPECT_TRUE(result.cancelled);
    EXPECT_TRUE(result.zones.empty());
    EXPECT_LT(elapsed.count(), 6.0);
}

TEST(RunCancel, NeedsNoProgressToBeHeard) {
    const TemporaryFolder folder;
    const SimulationResult result =
        RunSimulation(SmallRoom(1.0), RunOptions(folder.Path()), [] { return true; }, {}, {});
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(result.error, "Luminária: calculo cancelado");
}

TEST(RunCancel, LetsTheNextRunIn) {
    const TemporaryFolder folder;
    RunSimulation(SmallRoom(1.0), RunOptions(folder.Path()), [] { return true; }, {}, {});
    EXPECT_TRUE(RunSimulation(SmallRoom(2.0), RunOptions(folder.Path()), {}, {}, {}).success);
}

} // namespace
} // namespace Merivane::Simulation
