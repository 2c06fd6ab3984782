#pragma once

#include <array>

#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Glare/StandardRoom.hpp"
#include "Simulation/Glare/UpwardFlux.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

/// UGR of one luminaire model in the 19 rooms (rows) with the 5 reflectances (columns), unrounded;
/// 0 where there is no value.
struct UgrTableValues {
    std::array<std::array<double, 5>, 19> crosswise{};  ///< sight along C0-C180
    std::array<std::array<double, 5>, 19> lengthwise{}; ///< sight along C90-C270
};

/// The four observers' results in one standard room; the luminaire's own dimming and aiming do not
/// count.
std::array<GlareResult, 4> EvaluateRoom(const SceneLuminaire& luminaire, const UgrRoom& room,
                                        const GlareOptions& options);

/// The whole table of CIE 117 for a luminaire `height` (H) [m] above the eye, above 0.
UgrTableValues UgrTable(const SceneLuminaire& luminaire, double height,
                        const GlareOptions& options);

/// The table read for a room of `sizeX` x `sizeY` [m], both ways round and in both directions:
/// nearest standard room, nearest reflectances in (ceiling, walls), the worst value. All 0 for a
/// `height` not above 0.
TabularUgr TabularForZone(const SceneLuminaire& luminaire, double sizeX, double sizeY,
                          double height, double ceiling, double walls, const GlareOptions& options);

/// The worst of all four observers and both directions in the reference room.
double ReferenceRoomUgr(const SceneLuminaire& luminaire, double height,
                        const GlareOptions& options);

} // namespace Merivane::Simulation
