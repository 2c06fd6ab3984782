#include "Archicad/ZoneSight.hpp"

#include <algorithm>

#include "Simulation/PolygonGeometry.hpp"

namespace Merivane::Archicad {

namespace {

using Simulation::Point3D;

constexpr double SightStep = 0.05;   // m
constexpr double SightLength = 1.0;  // m
constexpr double LevelMargin = 0.01; // m, below a floor and above a ceiling

/// A border counts as inside, so the box is a little wider than the outline.
bool BoxHolds(const ZoneRoom& room, const Point3D& place) {
    return place.x >= room.lowest.x - Simulation::OnBoundary &&
           place.x <= room.highest.x + Simulation::OnBoundary &&
           place.y >= room.lowest.y - Simulation::OnBoundary &&
           place.y <= room.highest.y + Simulation::OnBoundary &&
           place.z >= room.lowest.z - LevelMargin && place.z <= room.highest.z + LevelMargin;
}

} // namespace

std::vector<ZoneRoom> RoomsOfZones(const std::vector<ZoneRecord>& zones) {
    std::vector<ZoneRoom> rooms;
    rooms.reserve(zones.size());
    for (const ZoneRecord& zone : zones) {
        rooms.push_back({{zone.outline, zone.holes},
                         {zone.minX, zone.minY, zone.baseLevel},
                         {zone.maxX, zone.maxY, zone.baseLevel + zone.height}});
    }
    return rooms;
}

bool LiesInRoom(const std::vector<ZoneRoom>& rooms, const Point3D& place) {
    return std::any_of(rooms.begin(), rooms.end(), [&](const ZoneRoom& room) {
        return BoxHolds(room, place) && IsInsidePolygon(room.polygon, {place.x, place.y});
    });
}

bool LooksIntoRoom(const std::vector<ZoneRoom>& rooms, const Point3D& middle,
                   const Point3D& normal) {
    for (int step = 1; step * SightStep <= SightLength + 1e-9; ++step) {
        const double d = step * SightStep;
        if (LiesInRoom(rooms, {middle.x + d * normal.x, middle.y + d * normal.y,
                               middle.z + d * normal.z})) {
            return true;
        }
    }
    return false;
}

} // namespace Merivane::Archicad
