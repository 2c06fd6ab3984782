#include <algorithm>
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include "Radiance/ProcessRunner.hpp"
#include "Radiance/Scripts.hpp"
#include "Support/Places.hpp"
#include "Support/Variable.hpp"
#include "Text/NativePath.hpp"

using namespace Merivane;
using namespace Merivane::Radiance;
using namespace Merivane::Tests;

namespace {

const std::string FileMessage = "nao foi possivel abrir o arquivo de entrada ou de saida";
const std::string StartMessage = "o programa nao pode ser iniciado";

/// A temporary folder in which every test writes its scripts and files.
class ProcessRunner : public testing::Test {
protected:
    std::filesystem::path File(const std::string& name) const { return folder.Path() / name; }
    std::wstring Wide(const std::string& name) const { return Text::WidePath(File(name)); }

    /// A job that runs a script with this body.
    ProcessJob Script(const std::string& body) {
        ProcessJob job;
        job.program = WriteScript(folder.Path(), "script" + std::to_string(scripts++), body);
        return job;
    }

    TemporaryFolder folder;
    int scripts = 0;
};

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace

TEST_F(ProcessRunner, FeedsAFileAndReceivesAFile) {
    std::string bytes("0 0 0\r\n\0\xFF", 9);
    bytes.append(200000, 'x');
    WriteBytes(File("in"), bytes);
    WriteBytes(File("out"), std::string(500000, 'o')); // replaced, not written over
    ProcessJob job;
    job.program = L"/bin/cat";
    job.stdinPath = Wide("in");
    job.stdoutPath = Wide("out");
    const ProcessOutcome outcome = RunProcess(job, {});
    EXPECT_TRUE(outcome.started);
    EXPECT_FALSE(outcome.cancelled);
    EXPECT_EQ(outcome.exitCode, 0U);
    EXPECT_EQ(outcome.errorText, "");
    EXPECT_TRUE(ReadBytes(File("out")) == bytes);
}

TEST_F(ProcessRunner, GivesAJobWithoutFilesAnEmptyInputAndNoOutput) {
    const ProcessOutcome outcome = RunProcess(Script("cat; echo gone; echo seen >&2"), {});
    EXPECT_EQ(outcome.exitCode, 0U);
    EXPECT_EQ(outcome.errorText, "seen\n");
}

TEST_F(ProcessRunner, TellsTheExitCode) {
    struct Case {
        std::string body;
        std::uint32_t exitCode;
    };
    const Case cases[] = {
        {"exit 0", 0},          {"exit 1", 1},          {"exit 7", 7}, {"exit 255", 255},
        {"kill -TERM $$", 143}, {"kill -KILL $$", 137}, // 128 + number of the signal
        {"kill -SEGV $$", 139}, {"kill -INT $$", 130},
    };
    for (const Case& c : cases) {
        const ProcessOutcome outcome = RunProcess(Script("ulimit -c 0; " + c.body), {});
        EXPECT_TRUE(outcome.started) << c.body;
        EXPECT_EQ(outcome.exitCode, c.exitCode) << c.body;
    }
}

TEST_F(ProcessRunner, BringsTheBytesOfStandardError) {
    const ProcessOutcome outcome = RunProcess(Script("printf 'a\\r\\n\\377b' >&2; exit 3"), {});
    EXPECT_EQ(outcome.errorText, "a\r\n\xFF"
                                 "b");
    EXPECT_EQ(outcome.exitCode, 3U);
}

TEST_F(ProcessRunner, HandsOverEveryArgumentAsItIs) {
    ProcessJob job = Script("for word in \"$@\"; do printf '%s;' \"$word\"; done");
    job.arguments = {L"-ab", L"", L"a b", L"a\"b", L"c\\", L"$HOME `x` *", L"lumin\u00e1ria"};
    job.stdoutPath = Wide("out");
    EXPECT_EQ(RunProcess(job, {}).exitCode, 0U);
    EXPECT_EQ(ReadBytes(File("out")), "-ab;;a b;a\"b;c\\;$HOME `x` *;lumin\xC3\xA1ria;");
}

TEST_F(ProcessRunner, RunsInTheWorkingFolder) {
    std::filesystem::create_directory(File("work"));
    ProcessJob job = Script("pwd -P");
    job.workingFolder = Wide("work");
    job.stdoutPath = Wide("out");
    EXPECT_EQ(RunProcess(job, {}).exitCode, 0U);
    EXPECT_EQ(ReadBytes(File("out")), std::filesystem::canonical(File("work")).string() + "\n");
}

TEST_F(ProcessRunner, FindsARelativeProgramFromItsOwnFolderNotTheChilds) {
    ProcessJob job = Script("exit 5");
    job.program = Text::WidePath(std::filesystem::relative(Text::NativePath(job.program)));
    job.workingFolder = L"/";
    EXPECT_EQ(RunProcess(job, {}).exitCode, 5U);
}

TEST_F(ProcessRunner, GivesTheChildOneRayPathAndTheRestOfTheEnvironment) {
    const Variable capital("RAYPATH", "/old/1");
    const Variable small("raypath", "/old/2");
    const Variable mixed("RayPath", "/old/3");
    const Variable other("VANTORO_TEST", "lumin\xE1ria");
    ProcessJob job;
    job.program = L"/usr/bin/env";
    job.stdoutPath = Wide("out");
    job.rayPath = L".:/lib \u00e9";
    EXPECT_EQ(RunProcess(job, {}).exitCode, 0U);
    std::vector<std::string> rayPaths;
    bool restIsThere = false;
    for (const std::string& line : Lines(ReadBytes(File("out")))) {
        std::string name = line.substr(0, line.find('='));
        std::transform(name.begin(), name.end(), name.begin(), ::toupper);
        if (name == "RAYPATH") {
            rayPaths.push_back(line);
        }
        restIsThere = restIsThere || line == "VANTORO_TEST=lumin\xE1ria";
    }
    EXPECT_EQ(rayPaths, std::vector<std::string>{"RAYPATH=.:/lib \xC3\xA9"});
    EXPECT_TRUE(restIsThere);
}

TEST_F(ProcessRunner, LeavesTheEnvironmentAloneWithoutARayPath) {
    const Variable rayPath("RAYPATH", "/old");
    ProcessJob job = Script("printf '%s' \"$RAYPATH\"");
    job.stdoutPath = Wide("out");
    EXPECT_EQ(RunProcess(job, {}).exitCode, 0U);
    EXPECT_EQ(ReadBytes(File("out")), "/old");
}

TEST_F(ProcessRunner, TakesNamesThatAreNotUtf8) {
    const std::string name = "r\xE9sum \xC3\xA9";
    std::filesystem::create_directory(File(name));
    WriteBytes(File(name) / "in", "bytes");
    ProcessJob job;
    job.program = WriteScript(File(name), "programa \xE7", "cat; pwd");
    job.workingFolder = Text::WidePath(File(name));
    job.stdinPath = Text::WidePath(File(name) / "in");
    job.stdoutPath = Text::WidePath(File(name) / "\xFFout");
    const ProcessOutcome outcome = RunProcess(job, {});
    EXPECT_EQ(outcome.exitCode, 0U) << outcome.errorText;
    EXPECT_EQ(ReadBytes(File(name) / "\xFFout"), "bytes" + File(name).string() + "\n");
}

TEST_F(ProcessRunner, SaysWhenAFileOfTheJobCanNotBeOpened) {
    struct Case {
        std::string stdinPath;
        std::string stdoutPath;
    };
    const Case cases[] = {
        {"missing", ""},     {"missing", "out"}, {".", ""}, // a folder is no input
        {"", "missing/out"}, {"", "."},          {"in", "missing/out"},
    };
    WriteBytes(File("in"), "in");
    WriteBytes(File("out"), "kept");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.stdinPath + " > " + c.stdoutPath);
        ProcessJob job = Script("touch \"$1\"");
        job.arguments = {Wide("was run")};
        job.stdinPath = c.stdinPath.empty() ? L"" : Wide(c.stdinPath);
        job.stdoutPath = c.stdoutPath.empty() ? L"" : Wide(c.stdoutPath);
        const ProcessOutcome outcome = RunProcess(job, {});
        EXPECT_FALSE(outcome.started);
        EXPECT_EQ(outcome.errorText, FileMessage);
        EXPECT_EQ(outcome.exitCode, 0U);
        EXPECT_FALSE(std::filesystem::exists(File("was run")));
    }
    EXPECT_EQ(ReadBytes(File("out")), "kept");
}

