#pragma once

#include <array>
#include <vector>

#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

/// Vertical illuminance at the four observers of a standard room from reflected light only [lux]
/// (radiosity in the empty, closed, diffuse room), in the order of `StandardRoom::observers`. All
/// of the luminaires' flux lands on the room.
std::array<double, 4> RoomBackground(const UgrRoom& room, const SceneLuminaire& luminaire);

/// The same for several sets of reflectances at once, which costs little more than one: those of
/// `room` are not used. One entry for each set, same order.
std::vector<std::array<double, 4>> RoomBackgrounds(const UgrRoom& room,
                                                   const SceneLuminaire& luminaire,
                                                   const std::vector<ReflectanceSet>& sets);

} // namespace Merivane::Simulation
