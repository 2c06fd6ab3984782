// `posix_spawn`, never `fork`: the host's address space is large and has threads, and a copy of it
// that runs even for a moment can lock up or run out of memory.

#include "Radiance/SpawnPosix.hpp"

#include <csignal>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include "Radiance/Environment.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Radiance {

Descriptor::Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number, other.number);
    return *this;
}

Descriptor::~Descriptor() {
    if (number >= 0) {
        ::close(number);
    }
}

Descriptor Descriptor::Copy() const {
    return Descriptor(::fcntl(number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

namespace {

class FileActions {
public:
    FileActions() { ::posix_spawn_file_actions_init(&actions); }
    ~FileActions() { ::posix_spawn_file_actions_destroy(&actions); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    posix_spawn_file_actions_t* Get() { return &actions; }

private:
    posix_spawn_file_actions_t actions;
};

class Attributes {
public:
    Attributes() { ::posix_spawnattr_init(&attributes); }
    ~Attributes() { ::posix_spawnattr_destroy(&attributes); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    posix_spawnattr_t* Get() { return &attributes; }

private:
    posix_spawnattr_t attributes;
};

/// Makes `source` the child's `target`, or the null device where there is no source.
bool Redirect(FileActions& actions, const Descriptor& source, int target, int nullMode) {
    if (source.IsOpen()) {
        return ::posix_spawn_file_actions_adddup2(actions.Get(), source.Number(), target) == 0;
    }
    return ::posix_spawn_file_actions_addopen(actions.Get(), target, "/dev/null", nullMode, 0) == 0;
}

bool SetUpFiles(FileActions& actions, SpawnRequest& request) {
    // A host that closed its standard streams gives their numbers to the files opened here; they
    // must be out of the way before the child's streams are put there.
    for (Descriptor* descriptor : {&request.input, &request.output, &request.error}) {
        if (descriptor->IsOpen() && descriptor->Number() <= STDERR_FILENO) {
            *descriptor = descriptor->Copy();
            if (!descriptor->IsOpen()) {
                return false;
            }
        }
    }
    const std::string& folder = request.workingFolder;
    posix_spawn_file_actions_t* list = actions.Get();
    return request.error.IsOpen() && Redirect(actions, request.input, STDIN_FILENO, O_RDONLY) &&
           Redirect(actions, request.output, STDOUT_FILENO, O_WRONLY) &&
           Redirect(actions, request.error, STDERR_FILENO, O_WRONLY) &&
           (folder.empty() || ::posix_spawn_file_actions_addchdir_np(list, folder.c_str()) == 0) &&
           ::posix_spawn_file_actions_addclosefrom_np(list, STDERR_FILENO + 1) == 0;
}

bool SetUpSignals(Attributes& attributes) {
    sigset_t none;
    sigset_t all;
    ::sigemptyset(&none);
    ::sigfillset(&all);
    posix_spawnattr_t* list = attributes.Get();
    constexpr short flags = POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
    return ::posix_spawnattr_setsigmask(list, &none) == 0 &&
           ::posix_spawnattr_setsigdefault(list, &all) == 0 &&
           ::posix_spawnattr_setpgroup(list, 0) == 0 &&
           ::posix_spawnattr_setflags(list, flags) == 0;
}

/// The texts as the null-terminated list that the system takes; they must outlive it.
std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

pid_t Spawn(SpawnRequest request) {
    FileActions actions;
    Attributes attributes;
    if (!SetUpFiles(actions, request) || !SetUpSignals(attributes)) {
        return -1;
    }
    std::vector<std::string> entries;
    if (!request.rayPath.empty()) {
        for (const std::wstring& entry : EnvironmentEntriesWith(request.rayPath)) {
            entries.push_back(Text::Narrow(entry));
        }
    }
    std::vector<char*> environment = Pointers(entries);
    char** childEnvironment = request.rayPath.empty() ? environ : environment.data();
    pid_t id = -1;
    const int failure = ::posix_spawn(&id, request.program.c_str(), actions.Get(), attributes.Get(),
                                      Pointers(request.words).data(), childEnvironment);
    return failure == 0 ? id : -1;
}

} // namespace Merivane::Radiance
