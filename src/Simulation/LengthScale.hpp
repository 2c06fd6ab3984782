#pragma once

#include "Simulation/Scene.hpp"

/// What the length scale of a piece of a linear run does to its photometry: the flux is multiplied
/// by it, and so is the longer side of its opening. Light and glare take it from here.
namespace Merivane::Simulation {

/// Factor on flux and length that a luminaire's `lengthScale` stands for: 1 where it differs from 1
/// by less than 1e-12.
double AppliedLengthScale(const SceneLuminaire& luminaire);

/// Multiplies the longer side of an opening (the length on a tie) by `scale`. Any unit; sides of a
/// round opening, where one is negative, stay.
void ScaleLongerSide(double& width, double& length, double scale);

} // namespace Merivane::Simulation
