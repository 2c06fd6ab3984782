#pragma once

#include <cstdint>
#include <string>

#include "Simulation/Scene.hpp"
#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Simulation {

/// Mean reflectance of the scene's surfaces [0..1], weighted by area; colours by their luminance,
/// glass by what it mirrors. Surfaces that no file gets are left out; 0 without any.
double MeanReflectance(const Scene& scene);

/// Estimated share of the reflected light [0..1] that a calculation with `reflections` reflections
/// leaves out: meanReflectance ^ (reflections + 1).
double OmittedReflection(double meanReflectance, std::int32_t reflections);

/// One Portuguese sentence when the number of reflections asked for leaves out more than 5 % of
/// the reflected light by the estimate; otherwise empty.
std::string ReflectionWarning(const Scene& scene, const SimulationOptions& options);

} // namespace Merivane::Simulation
