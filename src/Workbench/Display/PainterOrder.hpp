#pragma once

#include <cstddef>
#include <vector>

#include "Host/Types.hpp"

namespace Merivane::Workbench {

/// A flat face as a view shows it: its rings on the paper, and how near its plane is to the viewer.
struct PaintedFace {
    std::vector<std::vector<Host::Coordinate>> rings; ///< outline and holes [m]
    Host::Coordinate3D normal;                        ///< of its plane; its z is not 0
    double offset = 0.0;                              ///< normal . place for places of the plane
};

/// The order in which faces are painted so that nearer ones cover farther ones: where two of them
/// lie over each other on the paper, the one that is farther there comes first. Faces that go
/// through each other and rings of faces that each cover the next have no such order: there, and
/// where nothing overlaps, the farther one by its middle comes first, then the earlier one.
std::vector<std::size_t> PaintOrder(const std::vector<PaintedFace>& faces);

} // namespace Merivane::Workbench
