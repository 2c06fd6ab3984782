#pragma once

#include <string>
#include <string_view>

/// Numbers as the function STR writes them.
namespace Merivane::Workbench {

/// `value` with `decimals` behind the point, blanks in front up to `width` characters.
std::string FormatWidth(double value, int width, int decimals);

/// `value` by a format: "%", flags, width, ".decimals" and a unit. Flags: `-` to the left, `+` and
/// blank in front of what is positive, `#` without closing zeros, `*` and digits taken and not
/// used. Units: m, cm or c, cc, mm, e, di and fi (inches), df and ffi (feet), the same as areas
/// behind `sq`, dd, dms, gr, rad, surv as dd. `value` is metres, square metres or degrees. A
/// format that is none of these gives the number in its shortest form.
std::string FormatByUnit(std::string_view format, double value);

} // namespace Merivane::Workbench
