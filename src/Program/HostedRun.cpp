#include "Program/HostedRun.hpp"

#include <cstdio>
#include <memory>
#include <string_view>
#include <utility>

#include "AddOn/Entry/EntryPoints.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Program/Interrupt.hpp"
#include "Program/Message.hpp"
#include "Program/Progress.hpp"
#include "Text/FileBytes.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/Model/PartRuns.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/ProjectSaving.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Program {

namespace {

using Workbench::CurrentSession;

/// The log begins its lines with the product's name, and so do this program's errors.
std::string_view WithoutProductName(std::string_view line) {
    constexpr std::string_view name = "Vantoro: ";
    return line.starts_with(name) ? line.substr(name.size()) : line;
}

void TellReport(const Workbench::ReportLine& line, const HostOutput& output) {
    if (line.alert && output.alertsAreErrors) {
        TellError(WithoutProductName(line.text));
    } else if (!output.silent) {
        TellLine(line.text);
        std::fflush(stdout); // a long run is watched, through a pipe too
    }
}

void TellWindow(const Workbench::ProcessWindow& window, ProgressState& progress) {
    if (!window.open) {
        EndProgress(progress);
    } else if (!window.phases.empty()) {
        const Workbench::ProcessPhase& phase = window.phases.back();
        const double value = phase.values.empty() ? 0.0 : phase.values.back();
        TellProgress(progress, static_cast<int>(window.phases.size()), phase.title,
                     phase.highest > 0 ? value / phase.highest : 1.0);
    }
}

} // namespace

void PrepareHost(const HostOutput& output) {
    CatchInterrupts();
    const auto progress = std::make_shared<ProgressState>();
    progress->style = ChooseProgressStyle(output.silent);
    Workbench::SessionOptions& options = CurrentSession().options;
    options.cancelAsked = Interrupted;
    options.onReport = [output, progress](const Workbench::ReportLine& line) {
        EraseProgress(*progress);
        TellReport(line, output);
    };
    options.onProgress = [progress](const Workbench::ProcessWindow& window) {
        TellWindow(window, *progress);
    };
}

bool ReadAnswers(const std::string& file, Workbench::AnswerScript& answers, std::string& error) {
    if (file.empty()) {
        return true;
    }
    std::string bytes;
    if (!Text::ReadFileBytes(Text::Widen(file), bytes)) {
        error = "não foi possível ler \"" + file + "\"";
        return false;
    }
    if (!Workbench::ParseAnswerScript(bytes, answers, error)) {
        error = "\"" + file + "\": " + error;
        return false;
    }
    return true;
}

bool LoadAddOn(std::string& error) {
    Host::AddOnEnvironment environment;
    CheckEnvironment(environment);
    for (const auto step : {RegisterInterface, Initialize}) {
        if (const Host::ErrorCode code = step()) {
            error = "o complemento não pôde ser carregado (" + Commands::ErrorName(code) + ")";
            return false;
        }
    }
    return true;
}

bool OpenProjectFile(const std::string& file, std::string& error) {
    Workbench::Project project;
    const std::wstring path = Text::Widen(file);
    if (!Workbench::ReadProject(path, project, error)) {
        return false;
    }
    Workbench::OpenProject(std::move(project), path);
    return true;
}

void TellScriptComplaints() {
    for (const std::string& sentence : Workbench::ScriptComplaints(CurrentSession().project)) {
        TellError(sentence);
    }
}

bool SaveProjectFile(const std::string& file, bool silent, std::string& error) {
    if (!Workbench::SaveOpenProject(Text::Widen(file), error)) {
        return false;
    }
    if (!silent) {
        TellLine("Projeto gravado: " + file);
    }
    return true;
}

} // namespace Merivane::Program
