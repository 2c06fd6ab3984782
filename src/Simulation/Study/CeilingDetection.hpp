#pragma once

#include <optional>
#include <vector>

#include "Simulation/Geometry.hpp"
#include "Simulation/PolygonGeometry.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

/// A level face of a model, as a part of a ceiling or anything else that lies flat.
struct LevelFace {
    Polygon2D outline; ///< in plan [m]
    Bounds2D bounds;   ///< of the outline
    double z = 0.0;    ///< [m]
};

/// The level faces among `surfaces`, lowest first: those of 3 vertices or more, all at most 0.002 m
/// above or below the first. Their height is that of the first.
std::vector<LevelFace> CollectLevelFaces(const std::vector<SceneSurface>& surfaces);

/// The ceiling that most of a room has.
struct DetectedCeiling {
    double height = 0.0; ///< above the room's floor [m]
    double share = 0.0;  ///< of the room that lies below it [0.5..1]
};

/// Finds the real ceiling of a room of footprint `polygon` on `floorLevel` [m] among the level
/// `faces` of a model (lowest first) that lie 1.8 m above the floor or higher: on a lattice of
/// 24 x 24 places each place within the room votes for the lowest face over it, heights in whole
/// centimetres counting as one. The height with most votes wins, of equals the lowest. None where
/// it does not cover half of the room.
std::optional<DetectedCeiling> DetectCeiling(const Polygon2D& polygon, double floorLevel,
                                             const std::vector<LevelFace>& faces);

/// What was found out about the ceiling of a Zone before it was calculated.
struct ZoneCeiling {
    double zoneHeight = 0.0; ///< as the project has it [m]
    std::optional<DetectedCeiling> detected;
};

} // namespace Merivane::Simulation
