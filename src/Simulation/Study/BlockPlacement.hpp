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
/// texts), clear of each other by `gap` [m], as near to their owner as that allows, so that no two
/// cover each other at any scale. Every block gets a place.
std::vector<Point2D> PlaceBlocks(const std::vector<BlockRequest>& blocks,
                                 const std::vector<Bounds2D>& occupied, double gap);

} // namespace Merivane::Simulation
