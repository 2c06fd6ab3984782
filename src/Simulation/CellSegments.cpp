// Marching squares. The table is indexed by the corners above the level; the two saddles stand
// there cut apart, and joined in a row of their own.
#include "Simulation/CellSegments.hpp"

namespace Merivane::Simulation {

namespace {

constexpr CellSegmentList None{0, {}};
constexpr CellSegmentList LowerLeft{1, {{{3, 0}, {0, 0}}}};
constexpr CellSegmentList LowerRight{1, {{{0, 1}, {0, 0}}}};
constexpr CellSegmentList UpperRight{1, {{{1, 2}, {0, 0}}}};
constexpr CellSegmentList UpperLeft{1, {{{3, 2}, {0, 0}}}};
constexpr CellSegmentList Across{1, {{{3, 1}, {0, 0}}}};
constexpr CellSegmentList Upright{1, {{{0, 2}, {0, 0}}}};
/// The curve cuts off corners 0 and 2.
constexpr CellSegmentList SaddleRising{2, {{{3, 0}, {1, 2}}}};
/// The curve cuts off corners 1 and 3.
constexpr CellSegmentList SaddleFalling{2, {{{3, 2}, {0, 1}}}};

constexpr std::array<CellSegmentList, 16> CentreBelow{
    None,      LowerLeft, LowerRight,    Across,     UpperRight, SaddleRising, Upright,   UpperLeft,
    UpperLeft, Upright,   SaddleFalling, UpperRight, Across,     LowerRight,   LowerLeft, None};

} // namespace

const CellSegmentList& CellSegments(unsigned above, bool centreAbove) {
    if (centreAbove && above == 5) {
        return SaddleFalling;
    }
    if (centreAbove && above == 10) {
        return SaddleRising;
    }
    return CentreBelow[above & 15U];
}

CellSegmentList CellSegments(double c0, double c1, double c2, double c3, double level) {
    const unsigned above = (c0 >= level ? 1U : 0U) | (c1 >= level ? 2U : 0U) |
                           (c2 >= level ? 4U : 0U) | (c3 >= level ? 8U : 0U);
    const double centre = (c0 + c1 + c2 + c3) * 0.25;
    return CellSegments(above, centre >= level);
}

} // namespace Merivane::Simulation
