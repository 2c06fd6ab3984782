// Cancelling, signals and children that do not end by themselves.

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Radiance/ProcessRunner.hpp"
#include "Radiance/Scripts.hpp"
#include "Support/Places.hpp"
#include "Text/NativePath.hpp"

using namespace Merivane;
using namespace Merivane::Radiance;
using namespace Merivane::Tests;

namespace {

class ProcessSignals : public testing::Test {
protected:
    std::filesystem::path File(const std::string& name) const { return folder.Path() / name; }

    /// A job that runs a script with this body; "$1" is the temporary folder.
    ProcessJob Script(const std::string& body) {
        ProcessJob job;
        job.program = WriteScript(folder.Path(), "script" + std::to_string(scripts++), body);
        job.arguments = {Text::WidePath(folder.Path())};
        return job;
    }

    /// True as soon as a script has written a line into the file.
    CancelPoll WhenThereIs(const std::string& name) const {
        return [file = File(name)] { return HoldsALine(file); };
    }

    TemporaryFolder folder;
    int scripts = 0;
};

bool HasNoChildren() {
    return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD;
}

/// Sets what a signal does for the time of a test.
class Disposition {
public:
    Disposition(int signalNumber, void (*handler)(int)) : number(signalNumber) {
        struct sigaction action {};
        action.sa_handler = handler;
        ::sigaction(number, &action, &before);
    }
    ~Disposition() { ::sigaction(number, &before, nullptr); }
    Disposition(const Disposition&) = delete;
    Disposition& operator=(const Disposition&) = delete;

private:
    int number;
    struct sigaction before {};
};

volatile std::sig_atomic_t signalCame = 0;

void NoteSignal(int /*number*/) {
    signalCame = 1;
}

} // namespace

TEST_F(ProcessSignals, KillsAChildThatIgnoresTheRequestToEnd) {
    const ProcessJob stubborn =
        Script("trap '' TERM INT HUP; echo $$ >\"$1/id\"; while :; do sleep 1; done");
    ProcessOutcome outcome;
    const double time = Milliseconds([&] { outcome = RunProcess(stubborn, WhenThereIs("id")); });
    EXPECT_TRUE(outcome.started);
    EXPECT_TRUE(outcome.cancelled);
    EXPECT_EQ(outcome.exitCode, 137U);
    EXPECT_LT(time, 5000.0);
    EXPECT_FALSE(IsRunning(AwaitNumber(File("id"))));
    EXPECT_TRUE(HasNoChildren());
}

TEST_F(ProcessSignals, KillsAStoppedChild) {
    const ProcessOutcome outcome =
        RunProcess(Script("echo >\"$1/stops\"; kill -STOP $$"), WhenThereIs("stops"));
    EXPECT_TRUE(outcome.cancelled);
    EXPECT_EQ(outcome.exitCode, 137U);
    EXPECT_TRUE(HasNoChildren());
}

TEST_F(ProcessSignals, ListsEveryJobAsCancelled) {
    ProcessJob missing;
    missing.program = L"/missing";
    const ProcessJob ended = Script("echo done >&2; echo $$ >\"$1/ended\"; exit 3");
    const ProcessJob running = Script("echo $$ >\"$1/running\"; exec sleep 60");
    const auto outcomes = RunProcesses({ended, running, missing}, [&] {
        return HoldsALine(File("ended")) && HoldsALine(File("running")) &&
               !IsRunning(AwaitNumber(File("ended"))) && IsRunning(AwaitNumber(File("running")));
    });
    ASSERT_EQ(outcomes.size(), 3U);
    for (const ProcessOutcome& outcome : outcomes) {
        EXPECT_TRUE(outcome.cancelled);
    }
    EXPECT_EQ(outcomes[0].exitCode, 3U);
    EXPECT_EQ(outcomes[0].errorText, "done\n");
    EXPECT_EQ(outcomes[1].exitCode, 137U);
    EXPECT_FALSE(outcomes[2].started);
    EXPECT_EQ(outcomes[2].errorText, "o programa nao pode ser iniciado");
    EXPECT_TRUE(HasNoChildren());
}

