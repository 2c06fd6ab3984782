#pragma once

#include <string_view>

/// What windows and views may be.
namespace Merivane::Workbench {

/// Scale denominators, as the host limits them.
inline constexpr double SmallestScale = 1.0;
inline constexpr double LargestScale = 30'000.0;

/// True for a name of 1 to 255 units of UTF-16, UTF-8 without zeros.
bool IsWindowName(std::string_view name);

bool IsScale(double scale);

} // namespace Merivane::Workbench
