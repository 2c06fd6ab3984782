#pragma once

#include "Photometry/IesFile.hpp"

namespace Merivane::Simulation {

/// Part of a file's light that goes above the horizontal [0..1]; 0 without light.
double UpwardFluxFraction(const Photometry::IesFile& photometry);

} // namespace Merivane::Simulation