TEST_F(ProcessRunner, SaysWhenAProgramCanNotBeStarted) {
    WriteBytes(File("not executable"), "#!/bin/sh\nexit 0\n");
    WriteBytes(File("not a program"), "no program at all");
    std::filesystem::permissions(File("not a program"), std::filesystem::perms::owner_all);
    ProcessJob elsewhere = Script("exit 0");
    elsewhere.workingFolder = Wide("missing folder");
    std::vector<ProcessJob> jobs = {elsewhere};
    for (const char* name : {"missing", "not executable", "not a program", "."}) {
        jobs.emplace_back().program = Wide(name);
    }
    jobs.emplace_back(); // no program at all
    for (const ProcessJob& job : jobs) {
        SCOPED_TRACE(testing::PrintToString(job.program));
        const ProcessOutcome outcome = RunProcess(job, {});
        EXPECT_FALSE(outcome.started);
        EXPECT_FALSE(outcome.cancelled);
        EXPECT_EQ(outcome.errorText, StartMessage);
        EXPECT_EQ(outcome.exitCode, 0U);
    }
}

TEST_F(ProcessRunner, RunsTheOtherJobsWhenSomeDoNotStart) {
    ProcessJob noInput = Script("exit 0");
    noInput.stdinPath = Wide("missing");
    ProcessJob noProgram;
    noProgram.program = Wide("missing");
    const auto outcomes =
        RunProcesses({Script("exit 4"), noInput, noProgram, Script("echo e >&2; exit 6")}, {});
    ASSERT_EQ(outcomes.size(), 4U);
    EXPECT_TRUE(outcomes[0].started);
    EXPECT_EQ(outcomes[0].exitCode, 4U);
    EXPECT_FALSE(outcomes[1].started);
    EXPECT_EQ(outcomes[1].errorText, FileMessage);
    EXPECT_FALSE(outcomes[2].started);
    EXPECT_EQ(outcomes[2].errorText, StartMessage);
    EXPECT_TRUE(outcomes[3].started);
    EXPECT_EQ(outcomes[3].exitCode, 6U);
    EXPECT_EQ(outcomes[3].errorText, "e\n");
}