TEST_F(ProcessSignals, KillsWhatACancelledChildStartedItself) {
    const ProcessJob parent = Script("sleep 60 & echo $! >\"$1/grandchild\"; wait");
    EXPECT_TRUE(RunProcess(parent, WhenThereIs("grandchild")).cancelled);
    EXPECT_TRUE(EndsSoon(AwaitNumber(File("grandchild"))));
}

TEST_F(ProcessSignals, KillsWhatAChildLeftBehind) {
    const ProcessJob parent = Script("sleep 60 & echo $! >\"$1/grandchild\"; exit 4");
    ProcessOutcome outcome;
    EXPECT_LT(Milliseconds([&] { outcome = RunProcess(parent, {}); }), 5000.0);
    EXPECT_EQ(outcome.exitCode, 4U);
    EXPECT_FALSE(outcome.cancelled);
    EXPECT_TRUE(EndsSoon(AwaitNumber(File("grandchild"))));
}

TEST_F(ProcessSignals, DoesNotWaitForAStrangerThatKeepsStandardErrorOpen) {
    // In a session of its own it is out of reach, and it holds the pipe.
    const ProcessJob parent = Script("echo said >&2\n"
                                     "setsid sh -c 'echo $$ >\"$0/stranger\"; exec sleep 60' "
                                     "\"$1\" &\n"
                                     "while [ ! -s \"$1/stranger\" ]; do sleep 0.01; done");
    ProcessOutcome outcome;
    EXPECT_LT(Milliseconds([&] { outcome = RunProcess(parent, {}); }), 5000.0);
    EXPECT_EQ(outcome.exitCode, 0U);
    EXPECT_EQ(outcome.errorText, "said\n");
    const int stranger = AwaitNumber(File("stranger"));
    EXPECT_TRUE(IsRunning(stranger));
    ::kill(stranger, SIGKILL);
}

TEST_F(ProcessSignals, EndsWhileAStrangerWritesToStandardErrorWithoutPause) {
    const ProcessJob parent = Script("setsid sh -c 'echo $$ >\"$0/stranger\"; exec yes >&2' "
                                     "\"$1\" &\n"
                                     "while [ ! -s \"$1/stranger\" ]; do sleep 0.01; done");
    ProcessOutcome outcome;
    EXPECT_LT(Milliseconds([&] { outcome = RunProcess(parent, {}); }), 5000.0);
    EXPECT_EQ(outcome.exitCode, 0U);
    EXPECT_TRUE(EndsSoon(AwaitNumber(File("stranger")))); // nobody reads: its pipe is broken
}

TEST_F(ProcessSignals, AsksEvery200MillisecondsWhateverTheChildWrites) {
    const char* const bodies[] = {
        "sleep 2", "i=0; while [ $i -lt 200 ]; do i=$((i+1)); echo $i >&2; sleep 0.005; done"};
    for (const char* body : bodies) {
        std::vector<double> gaps; // between two questions [ms]
        auto last = std::chrono::steady_clock::now();
        RunProcess(Script(body), [&] {
            const auto now = std::chrono::steady_clock::now();
            gaps.push_back(std::chrono::duration<double, std::milli>(now - last).count());
            last = now;
            return false;
        });
        ASSERT_GE(gaps.size(), 2U);
        const double shortest = *std::min_element(gaps.begin() + 1, gaps.end());
        EXPECT_GE(shortest, 199.0);
        EXPECT_LT(shortest, 250.0); // a busy machine makes some of them longer, not all
    }
}

TEST_F(ProcessSignals, SleepsUntilTheChildEnds) {
    const ProcessJob silent = Script("exec 2>&-; exec sleep 1"); // its pipe tells nothing
    rusage before{};
    rusage after{};
    ::getrusage(RUSAGE_SELF, &before);
    RunProcess(silent, {});
    ::getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_nvcsw - before.ru_nvcsw, 50); // about 10 wakings; 200 with looks every 5 ms
}

TEST_F(ProcessSignals, AsksBeforeItWaits) {
    const ProcessJob job = Script("exec sleep 60");
    const double shortest = ShortestMilliseconds(
        100.0, [&] { EXPECT_TRUE(RunProcess(job, [] { return true; }).cancelled); });
    EXPECT_LT(shortest, 100.0);
}

