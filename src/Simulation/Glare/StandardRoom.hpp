#pragma once

#include <array>
#include <vector>

#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

/// Size of a standard room in multiples of H.
struct UgrRoomSize {
    double x = 0.0; ///< across the line of sight
    double y = 0.0; ///< along it
};

/// The rooms of the tables of CIE 117, in the tables' order.
inline constexpr std::array<UgrRoomSize, 19> StandardRooms = {{{2, 2},
                                                               {2, 3},
                                                               {2, 4},
                                                               {2, 6},
                                                               {2, 8},
                                                               {2, 12},
                                                               {4, 2},
                                                               {4, 3},
                                                               {4, 4},
                                                               {4, 6},
                                                               {4, 8},
                                                               {4, 12},
                                                               {8, 4},
                                                               {8, 6},
                                                               {8, 8},
                                                               {8, 12},
                                                               {12, 4},
                                                               {12, 6},
                                                               {12, 8}}};

/// Reflectances of a standard room [0..1].
struct ReflectanceSet {
    double ceiling = 0.0;
    double walls = 0.0;
    double floor = 0.0;
};

/// The reflectances of the tables of CIE 117, in the tables' order.
inline constexpr std::array<ReflectanceSet, 5> ReflectanceSets = {
    {{0.7, 0.5, 0.2}, {0.7, 0.3, 0.2}, {0.5, 0.5, 0.2}, {0.5, 0.3, 0.2}, {0.3, 0.3, 0.2}}};

/// A standard room ready to be evaluated. The scene holds floor, ceiling and walls and one
/// luminaire whose array makes the grid: it hangs untilted and unmirrored at full output, C0 along
/// x (along y when crosswise), photometric centre in the plane of the ceiling, whatever its
/// contract says.
struct StandardRoom {
    Scene scene;
    std::array<UgrObserver, 4> observers; ///< mid-wall: y = 0, y = Y, x = 0, x = X
};

/// Builds the room with its grid of luminaires, a step of about 0.25 H apart in both directions.
StandardRoom BuildStandardRoom(const SceneLuminaire& luminaire, const UgrRoom& room);

/// The room that makers quote: 4 H x 8 H, reflectances 0.7 / 0.5 / 0.2. `height` is H [m].
UgrRoom ReferenceRoom(double height, bool crosswise);

/// The room of a table: `size` in multiples of `height` (H) [m].
UgrRoom TableRoom(UgrRoomSize size, const ReflectanceSet& reflectances, double height,
                  bool crosswise);

} // namespace Merivane::Simulation
