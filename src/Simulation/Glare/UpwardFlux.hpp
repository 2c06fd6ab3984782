#pragma once

#include "Photometry/IesFile.hpp"

namespace Merivane::Simulation {

/// Part of the light that may go up before the method of CIE 117 fails [0..1].
inline constexpr double MostUpwardFlux = 0.65;

/// Part of a file's light that goes above the horizontal [0..1]; 0 without light.
double UpwardFluxFraction(const Photometry::IesFile& photometry);

} // namespace Merivane::Simulation
