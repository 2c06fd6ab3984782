// A child leads a process group of its own, so that what it starts in turn (rtrace -n) can be
// killed with it; its id stays taken until it is reaped, and so does the group's, which makes
// killing safe at any time before.

#include "Radiance/ChildProcess.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Radiance/BoundedText.hpp"
#include "Radiance/CommandLine.hpp"
#include "Radiance/SpawnPosix.hpp"
#include "Text/NativePath.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Radiance {

struct ChildProcess {
    pid_t id = -1;
    Descriptor output; ///< read end of what the child writes, not blocking; closed at its end
    Descriptor life;   ///< becomes readable when the child ends; closed where the system has none
    BoundedText written;
    bool ended = false;
    bool gone =
        false; ///< the id is no longer ours: reaped here, or for a host that ignores SIGCHLD
    bool killed = false;
    std::uint32_t exitCode = 0;
};

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr std::uint32_t LostExitCode = 0xFFFFFFFF;
constexpr milliseconds KillLimit{5000};

/// How long to sleep between looks at a child whose end does not wake us.
constexpr milliseconds BlindInterval{5};

/// Becomes readable when process `id` ends; closed where the kernel has no such thing.
Descriptor OpenLife(pid_t id) {
#ifdef SYS_pidfd_open
    return Descriptor(static_cast<int>(::syscall(SYS_pidfd_open, id, 0))); // closed on exec
#else
    static_cast<void>(id);
    return {};
#endif
}

