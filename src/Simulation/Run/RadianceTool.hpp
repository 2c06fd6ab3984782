#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Radiance/ProcessRunner.hpp"
#include "Simulation/SimulationRecords.hpp"

namespace Merivane::Simulation {

/// Where and how the Radiance programs of one run are called.
struct ProcessTarget {
    std::wstring radianceBinFolder;
    std::wstring workFolder; ///< absolute; every program runs in it and every file stands in it
    std::wstring rayPath;
    Radiance::CancelPoll poll;
    SimulationResult* result = nullptr; ///< of the run; marked when the user stops it
};

/// The value of RAYPATH: the work folder, so that our files come first, then Radiance's library.
/// A work folder whose path holds the separator itself is told as ".", where the programs run.
std::wstring RayPathOf(const std::wstring& workFolder, const std::wstring& radianceLibFolder);

/// The call of one program. The two names are of files in the work folder; empty for none.
Radiance::ProcessJob ToolJob(const ProcessTarget& target, const std::string& name,
                             const std::vector<std::string>& arguments,
                             const std::string& stdinName, const std::string& stdoutName);

/// Runs one program to its end. Returns false when it can't be started, ends with an exit status
/// other than 0 or the user stops the run; `errorText` is then one Portuguese sentence.
bool RunRadianceTool(const ProcessTarget& target, const std::string& name,
                     const std::vector<std::string>& arguments, const std::string& stdinName,
                     const std::string& stdoutName, std::string& errorText);

/// `text` up to the first CR or LF.
std::string FirstLine(std::string_view text);

/// The words of a run that the user stopped.
inline constexpr const char* CancelledText = "calculo cancelado";

} // namespace Merivane::Simulation
