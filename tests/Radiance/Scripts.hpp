#pragma once

#include <chrono>
#include <filesystem>
#include <string>

namespace Merivane::Tests {

/// A `/bin/sh` script named `name` in `folder`, executable. Returns its full path, wide.
std::wstring WriteScript(const std::filesystem::path& folder, const std::string& name,
                         const std::string& body);

/// The milliseconds that a call takes.
template <typename Call> double Milliseconds(const Call& call) {
    const auto begin = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
        .count();
}

/// True when process `id` exists and has not ended; a zombie counts as ended.
bool IsRunning(int id);

/// The number in a file that a script wrote, waiting up to 5 s for it; fails the running test when
/// it does not come.
int AwaitNumber(const std::filesystem::path& path);

/// Waits up to 5 s for process `id` to be gone.
bool EndsSoon(int id);

} // namespace Merivane::Tests
