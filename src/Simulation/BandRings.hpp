#pragma once

#include "Simulation/ContourMesh.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace Merivane::Simulation {

/// The closed boundaries of bands, the band always on their left.
struct BandRings {
    struct Ring {
        std::uint32_t band = 0;
        std::size_t first = 0; ///< index into `points`
        std::size_t count = 0;
    };

    std::vector<Point2D> points; ///< [m], ring after ring
    std::vector<Ring> rings;     ///< those of one band in the order of their first vertices

    /// The vertices of a ring.
    std::span<const Point2D> PointsOf(const Ring& ring) const {
        return std::span(points).subspan(ring.first, ring.count);
    }
};

/// Follows every boundary of a mesh built with `MeshBorder::Corners`. Where two boundaries of a
/// band touch in a node they are kept apart by the leftmost turn.
BandRings TraceBandRings(ContourMesh mesh);

} // namespace Merivane::Simulation
