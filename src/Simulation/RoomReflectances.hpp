#pragma once

#include "Simulation/Scene.hpp"
#include "Simulation/ZoneSpace.hpp"

namespace Merivane::Simulation {

/// Mean reflectances of a room [0..1], weighed by area; -1 where nothing of the kind was found.
struct RoomReflectances {
    double ceiling = -1.0;
    double walls = -1.0;
    double floor = -1.0;
};

/// Mean reflectances of the diffuse surfaces that bound or furnish a Zone: those whose middle lies
/// in its bounding box, up to 0.3 m outside. Sloping faces count for nothing; level ones are floor
/// below `splitHeight` [m] above the Zone's floor and ceiling from there up. Furniture is not told
/// apart. The colour weights are Radiance's own (0.265, 0.670, 0.065).
RoomReflectances MeanSurfaceReflectances(const Scene& scene, const ZoneSpace& zone,
                                         double splitHeight);

} // namespace Merivane::Simulation