TEST_F(ProcessSignals, DoesNotAskWhenNothingRuns) {
    ProcessJob missing;
    missing.program = L"/missing";
    const ProcessOutcome outcome = RunProcess(missing, [] { return true; });
    EXPECT_FALSE(outcome.cancelled);
}

TEST_F(ProcessSignals, AsksAtOnceWhenASignalCame) {
    const Disposition alarm(SIGALRM, NoteSignal);
    const ProcessJob job = Script("exec sleep 60");
    // Only a run in which the first question came before the signal tells of the waking.
    double shortest = 60000.0;
    for (int run = 0; run < 100 && shortest >= 150.0; ++run) {
        signalCame = 0;
        itimerval timer{};
        timer.it_value.tv_usec = 30000;
        bool askedBefore = false;
        const double time = Milliseconds([&] {
            ::setitimer(ITIMER_REAL, &timer, nullptr);
            EXPECT_TRUE(RunProcess(job, [&] {
                            askedBefore = askedBefore || signalCame == 0;
                            return signalCame != 0;
                        }).cancelled);
        });
        shortest = askedBefore ? std::min(shortest, time) : shortest;
    }
    EXPECT_LT(shortest, 150.0); // without the waking it would be the next look, after 200 ms
}

TEST_F(ProcessSignals, StartsChildrenWithNoSignalBlockedOrIgnored) {
    const Disposition interrupt(SIGINT, SIG_IGN);
    const Disposition pipe(SIGPIPE, SIG_IGN);
    sigset_t blocked;
    sigset_t before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &blocked, &before);
    ProcessJob job;
    job.program = L"/bin/grep";
    job.arguments = {L"-E", L"SigBlk|SigIgn", L"/proc/self/status"};
    job.stdoutPath = Text::WidePath(File("out"));
    RunProcess(job, {});
    ::sigprocmask(SIG_SETMASK, &before, nullptr);
    std::istringstream status(ReadBytes(File("out")));
    // The C library keeps signals 32 and 33 for itself and has them ignored at the start.
    constexpr std::uint64_t ofTheLibrary = 0x180000000;
    std::string name;
    std::uint64_t mask = 0;
    int lines = 0;
    for (; status >> name >> std::hex >> mask; ++lines) {
        EXPECT_EQ(mask & ~ofTheLibrary, 0U) << name;
    }
    EXPECT_EQ(lines, 2);
}

TEST_F(ProcessSignals, ComesBackWhenTheHostLeavesNoExitCode) {
    const Disposition child(SIGCHLD, SIG_IGN); // the system reaps children by itself then
    const auto outcomes = RunProcesses({Script("echo e >&2"), Script("sleep 0.1")}, {});
    for (const ProcessOutcome& outcome : outcomes) {
        EXPECT_TRUE(outcome.started);
        EXPECT_EQ(outcome.exitCode, 0xFFFFFFFFU); // unknown must not pass for success
    }
    EXPECT_EQ(outcomes[0].errorText, "e\n");
}

TEST_F(ProcessSignals, LeavesNoChildWhenThePollThrows) {
    const ProcessJob job = Script("echo $$ >\"$1/id\"; exec sleep 60");
    const auto poll = [&]() -> bool {
        if (HoldsALine(File("id"))) {
            throw std::runtime_error("poll");
        }
        return false;
    };
    EXPECT_THROW(RunProcess(job, poll), std::runtime_error);
    EXPECT_FALSE(IsRunning(AwaitNumber(File("id"))));
    EXPECT_TRUE(HasNoChildren());
}

TEST_F(ProcessSignals, WorksInAHostWithoutStandardStreams) {
    const ProcessJob script = Script("cat; echo e >&2; exit 9");
    WriteBytes(File("in"), "in");
    const auto runWithout = [&] {
        ProcessJob job = script;
        job.stdinPath = Text::WidePath(File("in"));
        job.stdoutPath = Text::WidePath(File("out"));
        ::close(STDIN_FILENO);
        ::close(STDOUT_FILENO);
        ::close(STDERR_FILENO);
        const ProcessOutcome outcome = RunProcess(job, {});
        ::_exit(outcome.exitCode == 9 && outcome.errorText == "e\n" ? 0 : 1);
    };
    EXPECT_EXIT(runWithout(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(ReadBytes(File("out")), "in");
}
