#pragma once

#include <string>

#include "Simulation/Geometry.hpp"

namespace Merivane::Simulation {

/// The room that a Zone stands for, as the analyses see it.
struct ZoneSpace {
    std::string name;
    Polygon2D polygon;       ///< footprint [m]
    double floorLevel = 0.0; ///< [m]
    double height = 0.0;     ///< floor to ceiling [m]
};

/// True where a light source at `place` counts for the Zone: in plan inside its polygon (edges
/// included), in height strictly between the floor and half a metre above the ceiling, since
/// fittings are let into ceilings.
bool HoldsLuminaire(const ZoneSpace& zone, const Point3D& place);

} // namespace Merivane::Simulation
