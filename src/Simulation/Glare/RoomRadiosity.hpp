#pragma once

#include <vector>

#include "Simulation/Glare/RoomTransport.hpp"
#include "Simulation/Glare/StandardRoom.hpp"

namespace Merivane::Simulation {

/// One lighting of a room: direct light on the patches [lux] and the reflectances of its sides.
struct RadiosityCase {
    MirrorParts irradiance;
    ReflectanceSet reflectances;
};

/// Radiosity of the patches [lm/m2] in parts, for each case (Gauss-Seidel). Many cases at once cost
/// little more than one. Parts that the transport was not built for stay empty.
std::vector<MirrorParts> SolveRadiosity(const RoomTransport& transport,
                                        const std::vector<RadiosityCase>& cases);

} // namespace Merivane::Simulation
