#pragma once

#include <string>

#include "Simulation/EngineSettings.hpp"
#include "Simulation/LastRunRecord.hpp"

/// The lines of the engine settings dialog that follow from the numbers.
namespace Merivane::Simulation {

/// What these settings will take, relative to "Projeto" and, where a last calculation is known, in
/// seconds.
std::string EngineTimeLine(const EngineSettings& settings, const LastRunRecord& lastRun);

/// The warnings of `EngineWarnings`, one a line, each behind a warning sign; empty without any.
std::string EngineWarningsText(const EngineSettings& settings);

} // namespace Merivane::Simulation
