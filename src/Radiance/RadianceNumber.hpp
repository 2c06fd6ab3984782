#pragma once

#include <string>

namespace Merivane::Radiance {

/// The one number form of Radiance files: the C format "%.*f" with a point, whatever the locale.
/// The results "-0.000000" and "-0" lose their sign; other forms of a negative zero keep it.
std::string FormatNumber(double value, int decimals);

} // namespace Merivane::Radiance
