#include "Simulation/CellSegments.hpp"

namespace Merivane::Simulation {

CellSegmentList CellSegments(double c0, double c1, double c2, double c3, double level) {
    const unsigned above = (c0 >= level ? 1U : 0U) | (c1 >= level ? 2U : 0U) |
                           (c2 >= level ? 4U : 0U) | (c3 >= level ? 8U : 0U);
    const double centre = (c0 + c1 + c2 + c3) * 0.25;
    return SegmentsOfCase(above, centre >= level);
}

} // namespace Merivane::Simulation
