#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Simulation/CalculationSettings.hpp"
#include "Simulation/Reflectances.hpp"
#include "Simulation/Scene.hpp"

namespace Merivane::Archicad {

/// Shows the table to the user and lets it be edited. `remember`, set when called, tells whether
/// the corrections are to be kept for later calculations. Returns false when the user cancels.
using ReflectanceDialog =
    std::function<bool(std::vector<Simulation::SurfaceReflectance>& records, bool& remember)>;

/// The step between reading a model and calculating it: takes remembered corrections over, lets the
/// user review the table where `settings` ask for it and there is something to review, and makes
/// the scene's materials, one for each record. Adds a line for each record to `logLines`.
///
/// Returns false when the user cancels; nothing is then remembered, `materials` and `logLines` are
/// as they were, and `records` hold what was remembered before.
bool ReviewReflectances(std::vector<Simulation::SurfaceReflectance>& records,
                        const Simulation::CalculationSettings& settings,
                        const ReflectanceDialog& showDialog,
                        std::vector<Simulation::SceneMaterial>& materials,
                        std::vector<std::string>& logLines);

} // namespace Merivane::Archicad
