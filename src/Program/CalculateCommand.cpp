#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "AddOn/AddOnState.hpp"
#include "AddOn/Commands/CalculateLighting.hpp"
#include "AddOn/Entry/EntryPoints.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/FloorPlanDatabase.hpp"
#include "Host/Stories.hpp"
#include "Program/CalculationAnswers.hpp"
#include "Program/CalculationFiles.hpp"
#include "Program/Commands.hpp"
#include "Program/HostedRun.hpp"
#include "Program/Interrupt.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Program/ProfileForRun.hpp"
#include "Program/Verdict.hpp"
#include "Program/WorkFolder.hpp"
#include "Program/ZoneChoice.hpp"
#include "Text/Utf8.hpp"
#include "Workbench/DialogRun.hpp"
#include "Workbench/Project/GuidSource.hpp"
#include "Workbench/Project/ProjectFile.hpp"
#include "Workbench/Session.hpp"

namespace Merivane::Program {

namespace {

using Workbench::CurrentSession;

constexpr std::uint64_t RepeatableSeed = 1; // of the guids of what is drawn

/// All that one call of the command knows, filled step by step.
struct CalculateRun {
    const CalculateArguments& arguments;
    std::string projectTarget; ///< file that gets the project
    std::string outputFolder;
    bool madeFolder = false; ///< the output folder was not there before
    std::vector<Host::Guid> selection;
    Commands::Calculation calculation;
    std::vector<OutputFile> files;
    std::string error; ///< what is still to be told
    int status = StatusFailed;
};

bool IsQuiet(const CalculateArguments& arguments) {
    return arguments.silent || arguments.json;
}

/// Beside the project that is written, whose name it bears.
std::string ChooseOutputFolder(const CalculateArguments& arguments, const std::string& target) {
    if (!arguments.outputFolder.empty()) {
        return arguments.outputFolder;
    }
    const std::filesystem::path project(target);
    return (project.parent_path() / (project.stem().string() + "-resultado")).string();
}

bool ChangeScale(CalculateRun& run) {
    if (run.arguments.scale <= 0.0) {
        return true;
    }
    const Archicad::FloorPlanDatabase plan;
    if (const Host::ErrorCode code = Host::ChangeDrawingScale(run.arguments.scale)) {
        run.error = "a escala não pôde ser mudada (" + Commands::ErrorName(code) + ")";
        return false;
    }
    return true;
}

bool OpenInput(CalculateRun& run) {
    Workbench::AnswerScript answers;
    if (!ReadAnswers(run.arguments.answerFile, answers, run.error) || !LoadAddOn(run.error) ||
        !OpenProjectFile(run.arguments.projectFile, run.error)) {
        return false;
    }
    run.selection = CurrentSession().project.selection;
    if (!SelectZones(run.arguments.zones, run.error) || !ChangeScale(run)) {
        return false;
    }
    std::vector<std::string> unheard; // the command itself will tell
    const std::vector<NamedZone> zones = NameZones(Archicad::CollectZones(unheard));
    if (!AddCalculationAnswers(run.arguments, zones, answers, run.error)) {
        return false;
    }
    CurrentSession().userInterface.answers = std::move(answers);
    return true;
}

/// Refuses what would only show after the calculation.
bool PrepareOutput(CalculateRun& run) {
    std::error_code code;
    const std::filesystem::path parent =
        std::filesystem::absolute(run.projectTarget, code).parent_path();
    if (!std::filesystem::is_directory(parent, code)) {
        run.error = "não foi possível gravar \"" + run.projectTarget + "\": a pasta não existe";
        return false;
    }
    Workbench::Project replaced; // saving refuses to replace what is no project, but late
    if (!run.arguments.saveAs.empty() && std::filesystem::exists(run.projectTarget, code) &&
        !Workbench::ReadProject(Text::Widen(run.projectTarget), replaced, run.error)) {
        run.error.insert(0, "--salvar-como: ");
        return false;
    }
    run.madeFolder = !std::filesystem::exists(run.outputFolder, code);
    return PrepareOutputFolder(Text::Widen(run.outputFolder), run.error);
}

bool ChooseRunOptions(CalculateRun& run) {
    Archicad::RunOptions& options = CurrentAddOnState().run;
    options.repeatable = run.arguments.repeatable;
    if (run.arguments.repeatable) {
        CurrentSession().guids = Workbench::MakeGuidSource(RepeatableSeed);
    }
    if (run.arguments.workFolder.empty()) {
        return true;
    }
    WorkFolder folder;
    const bool opened = OpenWorkFolder(run.arguments.workFolder, folder, run.error);
    options.workFolder = folder.path;
    return opened;
}

/// True when an alert has told it already: a dialog that refuses a value tells why, and then merely
/// stays open.
bool WasTold(const std::string& refusal) {
    const auto& lines = CurrentSession().reportLines;
    return refusal.ends_with("continua aberto depois de respondido") &&
           std::any_of(lines.begin(), lines.end(), [](const auto& line) { return line.alert; });
}

/// Why there are no results, as far as no alert has told it.
void ExplainEnd(CalculateRun& run) {
    const std::string& refusal = CurrentSession().userInterface.refusal;
    if (!refusal.empty()) {
        run.error = WasTold(refusal) ? "" : refusal;
        run.status = run.arguments.answerFile.empty() ? StatusWrongUse : StatusFailed;
    } else if (run.calculation.end == Commands::CalculationEnd::Cancelled) {
        run.error = "cálculo cancelado por uma resposta; nada foi gravado";
        run.status = StatusCancelled;
    }
}

/// Of the project, or of its file where it has none.
std::string StudyName(const std::string& projectFile) {
    const std::string& name = CurrentSession().project.name;
    return name.empty() ? std::filesystem::path(projectFile).stem().string() : name;
}

bool Calculate(CalculateRun& run) {
    const ProfileForRun profile(run.arguments.profile);
    run.calculation = Commands::RunCalculation();
    run.calculation.study.name = StudyName(run.arguments.projectFile);
    if (run.calculation.end != Commands::CalculationEnd::Done) {
        ExplainEnd(run);
        return false;
    }
    return Workbench::AllAnswersUsed(run.error);
}

/// The choice of Zones was for this run; what was selected and is still there is selected again.
void RestoreSelection(CalculateRun& run) {
    if (!run.arguments.zones.empty()) {
        const auto& places = CurrentSession().index.places;
        std::erase_if(run.selection,
                      [&](const Host::Guid& guid) { return !places.contains(guid); });
        Commands::CheckError("Repor a selecao", Host::SetSelection(run.selection));
    }
}

void Tell(const CalculateRun& run) {
    if (run.arguments.json) {
        std::fputs(run.files.front().bytes.c_str(), stdout);
    }
    if (IsQuiet(run.arguments)) {
        return;
    }
    for (const std::string& file : FilesToOpen(run.calculation, run.files)) {
        TellLine("Abra: " + (std::filesystem::path(run.outputFolder) / file).string());
    }
}

/// Draws and writes all results, then the project.
bool Deliver(CalculateRun& run) {
    RestoreSelection(run);
    if (!BuildCalculationFiles(run.calculation, run.arguments.repeatable, run.files, run.error) ||
        Interrupted() || !WriteOutputFiles(Text::Widen(run.outputFolder), run.files, run.error)) {
        return false;
    }
    if (!SaveProjectFile(run.projectTarget, IsQuiet(run.arguments), run.error)) {
        run.error += " (os resultados estão em \"" + run.outputFolder + "\")";
        return false;
    }
    Tell(run);
    return true;
}

int End(CalculateRun& run) {
    if (run.madeFolder) {
        std::error_code ignored;
        std::filesystem::remove(run.outputFolder, ignored); // where it is empty
    }
    if (Interrupted()) {
        TellError("cálculo cancelado; nada foi gravado");
        return StatusCancelled;
    }
    if (!run.error.empty()) {
        TellError(run.error);
    }
    return run.status;
}

} // namespace

int CalculateCommand(const CalculateArguments& arguments) {
    PrepareHost({IsQuiet(arguments), true});
    CalculateRun run{arguments, {}, {}, false, {}, {}, {}, {}};
    run.projectTarget = arguments.saveAs.empty() ? arguments.projectFile : arguments.saveAs;
    run.outputFolder = ChooseOutputFolder(arguments, run.projectTarget);
    const bool done = OpenInput(run) && PrepareOutput(run) && ChooseRunOptions(run) &&
                      Calculate(run) && Deliver(run);
    FreeData();
    TellScriptComplaints();
    if (!done) {
        return End(run);
    }
    return arguments.verify ? Verdict(run.calculation.study, run.calculation.analyses) : StatusDone;
}

} // namespace Merivane::Program
