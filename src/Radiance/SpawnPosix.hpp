#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace Merivane::Radiance {

/// A file descriptor that is closed with its owner; -1 when there is none.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int fileDescriptor) : number(fileDescriptor) {}
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    ~Descriptor();

    int Number() const { return number; }
    bool IsOpen() const { return number >= 0; }

    /// A second descriptor of the same file, above the three standard ones, not inherited.
    Descriptor Copy() const;

private:
    int number = -1;
};

/// A process to start. Its standard streams are the three descriptors; without one, input is empty
/// and what is written goes nowhere.
struct SpawnRequest {
    std::string program;            ///< path; the search path is not used
    std::vector<std::string> words; ///< program name and arguments, as the program sees them
    std::string workingFolder;      ///< empty for the one of this process
    std::wstring rayPath;           ///< when not empty, RAYPATH of the child
    Descriptor input;
    Descriptor output;
    Descriptor error; ///< must be open
};

/// Starts a process as leader of a group of its own, with every signal unblocked and at its
/// default, and no other descriptor of this process. Returns its id, -1 when it can't be started.
/// The descriptors are closed in this process either way.
pid_t Spawn(SpawnRequest request);

} // namespace Merivane::Radiance
