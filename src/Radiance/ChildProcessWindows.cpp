#include "Radiance/ChildProcess.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include <windows.h>

#include "Radiance/BoundedText.hpp"
#include "Radiance/CommandLine.hpp"
#include "Radiance/Environment.hpp"

namespace Merivane::Radiance {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr DWORD PipeSize = 65536; // bytes
constexpr DWORD DefaultPipeSize = 0;
constexpr DWORD KillLimit = 5000; // ms
constexpr UINT KilledExitCode = 1;

/// Waits for a process can't wait for its pipe too: while a child writes, its pipe is emptied this
/// often, and otherwise as often as the caller looks.
constexpr milliseconds WritingInterval{10};

/// A handle that is closed with its owner; null when there is none.
class Handle {
public:
    Handle() = default;
    explicit Handle(HANDLE systemHandle)
        : handle(systemHandle == INVALID_HANDLE_VALUE ? nullptr : systemHandle) {}
    Handle(Handle&& other) noexcept : handle(std::exchange(other.handle, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle, other.handle);
        return *this;
    }
    ~Handle() {
        if (handle != nullptr) {
            CloseHandle(handle);
        }
    }

    HANDLE Get() const { return handle; }
    bool IsOpen() const { return handle != nullptr; }

private:
    HANDLE handle = nullptr;
};

} // namespace

struct ChildProcess {
    Handle process;
    Handle output; ///< read end of what the child writes; closed at its end
    BoundedText written;
    bool killed = false;
};

namespace {

/// The standard streams of a child, inheritable; null for none.
struct Streams {
    HANDLE input = nullptr;
    HANDLE output = nullptr;
    HANDLE error = nullptr;
};

SECURITY_ATTRIBUTES Inheritable() {
    SECURITY_ATTRIBUTES attributes{};
    attributes.nLength = sizeof(attributes);
    attributes.bInheritHandle = TRUE;
    return attributes;
}

Handle OpenInput(const std::wstring& path) {
    SECURITY_ATTRIBUTES attributes = Inheritable();
    return Handle(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, &attributes,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

Handle OpenOutput(const std::wstring& path) {
    SECURITY_ATTRIBUTES attributes = Inheritable();
    return Handle(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &attributes,
                              CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
}

struct Pipe {
    Handle readEnd; ///< not inherited
    Handle writeEnd;
};

/// Both ends are closed when there is no pipe to be had.
Pipe OpenPipe(DWORD size) {
    SECURITY_ATTRIBUTES attributes = Inheritable();
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (CreatePipe(&readEnd, &writeEnd, &attributes, size) == 0) {
        return {};
    }
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);
    return {Handle(readEnd), Handle(writeEnd)};
}

/// Starts a command line; a closed handle on failure.
Handle Spawn(std::wstring commandLine, const std::wstring& workingFolder,
             const std::wstring& rayPath, const Streams& streams) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = streams.input;
    startup.hStdOutput = streams.output;
    startup.hStdError = streams.error;
    std::wstring environment;
    DWORD flags = CREATE_NO_WINDOW;
    if (!rayPath.empty()) {
        environment = EnvironmentBlockWith(rayPath);
        flags |= CREATE_UNICODE_ENVIRONMENT;
    }
    PROCESS_INFORMATION information{};
    const BOOL started = CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, flags,
                                        rayPath.empty() ? nullptr : environment.data(),
                                        workingFolder.empty() ? nullptr : workingFolder.c_str(),
                                        &startup, &information);
    if (started == 0) {
        return {};
    }
    CloseHandle(information.hThread);
    return Handle(information.hProcess);
}

ChildHandle MakeChild(Handle process, Handle output) {
    if (!process.IsOpen()) {
        return nullptr;
    }
    ChildHandle child(new ChildProcess);
    child->process = std::move(process);
    child->output = std::move(output);
    return child;
}

/// Takes what lies in the pipe; true when there was anything.
bool Drain(ChildProcess& child) {
    std::array<char, 512> buffer;
    bool any = false;
    DWORD available = 0;
    // As many bytes as a pipe holds: a child that writes without pause can't keep us here.
    for (DWORD taken = 0; taken < PipeSize && child.output.IsOpen();) {
        if (PeekNamedPipe(child.output.Get(), nullptr, 0, nullptr, &available, nullptr) == 0) {
            child.output = {};
            break;
        }
        DWORD count = 0;
        const DWORD wanted = std::min<DWORD>(available, static_cast<DWORD>(buffer.size()));
        if (wanted == 0 ||
            ReadFile(child.output.Get(), buffer.data(), wanted, &count, nullptr) == 0) {
            break;
        }
        Append(child.written, {buffer.data(), count});
        taken += count;
        any = true;
    }
    return any;
}

} // namespace

