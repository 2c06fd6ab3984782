#pragma once

#include <cstddef>

#include "Simulation/Glare/StandardRoom.hpp"

/// Where a real room is read in the table of CIE 117: without interpolation, at the nearest entry.
namespace Merivane::Simulation {

/// Index into `ReflectanceSets` of the set nearest in ceiling and walls [0..1]; the floor does not
/// count. On a tie (to 1e-12 of the squared distance) the earlier one.
std::size_t NearestReflectanceSet(double ceiling, double walls);

/// The room of `StandardRooms` nearest in proportion to `x` by `y` multiples of H (the logarithms
/// count, so twice is as far as half). On a tie (to 1e-12) the earlier one.
UgrRoomSize NearestStandardRoom(double x, double y);

} // namespace Merivane::Simulation
