#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Merivane::Program {

/// The engine's profile for as long as this lives: the session's preferences are a copy then, and
/// the user's keep their engine. What the run learns for later runs (how long it took, corrected
/// reflectances) goes to the user's preferences at the end. Nothing happens without a profile.
class ProfileForRun {
public:
    explicit ProfileForRun(std::optional<std::uint32_t> profile);
    ~ProfileForRun();
    ProfileForRun(const ProfileForRun&) = delete;
    ProfileForRun& operator=(const ProfileForRun&) = delete;

private:
    bool held = false;
    std::wstring file; ///< of the user's preferences
};

} // namespace Merivane::Program
