#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "Host/Types.hpp"

namespace Merivane::Workbench {

/// A flat face as a view shows it: its rings on the paper, the lines that are drawn with it, and
/// how near its plane is to the viewer.
struct PaintedFace {
    std::vector<std::vector<Host::Coordinate>> rings; ///< outline and holes [m]
    std::vector<std::pair<Host::Coordinate, Host::Coordinate>> edges;
    Host::Coordinate3D normal; ///< of its plane; its z is not 0
    double offset = 0.0;       ///< normal . place for places of the plane
    std::size_t look = 0;      ///< the caller's; pieces of a face keep it
};

/// The faces in an order in which nearer ones, painted later, cover farther ones: where two lie
/// over each other on the paper, the one that is farther there comes first. Faces that go through
/// each other, or are nearer here and farther there, are cut by each other's planes; of faces that
/// each cover the next in a ring one is cut between its neighbours. Where nothing overlaps the
/// farther one by its middle comes first, then the earlier one; models of over 30000 faces are
/// ordered so alone.
std::vector<PaintedFace> PaintOrder(std::vector<PaintedFace> faces);

} // namespace Merivane::Workbench
