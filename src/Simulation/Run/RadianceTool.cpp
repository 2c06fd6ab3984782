#include "Simulation/Run/RadianceTool.hpp"

#include "Radiance/Installation.hpp"
#include "Radiance/SystemPlaces.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Simulation {

namespace {

std::wstring WorkPath(const ProcessTarget& target, const std::string& name) {
    return name.empty() ? std::wstring() : target.workFolder + L"/" + Text::Widen(name);
}

bool Cancel(const ProcessTarget& target, std::string& errorText) {
    target.result->cancelled = true;
    errorText = CancelledText;
    return false;
}

} // namespace

std::wstring RayPathOf(const std::wstring& workFolder, const std::wstring& radianceLibFolder) {
    const wchar_t separator = Radiance::PathListSeparator();
    const bool splits = workFolder.find(separator) != std::wstring::npos;
    return (splits ? L"." : workFolder) + separator + radianceLibFolder;
}

Radiance::ProcessJob ToolJob(const ProcessTarget& target, const std::string& name,
                             const std::vector<std::string>& arguments,
                             const std::string& stdinName, const std::string& stdoutName) {
    Radiance::ProcessJob job;
    job.program = Radiance::ToolPath(target.radianceBinFolder, name);
    for (const std::string& argument : arguments) {
        job.arguments.push_back(Text::Widen(argument));
    }
    job.workingFolder = target.workFolder;
    job.stdinPath = WorkPath(target, stdinName);
    job.stdoutPath = WorkPath(target, stdoutName);
    job.rayPath = target.rayPath;
    return job;
}

bool RunRadianceTool(const ProcessTarget& target, const std::string& name,
                     const std::vector<std::string>& arguments, const std::string& stdinName,
                     const std::string& stdoutName, std::string& errorText) {
    // Many short programs in a row could each end before the runner's first question.
    if (target.poll && target.poll()) {
        return Cancel(target, errorText);
    }
    const Radiance::ProcessOutcome outcome =
        Radiance::RunProcess(ToolJob(target, name, arguments, stdinName, stdoutName), target.poll);
    if (outcome.cancelled) {
        return Cancel(target, errorText);
    }
    if (!outcome.started) {
        errorText = name + ": " + outcome.errorText;
        return false;
    }
    if (outcome.exitCode == 0) {
        return true;
    }
    const std::string reason = FirstLine(outcome.errorText);
    errorText = name + " terminou com erro " + std::to_string(outcome.exitCode) +
                (reason.empty() ? "" : ": " + reason);
    return false;
}

std::string FirstLine(std::string_view text) {
    return std::string(text.substr(0, text.find_first_of("\r\n")));
}

} // namespace Merivane::Simulation
