#pragma once

#include <string_view>

namespace Merivane::Simulation {

/// Width of a line of UTF-8 text in a common sans serif face whose capitals are `height` high; same
/// unit as `height`. An estimate on the safe side, a few percent at most above what a wide face
/// such as DejaVu Sans takes: places are chosen by it where no host is at hand to measure the
/// letters. Control characters take no room.
double EstimateTextWidth(std::string_view text, double height, bool bold = false);

/// From line to line of a text of that height, same unit.
double TextLinePitch(double height);

} // namespace Merivane::Simulation
