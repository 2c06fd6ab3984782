#include "Radiance/ProcessRunner.hpp"

#include <algorithm>
#include <chrono>

#include "Radiance/BoundedText.hpp"
#include "Radiance/ChildProcess.hpp"

namespace Merivane::Radiance {

static_assert(BoundedText::HeadLimit + BoundedText::TailLimit == MaximumErrorText);

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds LongestWait{200};
constexpr milliseconds KillLimit{5000};

std::vector<ChildProcess*> CollectRunning(const std::vector<ChildHandle>& children) {
    std::vector<ChildProcess*> running;
    for (const ChildHandle& child : children) {
        if (child && !HasEnded(*child)) {
            running.push_back(child.get());
        }
    }
    return running;
}

milliseconds TimeUntil(Clock::time_point deadline) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now());
    return std::max(left, milliseconds::zero());
}

/// Waits until all children have ended (true) or the time is over (false).
bool WaitForAll(const std::vector<ChildHandle>& children, milliseconds limit) {
    const Clock::time_point deadline = Clock::now() + limit;
    for (;;) {
        const std::vector<ChildProcess*> running = CollectRunning(children);
        const milliseconds left = TimeUntil(deadline);
        if (running.empty() || left == milliseconds::zero()) {
            return running.empty();
        }
        WaitForAnyEnd(running, std::min(left, LongestWait));
    }
}

/// Waits until all children have ended (true) or `poll` wants them stopped (false).
bool WaitUnlessCancelled(const std::vector<ChildHandle>& children, const CancelPoll& poll) {
    for (;;) {
        const std::vector<ChildProcess*> running = CollectRunning(children);
        if (running.empty()) {
            return true;
        }
        if (poll && poll()) {
            return false;
        }
        WaitForAnyEnd(running, LongestWait);
    }
}

void KillAll(const std::vector<ChildHandle>& children) {
    for (const ChildHandle& child : children) {
        if (child) {
            Kill(*child);
        }
    }
    WaitForAll(children, KillLimit);
}

} // namespace

ProcessOutcome RunProcess(const ProcessJob& job, const CancelPoll& poll) {
    return RunProcesses({job}, poll).front();
}

std::vector<ProcessOutcome> RunProcesses(const std::vector<ProcessJob>& jobs,
                                         const CancelPoll& poll) {
    std::vector<ProcessOutcome> outcomes(jobs.size());
    std::vector<ChildHandle> children(jobs.size());
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        children[i] = StartJob(jobs[i], outcomes[i].errorText);
        outcomes[i].started = children[i] != nullptr;
    }
    if (!WaitUnlessCancelled(children, poll)) {
        KillAll(children);
        for (ProcessOutcome& outcome : outcomes) {
            outcome.cancelled = true;
        }
    }
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        if (children[i]) {
            ChildResult result = CollectChild(*children[i]);
            outcomes[i].exitCode = result.exitCode;
            outcomes[i].errorText = std::move(result.written);
        }
    }
    return outcomes;
}

bool CaptureCommandOutput(const std::wstring& commandLine, std::string& output,
                          const std::wstring& rayPath, std::uint32_t timeoutMilliseconds) {
    std::vector<ChildHandle> children;
    children.push_back(StartCommandLine(commandLine, rayPath));
    if (!children.front()) {
        return false;
    }
    const bool inTime = WaitForAll(children, milliseconds(timeoutMilliseconds));
    if (!inTime) {
        KillAll(children);
    }
    output += CollectChild(*children.front()).written;
    return inTime;
}

} // namespace Merivane::Radiance
