#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Merivane::Simulation {

/// Two edges of a grid cell: 0 bottom, 1 right, 2 top, 3 left. The corners are numbered
/// counter-clockwise from the lower left, so edge e joins corners e and e + 1.
struct EdgePair {
    std::uint8_t first = 0;
    std::uint8_t second = 0;

    bool operator==(const EdgePair&) const = default;
};

/// The pieces of one level's curve within one cell; only the first `count` pairs mean something.
struct CellSegmentList {
    std::size_t count = 0; ///< 0, 1 or 2
    std::array<EdgePair, 2> pairs{};
};

/// Which edges the curve of `level` joins in a cell with these corner values. A value equal to the
/// level lies above it. At a saddle the mean of the corners decides: at least the level, and the
/// high corners are joined.
CellSegmentList CellSegments(double c0, double c1, double c2, double c3, double level);

/// The corners that lie above, corner k in bit k, of the two saddles.
inline constexpr unsigned SaddleUpwards = 5;
inline constexpr unsigned SaddleDownwards = 10;

/// The same by the corners that lie at or above the level, corner k in bit k of `above` [0..15].
/// `centreAbove` counts at a saddle only.
constexpr CellSegmentList SegmentsOfCase(unsigned above, bool centreAbove) {
    constexpr CellSegmentList none{0, {}};
    constexpr CellSegmentList lowerLeft{1, {{{3, 0}, {}}}};
    constexpr CellSegmentList lowerRight{1, {{{0, 1}, {}}}};
    constexpr CellSegmentList upperRight{1, {{{1, 2}, {}}}};
    constexpr CellSegmentList upperLeft{1, {{{3, 2}, {}}}};
    constexpr CellSegmentList across{1, {{{3, 1}, {}}}};
    constexpr CellSegmentList upright{1, {{{0, 2}, {}}}};
    constexpr CellSegmentList cutUpwards{2, {{{3, 0}, {1, 2}}}};   // corners 0 and 2 cut off
    constexpr CellSegmentList cutDownwards{2, {{{3, 2}, {0, 1}}}}; // corners 1 and 3 cut off
    constexpr std::array<CellSegmentList, 16> plain{
        none,      lowerLeft, lowerRight, across,     upperRight, none,       upright,   upperLeft,
        upperLeft, upright,   none,       upperRight, across,     lowerRight, lowerLeft, none};
    if (above == SaddleUpwards || above == SaddleDownwards) {
        return (above == SaddleUpwards) != centreAbove ? cutUpwards : cutDownwards;
    }
    return plain[above];
}

} // namespace Merivane::Simulation
