#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Merivane::Simulation {

/// The edges of a grid cell by number: 0 bottom, 1 right, 2 top, 3 left. Its corners, numbered
/// counter-clockwise from the lower left, begin these edges: edge e runs from corner e to e + 1.
struct EdgePair {
    std::uint8_t first = 0;
    std::uint8_t second = 0;

    bool operator==(const EdgePair&) const = default;
};

/// The pieces of one level's curve within one cell; only the first `count` pairs mean something.
struct CellSegmentList {
    std::size_t count = 0; ///< 0, 1 or 2
    std::array<EdgePair, 2> pairs;
};

/// Which edges the curve of `level` joins in a cell with these corner values. A value equal to the
/// level lies above it. At a saddle the mean of the corners decides: at least the level, and the
/// high corners are joined.
CellSegmentList CellSegments(double c0, double c1, double c2, double c3, double level);

/// The same by the corners that lie at or above the level, corner k in bit k of `above` [0..15].
/// `centreAbove` counts at a saddle only, which is 5 or 10.
const CellSegmentList& CellSegments(unsigned above, bool centreAbove);

} // namespace Merivane::Simulation
