#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "Archicad/AddOnFolder.hpp"
#include "Document/GlareExplanation.hpp"
#include "Document/PlanAssembly.hpp"
#include "Document/ResultDocument.hpp"
#include "Document/SceneBuild.hpp"
#include "Document/SceneDocument.hpp"
#include "Document/ZoneExplanation.hpp"
#include "Program/Commands.hpp"
#include "Program/Interrupt.hpp"
#include "Program/Message.hpp"
#include "Program/OutputFiles.hpp"
#include "Program/Progress.hpp"
#include "Program/ResultFiles.hpp"
#include "Program/Verdict.hpp"
#include "Program/Version.hpp"
#include "Program/WorkFolder.hpp"
#include "Program/ZoneReport.hpp"
#include "Radiance/Installation.hpp"
#include "Simulation/PrintedValue.hpp"
#include "Simulation/Run/ReflectionEstimate.hpp"
#include "Simulation/Run/RunSimulation.hpp"
#include "Simulation/Run/SelfTest.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Program {

namespace {

/// All that one call of the command knows, filled step by step.
struct SimulateRun {
    const SimulateArguments& arguments;
    Simulation::LightingStudy document;
    Simulation::StudyScene built;
    Radiance::Installation installation;
    WorkFolder workFolder;
    Simulation::SimulationOptions options;
    Simulation::SimulationResult result;
    std::vector<Simulation::ZoneAnalysis> analyses; ///< of the document's Zones, in order
    Document::RunRecord record;
};

bool Refuse(const std::string& sentence) {
    TellError(sentence);
    return false;
}

/// Refuses, and says where the files of the calculation stay, which show why or hold its values.
bool RefuseWithFiles(const SimulateRun& run, const std::string& sentence) {
    return Refuse(sentence + " (arquivos do cálculo em \"" + Text::Narrow(run.workFolder.path) +
                  "\")");
}

/// Reads everything that can be refused before any work is done.
bool ReadInput(SimulateRun& run) {
    std::string error;
    const std::wstring scenePath = Text::Widen(run.arguments.sceneFile);
    if (!Document::ReadSceneDocument(scenePath, run.document, error)) {
        return Refuse(error);
    }
    if (!Document::BuildScene(run.document, run.built, error)) {
        return Refuse("\"" + run.arguments.sceneFile + "\": " + error);
    }
    return PrepareOutputFolder(Text::Widen(run.arguments.outputFolder), error) || Refuse(error);
}

std::string JoinNames(const std::vector<std::string>& names) {
    std::string joined;
    for (const std::string& name : names) {
        joined += (joined.empty() ? "" : ", ") + name;
    }
    return joined;
}

bool FindRadiance(SimulateRun& run) {
    run.installation = Radiance::FindInstallation(Archicad::AddOnFolder());
    if (run.installation.binFolder.empty()) {
        return Refuse("Radiance não encontrado; veja \"vantoro verificar-radiance\"");
    }
    if (!run.installation.complete) {
        return Refuse("instalação do Radiance incompleta em \"" +
                      Text::Narrow(run.installation.binFolder) + "\": falta(m) " +
                      JoinNames(run.installation.missingTools));
    }
    return true;
}

/// An engine that calculates wrongly does so without a word, and by large factors: each run proves
/// it first, at the cost of some hundredths of a second.
bool ProveRadiance(SimulateRun& run) {
    const Simulation::SelfTestResult test = Simulation::RadianceSelfTest(
        run.installation, run.workFolder.path + L"/teste_radiance", Interrupted);
    if (Interrupted()) {
        return false;
    }
    if (!test.ran) {
        return RefuseWithFiles(run, "o teste do Radiance não pôde ser feito: " + test.message);
    }
    if (!test.passed) {
        return RefuseWithFiles(
            run, "o Radiance calcula errado: o teste deu " +
                     Simulation::FormatDecimal(test.calculated, 2) + " lx onde o exato é " +
                     Simulation::FormatDecimal(test.exact, 2) +
                     " lx; reinstale-o e confira com \"vantoro verificar-radiance\"");
    }
    return true;
}

void ChooseOptions(SimulateRun& run) {
    run.options.workFolder = run.workFolder.path;
    run.options.radianceBinFolder = run.installation.binFolder;
    run.options.radianceLibFolder = run.installation.libFolder;
    run.options.engine = run.document.engine;
    run.options.repeatable = run.arguments.repeatable;
    if (run.arguments.repeatable) {
        run.options.processCount = 1; // several processes never repeat exactly
    }
}

bool Calculate(SimulateRun& run) {
    ProgressState progress;
    progress.style = ChooseProgressStyle(run.arguments.silent || run.arguments.json);
    progress.pointCount = Simulation::TotalPointCount(run.built.scene);
    const auto started = std::chrono::steady_clock::now();
    run.result =
        Simulation::RunSimulation(run.built.scene, run.options, Interrupted, {},
                                  [&progress](Simulation::SimulationStage stage, double fraction) {
                                      TellProgress(progress, stage, fraction);
                                  });
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - started;
    EndProgress(progress);
    run.record.seconds = elapsed.count();
    if (run.result.cancelled) {
        return false;
    }
    return run.result.success || RefuseWithFiles(run, "o cálculo falhou: " + run.result.error);
}

void RecordRun(SimulateRun& run) {
    run.record.programVersion = Version;
    run.record.radianceVersion = run.installation.version;
    run.record.explained = run.arguments.explain;
    run.record.notices = run.document.warnings;
    run.record.notices.insert(run.record.notices.end(), run.built.notices.begin(),
                              run.built.notices.end());
    const std::string warning = Simulation::ReflectionWarning(run.built.scene, run.options);
    if (!warning.empty()) {
        run.record.notices.push_back(warning);
    }
}

/// Tells what the values mean, Zone by Zone.
bool Analyse(SimulateRun& run) {
    for (std::size_t zone = 0; zone < run.document.zones.size(); ++zone) {
        if (Interrupted()) {
            return false;
        }
        run.analyses.push_back(Simulation::AnalyseZone(run.document, run.built, run.result, zone,
                                                       run.arguments.explain));
    }
    return true;
}

std::string ExplanationTable(const SimulateRun& run) {
    std::vector<Document::ExplainedRoom> rooms;
    for (std::size_t i = 0; i < run.analyses.size(); ++i) {
        rooms.push_back(
            Document::ExplainZone(run.document.zones[i].name, run.analyses[i], run.built.scene));
    }
    return Document::WriteGlareExplanationTable(rooms);
}

bool BuildFiles(const SimulateRun& run, std::vector<OutputFile>& files, std::string& error) {
    files.push_back(
        {"resultado.json", Document::WriteResultDocument(run.document, run.built, run.result,
                                                         run.analyses, run.record)});
    BuildTables(run.built, run.result, run.arguments.explain ? ExplanationTable(run) : "", files);
    return BuildPlans(Document::AssemblePlans(run.document, run.built, run.result, run.analyses,
                                              run.record.notices),
                      PlanStyleOf(run.arguments), files, error);
}

void Tell(const SimulateRun& run, const std::vector<OutputFile>& files) {
    TellValues(run.built, run.result);
    TellZones(run.document, run.analyses);
    if (run.arguments.explain) {
        TellExplanations(run.document, run.built, run.analyses);
    }
    std::vector<std::string> notices = run.record.notices;
    for (const std::string& notice : AnalysisNotices(run.document, run.analyses)) {
        notices.push_back(notice);
    }
    TellClosing(run.record, notices, run.arguments.outputFolder, files);
}

/// Draws and writes all results, and tells them.
bool Deliver(SimulateRun& run) {
    std::vector<OutputFile> files;
    std::string error;
    if (!BuildFiles(run, files, error)) {
        return RefuseWithFiles(run, error);
    }
    if (Interrupted()) {
        return false;
    }
    if (!WriteOutputFiles(Text::Widen(run.arguments.outputFolder), files, error)) {
        return RefuseWithFiles(run, error);
    }
    if (run.arguments.json) {
        std::fputs(files.front().bytes.c_str(), stdout);
    } else if (!run.arguments.silent) {
        Tell(run, files);
    }
    return true;
}

} // namespace

int SimulateCommand(const SimulateArguments& arguments) {
    CatchInterrupts();
    SimulateRun run{arguments, {}, {}, {}, {}, {}, {}, {}, {}};
    if (!ReadInput(run) || !FindRadiance(run)) {
        return StatusFailed;
    }
    std::string error;
    if (!OpenWorkFolder(arguments.workFolder, run.workFolder, error)) {
        TellError(error);
        return StatusFailed;
    }
    ChooseOptions(run);
    RecordRun(run);
    const bool done = ProveRadiance(run) && Calculate(run) && Analyse(run) && Deliver(run);
    if (done || Interrupted()) {
        RemoveWorkFolder(run.workFolder);
    }
    if (done) {
        return arguments.verify ? Verdict(run.document, run.analyses) : StatusDone;
    }
    if (Interrupted()) {
        TellError("cálculo cancelado; nada foi gravado");
        return StatusCancelled;
    }
    return StatusFailed;
}

} // namespace Merivane::Program
