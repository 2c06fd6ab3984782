#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Merivane::Radiance {

/// Automatic number of `rtrace` processes [1..64]: at least about 150 points a process, and two
/// logical processors stay free for the user.
std::int32_t ProcessCountFor(std::uint64_t points, std::uint32_t logicalProcessors);

/// The lines of `text`, split at LF, one CR at the end of each removed, empty lines dropped. They
/// view into `text`.
std::vector<std::string_view> NonEmptyLines(std::string_view text);

/// Every n-th line of a point file, for the seed pass: about 100 lines up to 2400 points, more
/// beyond. Each line ends in LF.
std::string SeedPoints(std::string_view sensorsText);

/// The lines of a point file in `count` contiguous shares of nearly equal length: neighbouring
/// points stay in one process. Each line ends in LF. A `count` below 1 gives no share.
std::vector<std::string> SplitPoints(std::string_view sensorsText, std::int32_t count);

} // namespace Merivane::Radiance
