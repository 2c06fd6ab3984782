#pragma once

#include <vector>

#include "Simulation/Geometry.hpp"
#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Simulation {

/// A block of text or a legend that looks for a place beside what it belongs to [m].
struct BlockRequest {
    Bounds2D owner; ///< the Zone, or all Zones for a legend
    double width = 0.0;
    double height = 0.0;
};

/// Upper left corners of the blocks, same order: outside `occupied` (the drawing, other floors'
/// texts) and outside the Zones, clear of them and of each other by `gap` [m], as near to their
/// owner as that allows, so that no two cover each other at any scale. Blocks stand beside the
/// building that their owner is part of, never in its gaps: right, left, below or above, level with
/// the owner where nothing is in the way. Those that come first choose first. Every block gets a
/// place; the same input gives the same places.
std::vector<Point2D> PlaceBlocks(const std::vector<BlockRequest>& blocks,
                                 const std::vector<Bounds2D>& occupied, double gap);

} // namespace Merivane::Simulation
