#pragma once

#include <string>

#include "Radiance/Installation.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Archicad {

/// Calculates a scene under the host's process window, with the stored engine settings, in the
/// folder "Vantoro/calculo" of the host's temporary folder, which all runs of the user share and
/// whose path `workFolderText` gets. What the run logs goes to the run log.
///
/// Returns true when `result` holds values; how long they took is then remembered. A run that the
/// user stopped is logged, one that failed is told in an alert that names the work folder.
bool RunRadiance(const Simulation::Scene& scene, const Radiance::Installation& installation,
                 Simulation::SimulationResult& result, std::string& workFolderText);

} // namespace Merivane::Archicad
