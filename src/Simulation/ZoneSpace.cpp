#include "Simulation/ZoneSpace.hpp"

#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Simulation {

namespace {

// How far above the ceiling a light source may stand and still light the room [m].
constexpr double LetIntoCeiling = 0.5;

} // namespace

bool HoldsLuminaire(const ZoneSpace& zone, const Point3D& place) {
    return place.z > zone.floorLevel && place.z < zone.floorLevel + zone.height + LetIntoCeiling &&
           IsInsidePolygon(zone.polygon, {place.x, place.y});
}

} // namespace Merivane::Simulation
