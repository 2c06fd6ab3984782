#pragma once

#include <algorithm>
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

/// The milliseconds of the first of many tries that takes less than `limit`, of the shortest try
/// where none does. A machine that is busy makes single tries long, and never one short.
template <typename Call> double ShortestMilliseconds(double limit, const Call& call) {
    double shortest = Milliseconds(call);
    for (int tries = 1; tries < 100 && shortest >= limit; ++tries) {
        shortest = std::min(shortest, Milliseconds(call));
    }
    return shortest;
}

/// True when a script has written a whole line into the file: it makes the file a moment before.
bool HoldsALine(const std::filesystem::path& path);

/// True when process `id` exists and has not ended; a zombie counts as ended.
bool IsRunning(int id);

/// The number in a file that a script wrote, waiting up to 5 s for it; fails the running test when
/// it does not come.
int AwaitNumber(const std::filesystem::path& path);

/// Waits up to 5 s for process `id` to be gone.
bool EndsSoon(int id);

} // namespace Merivane::Tests