TEST_F(ProcessRunner, GivesNoOutcomeForNoJob) {
    EXPECT_TRUE(RunProcesses({}, [] { return true; }).empty());
}

TEST_F(ProcessRunner, RunsSixtyFourJobsAtOnceAndKeepsTheirOrder) {
    // Each job waits until all have begun, so they end only when they really run side by side.
    const ProcessJob script = Script("touch \"$1/begun$2\"\n"
                                     "while [ $(ls \"$1\" | wc -l) -lt 64 ]; do sleep 0.05; done\n"
                                     "echo \"job $2\" >&2; exit $2");
    std::filesystem::create_directory(File("begun"));
    std::vector<ProcessJob> jobs(64, script);
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        jobs[i].arguments = {Wide("begun"), std::to_wstring(i)};
    }
    const auto outcomes = RunProcesses(jobs, {});
    ASSERT_EQ(outcomes.size(), jobs.size());
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        EXPECT_EQ(outcomes[i].exitCode, i);
        EXPECT_EQ(outcomes[i].errorText, "job " + std::to_string(i) + "\n");
    }
}

TEST_F(ProcessRunner, TakesNoLongerThanAShortChild) {
    ProcessJob job;
    job.program = L"/bin/sleep";
    job.arguments = {L"0.005"};
    const double shortest = ShortestMilliseconds(15.0, [&] { RunProcess(job, {}); });
    EXPECT_GE(shortest, 5.0);
    EXPECT_LT(shortest, 15.0); // 6 to 10 ms
}

TEST_F(ProcessRunner, EndsWithAChildThatWritesAMebibyteToStandardError) {
    const auto outcome = RunProcess(
        Script("echo first >&2; head -c 1048576 /dev/zero | tr '\\0' x >&2; printf last >&2"), {});
    EXPECT_EQ(outcome.exitCode, 0U);
    EXPECT_EQ(outcome.errorText.size(), MaximumErrorText + std::string("\n[...]\n").size());
    EXPECT_TRUE(outcome.errorText.starts_with("first\nxxxx"));
    EXPECT_TRUE(outcome.errorText.ends_with("xxxxlast"));
}

TEST_F(ProcessRunner, KeepsWhatAPipeHoldsWhole) {
    const auto outcome = RunProcess(Script("head -c 65536 /dev/zero | tr '\\0' x >&2"), {});
    EXPECT_TRUE(outcome.errorText == std::string(MaximumErrorText, 'x'));
}

TEST_F(ProcessRunner, DoesNotInheritOtherFilesOfThisProcess) {
    const int unrelated = ::open("/dev/null", O_RDONLY); // without O_CLOEXEC, as a host may do
    ASSERT_GE(unrelated, 3);
    ProcessJob job;
    job.program = L"/bin/ls";
    job.arguments = {L"/proc/self/fd"};
    job.stdoutPath = Wide("out");
    const auto outcomes = RunProcesses({Script("sleep 0.2"), job}, {});
    ::close(unrelated);
    EXPECT_EQ(outcomes[1].exitCode, 0U);
    EXPECT_EQ(ReadBytes(File("out")), "0\n1\n2\n3\n"); // 3 is the listing's own
}

TEST_F(ProcessRunner, LeaksNoDescriptor) {
    const auto count = [] {
        const std::filesystem::directory_iterator files("/proc/self/fd");
        return std::distance(begin(files), end(files));
    };
    ProcessJob noInput = Script("exit 0");
    noInput.stdinPath = Wide("missing");
    ProcessJob noProgram;
    noProgram.program = Wide("missing");
    noProgram.stdoutPath = Wide("out");
    const auto before = count();
    RunProcesses({Script("exit 0"), noInput, noProgram}, {});
    RunProcesses({Script("exit 0"), Script("sleep 60")}, [] { return true; });
    EXPECT_EQ(count(), before);
}
