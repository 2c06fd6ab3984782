#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Merivane::Radiance {

/// One child process to run. Paths that are not absolute start at the working folder of this
/// process, those in `arguments` at `workingFolder`.
struct ProcessJob {
    std::wstring program; ///< full path of the executable
    std::vector<std::wstring> arguments;
    std::wstring workingFolder; ///< of the child; empty for the one of this process
    std::wstring stdinPath;     ///< file that feeds standard input; empty for none
    std::wstring stdoutPath;    ///< file that receives standard output, replaced; empty for none
    std::wstring rayPath;       ///< when not empty, RAYPATH of the child
};

/// What became of a job.
struct ProcessOutcome {
    bool started = false;
    bool cancelled = false; ///< `poll` stopped the call, whether or not this child had ended

    /// Exit status of a child that started; 128 + n when signal n ended it, 4294967295 when the
    /// system did not tell because the host has it reap children by itself.
    std::uint32_t exitCode = 0;

    /// Why the job did not start, one Portuguese sentence without accents; otherwise the bytes of
    /// the child's standard error, `MaximumErrorText` of them.
    std::string errorText;
};

/// Bytes kept of what a child writes to standard error. Of more than that the beginning and the
/// end stay, with "\n[...]\n" between them; the rest is read and dropped, so no child ever blocks.
inline constexpr std::size_t MaximumErrorText = 65536;

/// Asked at least every 200 ms while children run; true stops all of them. May be empty.
using CancelPoll = std::function<bool()>;

/// Runs one child process and waits for its end.
ProcessOutcome RunProcess(const ProcessJob& job, const CancelPoll& poll);

/// Starts all jobs at once, in order, and waits until every child has ended. A job that does not
/// start leaves the others alone. When `poll` answers true all children are killed, the call comes
/// back within 5 s, and every outcome is `cancelled`, also those of children that had ended.
/// What a child itself started and left behind is killed with it where the system has process
/// groups, and is never waited for.
///
/// Returns one outcome for each job, in the order of the jobs.
std::vector<ProcessOutcome> RunProcesses(const std::vector<ProcessJob>& jobs,
                                         const CancelPoll& poll);

/// Runs a command line (see CommandLine.hpp) without standard input and appends what it writes to
/// standard output and standard error, in the order written, to `output`: up to
/// `MaximumErrorText` bytes, by the same rule. A `rayPath` that is not empty is its RAYPATH.
///
/// Returns true when the process started and ended within `timeoutMilliseconds`, whatever its
/// exit status; one that did not end is killed, and what it wrote so far is in `output`.
bool CaptureCommandOutput(const std::wstring& commandLine, std::string& output,
                          const std::wstring& rayPath, std::uint32_t timeoutMilliseconds);

} // namespace Merivane::Radiance
