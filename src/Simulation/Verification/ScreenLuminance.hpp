#pragma once

#include <cstdint>
#include <string_view>

#include "Simulation/PlacedLuminaire.hpp"
#include "Simulation/Verification/ZoneRequirement.hpp"

namespace Merivane::Simulation {

/// True when one of the words of `text` tells of work at a screen ("telas", "CAD", "VDT"). Words
/// are runs of ASCII letters and digits, in any case; everything else parts them, accented letters
/// too.
bool SpeaksOfScreens(std::string_view text);

/// The class of screens of a Zone: what is stored, or for automatic what the words of the
/// activity and its note tell (0 none, 1 classes I and II).
std::int32_t ResolveScreens(const ZoneRequirement& requirement);

/// Highest mean luminance of luminaires that may mirror in the screens [cd/m2]: 1000, 200, or 0 for
/// no limit.
double ScreenLuminanceLimit(std::int32_t screens);

/// Largest luminance of the luminaire as placed, at full output, over 24 azimuths at 65, 75 and 85
/// degrees from the downward vertical of the room [cd/m2]; 0 when no luminous area shows. `gamma`
/// and `c` [deg] tell where, the first of equals, `c` counted from its own C0; both 0 without
/// luminance.
double MaximumScreenLuminance(const PlacedLuminaire& luminaire, double& gamma, double& c);

} // namespace Merivane::Simulation
