#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "Simulation/Glare/GlareRecords.hpp"
#include "Simulation/Glare/RoomPatches.hpp"

/// How light passes between the patches of an empty room. The room is its own image in two mirror
/// planes, so whatever lies on its patches splits into parts that keep or change their sign in each
/// mirror, and light passes within each part alone: three systems of a quarter of the patches stand
/// for the one of all. The fourth part, odd in both mirrors, no observer at mid-wall sees.
namespace Merivane::Simulation {

/// A part by its behaviour in the mirrors.
enum MirrorPart : std::size_t {
    EvenPart = 0,   ///< even in both: the mean of a patch's images
    OddInYPart = 1, ///< even in x, odd in y
    OddInXPart = 2, ///< odd in x, even in y
    MirrorPartCount = 3
};

/// Values of the parts, one for each patch of the quarter; empty for a part that isn't asked for.
using MirrorParts = std::array<std::vector<double>, MirrorPartCount>;

/// Sign [-1, 1] that a part takes in the image `image` of a patch.
int MirrorSign(MirrorPart part, int image);

/// Which observers are asked for: they decide which parts count.
enum class RoomViews { AlongY, All };

/// What two observers who face each other receive of the patches' radiosity: the sum of `even`
/// (times `EvenPart`) plus or minus that of `odd` (times the part odd along their sight).
struct FacingViews {
    std::vector<double> even;
    std::vector<double> odd;
};

/// The passage of light in one room's shape; reflectances and luminaires play no part in it.
struct RoomTransport {
    RoomCut cut;
    std::vector<PatchOrbit> orbits; ///< n of them
    /// What a patch receives of what the patches emit, n x n, row after row, for each part; that of
    /// `OddInXPart` is empty for `RoomViews::AlongY`. Closed: without losses.
    std::array<std::vector<float>, MirrorPartCount> blocks;
    FacingViews alongY; ///< the observers at y = 0 and y = Y
    FacingViews alongX; ///< at x = 0 and x = X; empty for `RoomViews::AlongY`
};

/// `observers` as in `StandardRoom`. `cut` must be of a room (`IsRoom`).
RoomTransport BuildRoomTransport(const RoomCut& cut, const std::array<UgrObserver, 4>& observers,
                                 RoomViews views);

/// Reflected light on the eyes [lux] of the four observers, from the radiosity of the patches
/// [lm/m2] in parts; 0 for observers that `transport` was not built for.
std::array<double, 4> LightOnObservers(const RoomTransport& transport,
                                       const MirrorParts& radiosity);

} // namespace Merivane::Simulation
