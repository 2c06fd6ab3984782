#include <algorithm>

#include <gtest/gtest.h>

#include "Radiance/Installation.hpp"
#include "RunScenes.hpp"
#include "Simulation/Run/RunSimulation.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

namespace Merivane::Simulation {
namespace {

namespace fs = std::filesystem;
using namespace Merivane::Tests;
using Lines = std::vector<std::string>;

// Real programs, each of which notes how it was called before it does its work.
class RunCalls : public testing::Test {
protected:
    RunCalls() : programs(folder.Path() / "radiance"), options(RunOptions(Work())) {
        for (const std::string& tool : Radiance::RequiredTools()) {
            programs.Replace(tool, "echo \"" + tool + " $*\" >> chamadas.txt\n" +
                                       "echo \"$PWD $RAYPATH\" >> lugares.txt\n"
                                       "exec \"$REAL\" \"$@\"");
        }
        options.radianceBinFolder = Text::WidePath(programs.Path());
        options.useEngineSettings = false;
        options.quality = 0;
    }

    fs::path Work() const { return folder.Path() / "trabalho"; }

    Lines Calls() const {
        const SimulationResult result = RunSimulation(scene, options, {}, {}, {});
        EXPECT_TRUE(result.success) << result.error;
        return LinesOf(Work() / "chamadas.txt");
    }

    TemporaryFolder folder;
    ProgramFolder programs;
    Scene scene = SmallRoom(1.0);
    SimulationOptions options;
};

const std::string Aiming = "-rz 0.000000 -ry 0.000000 -rz 0.000000 "
                           "-t 0.000000 0.000000 0.000000 -rz 0.000000 ";
const std::string Meter = "rtrace -h -I+ -dj 0 -lr 8 ";
const std::string Ambient = "-ad 512 -as 128 -ar 64 -aa 0.25 -lw 0.005 ";

TEST_F(RunCalls, FollowOneAnotherInOneProcess) {
    scene.luminaires.resize(3, scene.luminaires[0]);
    scene.luminaires[1].x = 1.0;
    scene.luminaires[2].contract.maintenanceFactor = 0.5;
    scene.points = {{1, 1, 1, 0, 0, 1}};
    EXPECT_EQ(
        Calls(),
        (Lines{"ies2rad -dm -c 1 1 1 -m 1.000000 -o lum1 lum1.ies",
               "xform -t 0 0 -0.000500 " + Aiming + "-t 2.000000 1.500000 2.790000 lum1.rad",
               "xform -t 0 0 -0.000500 " + Aiming + "-t 1.000000 1.500000 2.790000 lum1.rad",
               "ies2rad -dm -c 1 1 1 -m 0.500000 -o lum3 lum3.ies",
               "xform -t 0 0 -0.000500 " + Aiming + "-t 2.000000 1.500000 2.790000 lum3.rad",
               "oconv materials.rad geometry.rad lum1_placed.rad lum2_placed.rad lum3_placed.rad",
               Meter + "-ab 1 " + Ambient + "-x 1 scene.oct",
               Meter + "-ab 1 " + Ambient + "-x 1 scene.oct",
               Meter + "-ab 0 " + Ambient + "-x 1 scene.oct"}));
}

TEST_F(RunCalls, GiveEachOfSeveralProcessesAnAmbientFileOfItsOwn) {
    options.processCount = 3;
    Lines calls = Calls();
    ASSERT_EQ(calls.size(), 7u);
    std::sort(calls.begin() + 4, calls.end()); // they run at once
    const std::string call = Meter + "-ab 1 " + Ambient + "-x 1 -af ";
    EXPECT_EQ(Lines(calls.begin() + 3, calls.end()),
              (Lines{call + "ambient.amb scene.oct", call + "ambient_1.amb scene.oct",
                     call + "ambient_2.amb scene.oct", call + "ambient_3.amb scene.oct"}));
}

TEST_F(RunCalls, StandInTheWorkFolderWhichRaypathNamesFirst) {
    options.processCount = 2;
    Calls();
    const std::string work = fs::canonical(Work()).string();
    for (const std::string& place : LinesOf(Work() / "lugares.txt")) {
        EXPECT_EQ(place, work + " " + Work().string() + ":" + RadianceLibFolder().string());
    }
}

TEST_F(RunCalls, FindProgramsInAFolderRelativeToThisProcess) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    options.radianceBinFolder = L"radiance/bin"; // as an entry of PATH may be
    const Lines calls = Calls();
    fs::current_path(before);
    EXPECT_EQ(calls.size(), 4u);
}

TEST_F(RunCalls, DropEveryAmbientFileBeforeSeveralProcesses) {
    fs::create_directories(Work());
    WriteBytes(Work() / "antigo.amb", "luz de outra cena");
    options.processCount = 2;
    Calls();
    EXPECT_FALSE(fs::exists(Work() / "antigo.amb"));
}

} // namespace
} // namespace Merivane::Simulation
