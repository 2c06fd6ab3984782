#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "Simulation/ContourMesh.hpp"

namespace Merivane::Simulation {

/// Takes one closed boundary of a band [m], the band on its left. The ring is the visitor's to
/// change.
using BandRingVisitor = std::function<void(std::size_t band, std::vector<Point2D>& ring)>;

/// Follows every boundary of every band of a mesh built with `MeshBorder::Corners`; those of one
/// band in the order of their first vertices. Where two boundaries of a band touch in a node they
/// are kept apart by the leftmost turn.
void ForEachBandRing(ContourMesh mesh, const BandRingVisitor& visit);

} // namespace Merivane::Simulation
