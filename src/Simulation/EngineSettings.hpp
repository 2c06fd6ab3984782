#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Merivane::Simulation {

/// How hard the calculation works: the ambient parameters of `rtrace`. Defaults are "Projeto".
struct EngineSettings {
    std::uint32_t profile = 1;       ///< 0 quick study, 1 design, 2 final, 3 custom
    std::int32_t bounces = 2;        ///< -ab [0..8]
    std::int32_t divisions = 1024;   ///< -ad [64..8192]
    std::int32_t supersamples = 512; ///< -as [0..4096]
    std::int32_t resolution = 256;   ///< -ar [16..1024]
    double accuracy = 0.15;          ///< -aa [0.05..0.5]
    double limitWeight = 0.002;      ///< -lw [0.0001..0.05]
    std::int32_t maxProcesses = 0;   ///< [0..64]; 0 = automatic

    bool operator==(const EngineSettings&) const = default;
};

/// Key of the settings' text form in the preference block.
inline constexpr std::string_view EngineSettingsKey = "MVENGN01";

/// The profile a user asks for by number: 0 quick study, 1 design, 2 final. Any other number gives
/// the values of "Projeto" with `profile` 1.
EngineSettings ProfileSettings(std::uint32_t profile);

/// Every field clamped to its range; `profile` is copied.
EngineSettings NormaliseSettings(const EngineSettings& settings);

/// The profile whose numbers these are, 3 when none. The number of processes does not count.
std::uint32_t DetectProfile(const EngineSettings& settings);

/// True when both calculate the same light; the number of processes does not count.
bool SameSettings(const EngineSettings& a, const EngineSettings& b);

/// Name of a profile as the user sees it; empty for a number above 3.
std::string ProfileName(std::uint32_t profile);

/// What a profile is for, as the user reads it; empty for a number above 3.
std::string ProfileDescription(std::uint32_t profile);

/// One line that names profile, reflections and rays, for the log.
std::string EngineSummary(const EngineSettings& settings);

/// Portuguese sentences on choices that a user should know the price of.
std::vector<std::string> EngineWarnings(const EngineSettings& settings);

/// Estimated time relative to "Projeto" (1.0), at least 0.01: a fitted model.
double CostFactor(const EngineSettings& settings);

/// Reads the stored text form. Returns false, with `settings` the "Projeto" values, when it is of
/// another version, a number can't be read or the profile number is not below 4. The numbers are
/// normalised and decide the profile.
bool ParseEngineSettings(std::string_view text, EngineSettings& settings);

/// The stored text form; `ParseEngineSettings` reads it back exactly.
std::string FormatEngineSettings(const EngineSettings& settings);

} // namespace Merivane::Simulation
