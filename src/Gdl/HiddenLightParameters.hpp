#pragma once

#include <string>
#include <vector>

namespace Merivane::Photometry {

/// Names of the parameters that the host's own light objects carry and that say nothing of a
/// luminaire with a photometric file; its parameter list hides them. 48 names, kept for the life of
/// the process.
const std::vector<std::string>& HiddenLightParameters();

} // namespace Merivane::Photometry
