#pragma once

#include <string>

#include "Radiance/Installation.hpp"
#include "Simulation/Run/SelfTest.hpp"

namespace Merivane::Simulation {

/// The check of the installation as a person reads it. All texts are Portuguese UTF-8, lines parted
/// by "\n", none at the end. `test` is not looked at where programs are missing.

/// One line: does Radiance calculate on this machine, and correctly?
std::string VerdictLine(const Radiance::Installation& installation, const SelfTestResult& test);

/// Origin, version and folders of what was found, or the folders searched.
std::string InstallationText(const Radiance::Installation& installation);

/// One line for each required program, with its purpose and whether it is there.
std::string ToolsText(const Radiance::Installation& installation);

/// The numbers of the self-test, or why there are none.
std::string TestText(const Radiance::Installation& installation, const SelfTestResult& test);

/// The one line that the run log gets of a self-test.
std::string TestLogLine(const SelfTestResult& test);

} // namespace Merivane::Simulation
