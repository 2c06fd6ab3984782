#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Radiance/ProcessRunner.hpp"

/// What the runner needs of the operating system: children that are started, watched and killed.
namespace Merivane::Radiance {

/// A child process that was started: the system's handles and what it has written so far.
struct ChildProcess;

/// Gives up a child: one that still runs is killed, and its end waited for, 5 s at most.
struct ReleaseChild {
    void operator()(ChildProcess* child) const;
};
using ChildHandle = std::unique_ptr<ChildProcess, ReleaseChild>;

/// Starts a job; its standard error is captured. Null on failure, the reason in `errorText`.
ChildHandle StartJob(const ProcessJob& job, std::string& errorText);

/// Starts a command line; standard output and standard error are captured, standard input is
/// empty. Null on failure.
ChildHandle StartCommandLine(const std::wstring& commandLine, const std::wstring& rayPath);

/// Whether the child has ended. Never blocks.
bool HasEnded(ChildProcess& child);

/// Takes what the children write and comes back as soon as one of them has ended, at the latest
/// after `limit`; sooner when a signal reached this process. `running` is not empty.
void WaitForAnyEnd(const std::vector<ChildProcess*>& running, std::chrono::milliseconds limit);

/// Ends a child at once, with all that it started where the system has process groups. Does not
/// wait for the end.
void Kill(ChildProcess& child);

/// What a child that ended leaves.
struct ChildResult {
    std::uint32_t exitCode = 0;
    std::string written; ///< bounded, see `MaximumErrorText`
};

/// Collects a child that ended or could not be killed; it must not be used again.
ChildResult CollectChild(ChildProcess& child);

} // namespace Merivane::Radiance
