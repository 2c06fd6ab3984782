#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Simulation/LevelList.hpp"

namespace Merivane::Simulation {

/// For each of the first `nodeCount` values, how many levels it reaches: the values equal to a
/// level lie above it. -1 for NaN.
std::vector<std::int32_t> CountLevelsReached(const std::vector<double>& values,
                                             std::size_t nodeCount, const LevelList& levels);

} // namespace Merivane::Simulation
