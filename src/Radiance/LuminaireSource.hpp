#pragma once

#include <string>
#include <vector>

#include "Simulation/Scene.hpp"

namespace Merivane::Radiance {

/// The luminaire's photometry with its length scale folded in: flux and, where the opening is told
/// by positive sides, the longer side (the length on a tie) are multiplied by it.
Photometry::IesFile ScaledPhotometry(const Simulation::SceneLuminaire& luminaire);

/// Arguments of `ies2rad` that turn `name`.ies into `name`.rad and `name`.dat in metres and pure
/// white; dimming and maintenance are folded in as its multiplier.
std::vector<std::string> Ies2RadArguments(const Simulation::SceneLuminaire& luminaire,
                                          const std::string& name);

/// Arguments of `xform` that place the converted source `sourceFile` in the world: lowered just
/// under the opening of its object, aimed, moved to its photometric centre, mirrored, turned,
/// placed, repeated along world x and y.
std::vector<std::string> XformArguments(const Simulation::SceneLuminaire& luminaire,
                                        const std::string& sourceFile);

} // namespace Merivane::Radiance