Descriptor OpenInput(const std::wstring& path) {
    Descriptor file(::open(Text::Narrow(path).c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    const bool folder = ::fstat(file.Number(), &status) == 0 && S_ISDIR(status.st_mode);
    return folder ? Descriptor() : std::move(file);
}

Descriptor OpenOutput(const std::wstring& path) {
    return Descriptor(
        ::open(Text::Narrow(path).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
}

struct Pipe {
    Descriptor readEnd;
    Descriptor writeEnd;
};

/// Both ends are closed when there is no pipe to be had. Reading does not block, writing does.
Pipe OpenPipe() {
    std::array<int, 2> ends = {-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        return {};
    }
    ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

/// Takes what lies in the pipe. A pipe holds 64 KiB; a few times that is enough for one visit, so
/// that a child which writes without pause can't keep us here.
void Drain(ChildProcess& child) {
    std::array<char, 65536> buffer;
    for (int visit = 0; visit < 16 && child.output.IsOpen(); ++visit) {
        const ssize_t count = ::read(child.output.Number(), buffer.data(), buffer.size());
        if (count > 0) {
            Append(child.written, {buffer.data(), static_cast<std::size_t>(count)});
        } else if (count < 0 && errno == EINTR) {
            continue;
        } else {
            if (count == 0 || errno != EAGAIN) {
                child.output = {};
            }
            return;
        }
    }
}

bool AnyHasEnded(const std::vector<ChildProcess*>& children) {
    for (ChildProcess* child : children) {
        if (HasEnded(*child)) {
            return true;
        }
    }
    return false;
}

ChildHandle MakeChild(pid_t id, Descriptor output) {
    if (id < 0) {
        return nullptr;
    }
    ChildHandle child(new ChildProcess);
    child->id = id;
    child->output = std::move(output);
    child->life = OpenLife(id);
    return child;
}

} // namespace

ChildHandle StartJob(const ProcessJob& job, std::string& errorText) {
    SpawnRequest request;
    bool opened = true;
    if (!job.stdinPath.empty()) {
        request.input = OpenInput(job.stdinPath);
        opened = request.input.IsOpen();
    }
    if (opened && !job.stdoutPath.empty()) {
        request.output = OpenOutput(job.stdoutPath);
        opened = request.output.IsOpen();
    }
    if (!opened) {
        errorText = "nao foi possivel abrir o arquivo de entrada ou de saida";
        return nullptr;
    }
    // The child's own folder must not decide which program a relative path means.
    std::error_code ignored;
    request.program = std::filesystem::absolute(Text::NativePath(job.program), ignored).string();
    request.words.push_back(Text::Narrow(job.program));
    for (const std::wstring& argument : job.arguments) {
        request.words.push_back(Text::Narrow(argument));
    }
    request.workingFolder = Text::Narrow(job.workingFolder);
    request.rayPath = job.rayPath;
    Pipe pipe = OpenPipe();
    request.error = std::move(pipe.writeEnd);
    ChildHandle child = MakeChild(Spawn(std::move(request)), std::move(pipe.readEnd));
    if (!child) {
        errorText = "o programa nao pode ser iniciado";
    }
    return child;
}

ChildHandle StartCommandLine(const std::wstring& commandLine, const std::wstring& rayPath) {
    SpawnRequest request;
    for (const std::wstring& word : SplitCommandLine(commandLine)) {
        request.words.push_back(Text::Narrow(word));
    }
    if (request.words.empty()) {
        return nullptr;
    }
    request.program = request.words.front();
    request.rayPath = rayPath;
    Pipe pipe = OpenPipe();
    request.output = pipe.writeEnd.Copy();
    request.error = std::move(pipe.writeEnd);
    return MakeChild(Spawn(std::move(request)), std::move(pipe.readEnd));
}

bool HasEnded(ChildProcess& child) {
    if (child.ended) {
        return true;
    }
    siginfo_t info{};
    // Without reaping: the id stays ours until the child is collected.
    const auto id = static_cast<id_t>(child.id);
    if (::waitid(P_PID, id, &info, WEXITED | WNOHANG | WNOWAIT) != 0) {
        child.ended = child.gone = errno == ECHILD;
        child.exitCode = LostExitCode;
    } else if (info.si_pid == child.id) {
        const int status = info.si_status;
        child.ended = true;
        child.exitCode =
            static_cast<std::uint32_t>(info.si_code == CLD_EXITED ? status : 128 + status);
    }
    return child.ended;
}

void WaitForAnyEnd(const std::vector<ChildProcess*>& running, milliseconds limit) {
    const Clock::time_point deadline = Clock::now() + limit;
    std::vector<pollfd> watched;
    while (!AnyHasEnded(running)) {
        milliseconds wait = std::chrono::ceil<milliseconds>(deadline - Clock::now());
        if (wait <= milliseconds::zero()) {
            return;
        }
        watched.clear();
        for (const ChildProcess* child : running) {
            // A closed descriptor is -1, which `poll` passes over.
            watched.push_back({child->output.Number(), POLLIN, 0});
            watched.push_back({child->life.Number(), POLLIN, 0});
            if (!child->life.IsOpen()) {
                wait = std::min(wait, BlindInterval);
            }
        }
        if (::poll(watched.data(), watched.size(), static_cast<int>(wait.count())) < 0) {
            if (errno == EINTR) {
                return;
            }
            std::this_thread::sleep_for(BlindInterval);
        }
        for (ChildProcess* child : running) {
            Drain(*child);
        }
    }
}

void Kill(ChildProcess& child) {
    if (!child.gone) {
        ::kill(-child.id, SIGKILL);
    }
    child.killed = true;
}

ChildResult CollectChild(ChildProcess& child) {
    const bool ended = HasEnded(child);
    if (!ended) {
        child.exitCode = 128 + SIGKILL;
    }
    Kill(child);
    Drain(child);
    if (ended && !child.gone) {
        siginfo_t info{};
        ::waitid(P_PID, static_cast<id_t>(child.id), &info, WEXITED | WNOHANG);
        child.gone = true;
    }
    return {child.exitCode, JoinedText(child.written)};
}

void ReleaseChild::operator()(ChildProcess* child) const {
    const std::unique_ptr<ChildProcess> owned(child);
    if (!HasEnded(*child) && !child->killed) {
        Kill(*child);
        const Clock::time_point deadline = Clock::now() + KillLimit;
        while (!HasEnded(*child) && Clock::now() < deadline) {
            WaitForAnyEnd({child}, KillLimit);
        }
    }
    if (!child->gone) {
        CollectChild(*child);
    }
}

} // namespace Merivane::Radiance
