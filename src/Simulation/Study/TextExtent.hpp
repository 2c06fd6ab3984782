#pragma once

#include <string_view>

namespace Merivane::Simulation {

/// Width of a line of text in a common sans serif face whose capitals are `height` high; same unit
/// as `height`. An estimate on the safe side: places are chosen by it where no host is at hand to
/// measure the letters.
double EstimateTextWidth(std::string_view text, double height, bool bold = false);

/// From line to line of a text of that height, same unit.
double TextLinePitch(double height);

} // namespace Merivane::Simulation
