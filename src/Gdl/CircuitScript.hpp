#pragma once

#include <string>
#include <string_view>

namespace Merivane::Photometry {

/// 2D script fragment (LF line ends) that writes a luminaire's circuit on the plan, upright on the
/// sheet however the object is turned or mirrored, with hotspots that move the text along X and Y.
std::string CircuitScript2D();

/// One line, indented by a tab and ended by LF, of an editable hotspot of a 2D script. `x`, `y`
/// and `flags` are script expressions, `parameter` the name of the length that the hotspot moves.
std::string Hotspot2Line(std::string_view x, std::string_view y, int id, std::string_view parameter,
                         std::string_view flags);

} // namespace Merivane::Photometry