ChildHandle StartJob(const ProcessJob& job, std::string& errorText) {
    Handle input;
    Handle output;
    bool opened = true;
    if (!job.stdinPath.empty()) {
        input = OpenInput(job.stdinPath);
        opened = input.IsOpen();
    }
    if (opened && !job.stdoutPath.empty()) {
        output = OpenOutput(job.stdoutPath);
        opened = output.IsOpen();
    }
    if (!opened) {
        errorText = "nao foi possivel abrir o arquivo de entrada ou de saida";
        return nullptr;
    }
    Pipe pipe = OpenPipe(PipeSize);
    Handle process;
    if (pipe.writeEnd.IsOpen()) {
        process = Spawn(JoinCommandLine(job.program, job.arguments), job.workingFolder, job.rayPath,
                        {input.Get(), output.Get(), pipe.writeEnd.Get()});
    }
    ChildHandle child = MakeChild(std::move(process), std::move(pipe.readEnd));
    if (!child) {
        errorText = "o programa nao pode ser iniciado";
    }
    return child;
}

ChildHandle StartCommandLine(const std::wstring& commandLine, const std::wstring& rayPath) {
    Pipe pipe = OpenPipe(DefaultPipeSize);
    if (!pipe.writeEnd.IsOpen()) {
        return nullptr;
    }
    const Streams streams{nullptr, pipe.writeEnd.Get(), pipe.writeEnd.Get()};
    return MakeChild(Spawn(commandLine, {}, rayPath, streams), std::move(pipe.readEnd));
}

bool HasEnded(ChildProcess& child) {
    return WaitForSingleObject(child.process.Get(), 0) == WAIT_OBJECT_0;
}

void WaitForAnyEnd(const std::vector<ChildProcess*>& running, milliseconds limit) {
    // The system waits for 64 handles at most; an end among the others is seen after `limit`.
    std::array<HANDLE, MAXIMUM_WAIT_OBJECTS> handles;
    const std::size_t count = std::min<std::size_t>(running.size(), handles.size());
    for (std::size_t i = 0; i < count; ++i) {
        handles[i] = running[i]->process.Get();
    }
    const Clock::time_point deadline = Clock::now() + limit;
    for (;;) {
        bool writing = false;
        for (ChildProcess* child : running) {
            writing = Drain(*child) || writing;
        }
        const milliseconds left = std::chrono::ceil<milliseconds>(deadline - Clock::now());
        if (left <= milliseconds::zero()) {
            return;
        }
        const auto wait = static_cast<DWORD>(
            (writing ? std::min<milliseconds>(left, WritingInterval) : left).count());
        const DWORD answer =
            WaitForMultipleObjects(static_cast<DWORD>(count), handles.data(), FALSE, wait);
        if (answer == WAIT_FAILED) {
            Sleep(wait);
        } else if (answer != WAIT_TIMEOUT) {
            return;
        }
    }
}

void Kill(ChildProcess& child) {
    TerminateProcess(child.process.Get(), KilledExitCode);
    child.killed = true;
}

ChildResult CollectChild(ChildProcess& child) {
    DWORD exitCode = KilledExitCode;
    GetExitCodeProcess(child.process.Get(), &exitCode);
    Drain(child);
    return {exitCode, JoinedText(child.written)};
}

void ReleaseChild::operator()(ChildProcess* child) const {
    const std::unique_ptr<ChildProcess> owned(child);
    if (!HasEnded(*child) && !child->killed) {
        Kill(*child);
        WaitForSingleObject(child->process.Get(), KillLimit);
    }
}

} // namespace Merivane::Radiance
