#pragma once

#include <vector>

#include "Archicad/ModelReadingZones.hpp"
#include "Simulation/Geometry.hpp"

/// Which faces of the model look into the rooms that are calculated.
namespace Merivane::Archicad {

/// A Zone as a space to look into.
struct ZoneRoom {
    Simulation::Polygon2D polygon;
    Simulation::Point3D lowest; ///< of its upright box [m]
    Simulation::Point3D highest;
};

std::vector<ZoneRoom> RoomsOfZones(const std::vector<ZoneRecord>& zones);

/// True when a place lies in any of the rooms, their borders included, 1 cm under their floors and
/// over their ceilings too.
bool LiesInRoom(const std::vector<ZoneRoom>& rooms, const Simulation::Point3D& place);

/// True when one meter from a face along its normal (of length 1), looked at every 5 cm, there is a
/// room.
bool LooksIntoRoom(const std::vector<ZoneRoom>& rooms, const Simulation::Point3D& middle,
                   const Simulation::Point3D& normal);

} // namespace Merivane::Archicad
