#pragma once

#include <optional>
#include <vector>

#include "Simulation/Geometry.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

/// The ceiling that most of a room has.
struct DetectedCeiling {
    double height = 0.0; ///< above the room's floor [m]
    double share = 0.0;  ///< of the room that lies below it [0.5..1]
};

/// Finds the real ceiling of a room of footprint `polygon` on `floorLevel` [m] among the flat,
/// level faces of a model, 1.8 m above the floor and higher: on a lattice of 24 x 24 places each
/// place votes for the lowest face over it. None where no height covers half of the room.
std::optional<DetectedCeiling> DetectCeiling(const Polygon2D& polygon, double floorLevel,
                                             const std::vector<SceneSurface>& surfaces);

} // namespace Merivane::Simulation
