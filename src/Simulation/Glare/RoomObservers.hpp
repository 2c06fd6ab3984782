#pragma once

#include <vector>

#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/ZoneSpace.hpp"

namespace Merivane::Simulation {

/// An observer of a real room, with what Radiance gave for the view.
struct RoomObserver {
    UgrObserver observer;             ///< its label names it
    bool placed = false;              ///< put there by the user; else at mid-wall
    double verticalIlluminance = 0.0; ///< reflected light at the eye, across the sight [lux]
};

/// The observers at mid-wall of a real Zone, eye 1.20 m above its floor, looking into the room: on
/// the two middle lines of its bounding box, 0.01 m inside the first and the last place where the
/// line is inside the Zone. None on a line that does not meet the Zone, and none in a Zone that is
/// no higher than the eye. Order and labels are those of a standard room, a label telling the
/// coordinate of its wall: "meio da parede y = 12,30, olhando ao longo de Y".
std::vector<UgrObserver> MidWallObservers(const ZoneSpace& zone);

/// The view of an observer as a loose calculation point, its direction of length 1.
ScenePoint ObserverView(const UgrObserver& observer);

/// True where an eye stands inside the Zone: in plan with its edges, in height from its floor up to
/// below its ceiling.
bool HoldsObserver(const ZoneSpace& zone, const UgrObserver& observer);

} // namespace Merivane::Simulation
