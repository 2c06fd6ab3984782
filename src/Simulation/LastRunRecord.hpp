#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Merivane::Simulation {

/// What the last successful calculation took, for the estimate of the next one.
struct LastRunRecord {
    bool valid = false;
    std::int32_t points = 0;   ///< calculation points, at least 1
    double seconds = 0.0;      ///< elapsed time, above 0
    double costFactor = 0.0;   ///< `CostFactor` of the settings used
    std::int32_t runCount = 1; ///< written as 1, never read

    bool operator==(const LastRunRecord&) const = default;
};

/// Key of the record in the preference block.
inline constexpr std::string_view LastRunKey = "MVLRUN01";

/// Reads the stored text form. `valid` is set, and the numbers hold, only when the header line is
/// exact, all four values can be read, `points` is at least 1 and `seconds` above 0.
LastRunRecord ParseLastRun(std::string_view text);

/// The stored text form; `ParseLastRun` reads the numbers back exactly.
std::string FormatLastRun(const LastRunRecord& record);

} // namespace Merivane::Simulation
