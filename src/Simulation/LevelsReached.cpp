// A search for the level of each node would guess wrong at every other node of a noisy field. So
// nodes are compared in blocks with all the levels within the block's range, in plain loops that
// the compiler makes vector instructions of.
#include "Simulation/LevelsReached.hpp"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace Merivane::Simulation {

namespace {

/// Smallest and largest of `size` values; those that are no number are passed over.
std::pair<double, double> RangeOf(const double* values, std::size_t size) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    std::array<double, 4> low{infinity, infinity, infinity, infinity};
    std::array<double, 4> high{-infinity, -infinity, -infinity, -infinity};
    for (std::size_t n = 0; n < size; n += low.size()) {
        for (std::size_t lane = 0; lane < low.size(); ++lane) {
            const double v = values[n + lane];
            low[lane] = v < low[lane] ? v : low[lane];
            high[lane] = v > high[lane] ? v : high[lane];
        }
    }
    return {std::min(std::min(low[0], low[1]), std::min(low[2], low[3])),
            std::max(std::max(high[0], high[1]), std::max(high[2], high[3]))};
}

} // namespace

std::vector<std::int32_t> CountLevelsReached(const std::vector<double>& values,
                                             std::size_t nodeCount, const LevelList& levels) {
    constexpr std::size_t blockSize = 32;
    std::vector<std::int32_t> reached(nodeCount);
    std::array<double, blockSize> block{};
    std::array<double, blockSize> count{}; // as wide as the values
    for (std::size_t first = 0; first < nodeCount; first += blockSize) {
        const std::size_t size = std::min(blockSize, nodeCount - first);
        std::copy_n(&values[first], size, block.begin());
        const auto [low, high] = RangeOf(block.data(), blockSize);
        auto level = std::upper_bound(levels.begin(), levels.end(), low);
        const auto reachedByAll = static_cast<double>(level - levels.begin());
        for (std::size_t n = 0; n < blockSize; ++n) {
            count[n] = block[n] == block[n] ? reachedByAll : -1.0;
        }
        for (; level != levels.end() && *level <= high; ++level) {
            const double lux = *level;
            for (std::size_t n = 0; n < blockSize; ++n) {
                count[n] += block[n] >= lux ? 1.0 : 0.0;
            }
        }
        for (std::size_t n = 0; n < size; ++n) {
            reached[first + n] = static_cast<std::int32_t>(count[n]);
        }
    }
    return reached;
}

} // namespace Merivane::Simulation
