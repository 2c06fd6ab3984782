#pragma once

#include "Simulation/Scene.hpp"

namespace Merivane::Tests {

/// A luminaire at the origin with the same intensity in every direction [cd] and an opening of
/// `width` (across C0) x `length` (along C0) x `height` [m].
Simulation::SceneLuminaire UniformLuminaire(double candela, double width, double length,
                                            double height = 0.0);

/// The same at another place [m].
Simulation::SceneLuminaire At(Simulation::SceneLuminaire luminaire, double x, double y, double z);

} // namespace Merivane::Tests
