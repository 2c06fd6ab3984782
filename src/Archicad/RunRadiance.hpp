#pragma once

#include <string>

#include "Radiance/Installation.hpp"
#include "Simulation/Scene.hpp"
#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Archicad {

/// What whoever started the add-on asks of its calculations, beside the settings that are stored.
struct RunOptions {
    bool repeatable = false; ///< one process, fixed random seed: the same bytes at every run
    /// Full path; empty = the folder "Vantoro/calculo" of the host's temporary folder, which all
    /// runs of the user share.
    std::wstring workFolder;
};

/// Calculates a scene under the host's process window, with the stored engine settings.
/// `workFolderText` gets the path of the work folder. What the run logs goes to the run log; a
/// repeatable run tells no times there.
///
/// Returns true when `result` holds values; how long they took is then remembered. A run that the
/// user stopped is logged, one that failed is told in an alert that names the work folder.
bool RunRadiance(const Simulation::Scene& scene, const Radiance::Installation& installation,
                 Simulation::SimulationResult& result, std::string& workFolderText,
                 const RunOptions& asked = {});

} // namespace Merivane::Archicad
