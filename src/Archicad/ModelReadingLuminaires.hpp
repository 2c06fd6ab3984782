#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Host/Types.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Archicad {

/// The luminaires on the given floors that shine, lamps before objects, those on hidden layers
/// included; a linear one as the pieces along its path. `luminaireGuids` gets every luminaire met,
/// also those that are switched off or can't be read: their bodies are no part of the room. Lines
/// for the user are appended to `log`.
std::vector<Simulation::SceneLuminaire> CollectLuminaires(const std::vector<std::int32_t>& floors,
                                                          std::vector<Host::Guid>& luminaireGuids,
                                                          std::vector<std::string>& log);

} // namespace Merivane::Archicad
