#pragma once

#include <utility>
#include <vector>

#include "Drawing/DisplayList.hpp"

namespace Merivane::Workbench {

/// The parts of parallel lines that lie inside a region (what an odd number of rings encloses).
/// `angle` is their direction [rad], `distance` above 0 is from one to the next [mm]; one of them
/// goes through (0, 0), so that neighbouring regions match. None where there would be over 20000.
std::vector<std::pair<Drawing::Point, Drawing::Point>>
PatternLines(const std::vector<std::vector<Drawing::Point>>& rings, double angle, double distance);

} // namespace Merivane::Workbench
