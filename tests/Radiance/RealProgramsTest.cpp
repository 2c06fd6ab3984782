// The runner with the programs it is made for.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

#include <gtest/gtest.h>

#include "Radiance/Installation.hpp"
#include "Radiance/ProcessRunner.hpp"
#include "Radiance/Scripts.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

using namespace Merivane;
using namespace Merivane::Radiance;
using namespace Merivane::Tests;

namespace {

/// A closed white room with a glowing ball in it.
const char* const Room = "void plastic white 0 0 5 .8 .8 .8 0 0\n"
                         "void glow lamp 0 0 4 10 10 10 0\n"
                         "white bubble walls 0 0 4 0 0 0 5\n"
                         "lamp sphere ball 0 0 4 0 0 2 .2\n";

class RealPrograms : public testing::Test {
protected:
    std::filesystem::path File(const std::string& name) const { return folder.Path() / name; }

    ProcessJob Tool(const std::string& name, std::vector<std::wstring> arguments) const {
        ProcessJob job;
        job.program = ToolPath(installation.binFolder, name);
        job.arguments = std::move(arguments);
        job.workingFolder = Text::WidePath(folder.Path());
        job.rayPath = job.workingFolder + L":" + installation.libFolder;
        return job;
    }

    /// The octree of the room, in "room.oct".
    void BuildRoom() const {
        WriteBytes(File("room.rad"), Room);
        ProcessJob job = Tool("oconv", {L"room.rad"});
        job.stdoutPath = Text::WidePath(File("room.oct"));
        const ProcessOutcome outcome = RunProcess(job, {});
        ASSERT_EQ(outcome.exitCode, 0U) << outcome.errorText;
    }

    void WritePoints(int count) const {
        std::ostringstream points;
        for (int i = 0; i < count; ++i) {
            points << i % 7 - 3 << ' ' << i % 5 - 2 << " -1 0 0 1\n";
        }
        WriteBytes(File("points"), points.str());
    }

    TemporaryFolder folder;
    Installation installation = FindInstallation(Text::WidePath(BuildFolder()));
};

/// Processes on this machine that were started with this text in their command line.
int ProcessesNaming(const std::string& text) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        std::ifstream file(entry.path() / "cmdline");
        std::string line;
        std::getline(file, line); // throws nothing where the process ends meanwhile
        const std::string name = entry.path().filename().string();
        const bool process = name.find_first_not_of("0123456789") == std::string::npos;
        if (process && line.find(text) != std::string::npos && IsRunning(std::stoi(name))) {
            ++count;
        }
    }
    return count;
}

} // namespace

TEST_F(RealPrograms, CalculateOneLineForEachPoint) {
    ASSERT_NO_FATAL_FAILURE(BuildRoom());
    WritePoints(10);
    ProcessJob job = Tool("rtrace", {L"-h", L"-I+", L"-ab", L"1", L"room.oct"});
    job.stdinPath = Text::WidePath(File("points"));
    job.stdoutPath = Text::WidePath(File("values"));
    const ProcessOutcome outcome = RunProcess(job, {});
    EXPECT_EQ(outcome.exitCode, 0U) << outcome.errorText;
    const std::string values = ReadBytes(File("values"));
    EXPECT_EQ(std::count(values.begin(), values.end(), '\n'), 10);
}

TEST_F(RealPrograms, TellWhyTheyStop) {
    const ProcessOutcome outcome = RunProcess(Tool("rtrace", {L"nope.oct"}), {});
    EXPECT_TRUE(outcome.started);
    EXPECT_EQ(outcome.exitCode, 2U);
    EXPECT_EQ(outcome.errorText, "rtrace: system - cannot open octree file \"nope.oct\": "
                                 "No such file or directory\n");
}

TEST_F(RealPrograms, EndWithMoreWarningsThanAPipeHolds) {
    // A polygon without area is one warning of about 60 bytes.
    std::ostringstream scene;
    scene << Room;
    for (int i = 0; i < 5000; ++i) {
        scene << "white polygon degenerate" << i << " 0 0 9 0 0 0 1 0 0 2 0 0\n";
    }
    WriteBytes(File("room.rad"), scene.str());
    ProcessJob job = Tool("oconv", {L"room.rad"});
    job.stdoutPath = Text::WidePath(File("room.oct"));
    const ProcessOutcome outcome = RunProcess(job, {});
    EXPECT_EQ(outcome.exitCode, 0U);
    EXPECT_GT(outcome.errorText.size(), MaximumErrorText);
    EXPECT_TRUE(
        outcome.errorText.starts_with("oconv: warning - zero area for polygon \"degenerate0\"\n"));
}

TEST_F(RealPrograms, AreAllGoneAfterACancelledRun) {
    ASSERT_NO_FATAL_FAILURE(BuildRoom());
    WritePoints(5000);
    const std::wstring octree = Text::WidePath(File("room.oct"));
    const std::vector<std::wstring> slow = {L"-h",   L"-I+",  L"-ab", L"6",   L"-ad",
                                            L"8192", L"-as",  L"0",   L"-aa", L"0",
                                            L"-lw",  L"1e-6", L"-n",  L"2",   octree};
    ProcessJob job = Tool("rtrace", slow);
    job.stdinPath = Text::WidePath(File("points"));
    job.stdoutPath = Text::WidePath(File("values"));
    const std::string name = File("room.oct").string();
    std::vector<ProcessOutcome> outcomes;
    std::chrono::steady_clock::time_point asked;
    // Once every parent has its children, `-n 2` being two of them.
    outcomes = RunProcesses({job, job}, [&] {
        asked = std::chrono::steady_clock::now();
        return ProcessesNaming(name) >= 6;
    });
    EXPECT_LT(std::chrono::steady_clock::now() - asked, std::chrono::seconds(5));
    EXPECT_TRUE(outcomes[0].cancelled);
    EXPECT_TRUE(outcomes[1].cancelled);
    for (int i = 0; i < 1000 && ProcessesNaming(name) > 0; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    EXPECT_EQ(ProcessesNaming(name), 0);
}
