#pragma once

#include "Host/Types.hpp"
#include "Photometry/UserSymbols.hpp"
#include "Simulation/EngineSettings.hpp"
#include "Simulation/LastRunRecord.hpp"
#include "Simulation/Reflectances.hpp"

/// What the add-on remembers for the user in all projects. What is missing, corrupt or of a foreign
/// form gives the defaults without a word. Saving gives the host's code and leaves all else that is
/// remembered as it is.
namespace Merivane::Archicad {

/// Those of "Projeto" by default.
Simulation::EngineSettings LoadEngineSettings();
Host::ErrorCode SaveEngineSettings(const Simulation::EngineSettings& settings);

/// Not `valid` by default.
Simulation::LastRunRecord LoadLastRun();
Host::ErrorCode SaveLastRun(const Simulation::LastRunRecord& record);

/// Empty by default. The second form gives the host's code too: a store that could not be read must
/// not be taken for an empty one and saved.
Simulation::ReflectanceStore LoadReflectances();
Host::ErrorCode LoadReflectances(Simulation::ReflectanceStore& store);
Host::ErrorCode SaveReflectances(const Simulation::ReflectanceStore& store);

/// Only the built-in symbols by default, all of them shown. The second form gives the host's code
/// too, for whoever saves what was read.
Photometry::UserSymbols LoadUserSymbols();
Host::ErrorCode LoadUserSymbols(Photometry::UserSymbols& symbols);
Host::ErrorCode SaveUserSymbols(const Photometry::UserSymbols& symbols);

} // namespace Merivane::Archicad
