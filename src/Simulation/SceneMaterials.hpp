#pragma once

#include <vector>

#include "Simulation/Reflectances.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Simulation {

/// The scene's materials, one for each record in the same order. With `useColour` a surface that
/// has a colour reflects or transmits in its hue, otherwise all three channels are alike.
///
/// Light crosses a pane through two faces, each a surface of the scene, so one face passes the
/// square root of the pane's transmittance. A glass whose reflectances are those of clear glass,
/// 8 %, becomes Radiance's `glass`, which reflects by the laws of physics; any other brings its
/// own.
std::vector<SceneMaterial> BuildSceneMaterials(const std::vector<SurfaceReflectance>& records,
                                               bool useColour);

} // namespace Merivane::Simulation
