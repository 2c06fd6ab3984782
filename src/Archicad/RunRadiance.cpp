#include "Archicad/RunRadiance.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <system_error>

#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/ProcessWindow.hpp"
#include "Archicad/StoredSettings.hpp"
#include "Host/Session.hpp"
#include "Simulation/EngineSettings.hpp"
#include "Simulation/Run/RunSimulation.hpp"
#include "Text/NativePath.hpp"
#include "Text/Number.hpp"
#include "Text/Utf8.hpp"

namespace Merivane::Archicad {

namespace {

using Simulation::SimulationOptions;
using Simulation::SimulationResult;
using Simulation::SimulationStage;

constexpr std::int32_t StageCount = 4;
constexpr std::int32_t StepsOfStage = 100;

// Empty, which a run refuses, when the host does not tell its temporary folder.
std::wstring WorkFolderPath() {
    std::wstring temporary;
    if (Host::GetTemporaryFolder(temporary) != Host::NoError) {
        return {};
    }
    std::error_code error;
    const std::filesystem::path folder =
        std::filesystem::absolute(Text::NativePath(temporary) / "Vantoro" / "calculo", error);
    return error ? std::wstring() : Text::WidePath(folder);
}

SimulationOptions MakeOptions(const Radiance::Installation& installation, const RunOptions& asked) {
    SimulationOptions options;
    options.workFolder = asked.workFolder.empty() ? WorkFolderPath() : asked.workFolder;
    options.radianceBinFolder = installation.binFolder;
    options.radianceLibFolder = installation.libFolder;
    options.engine = LoadEngineSettings();
    options.repeatable = asked.repeatable;
    if (asked.repeatable) {
        options.processCount = 1; // several processes never repeat exactly
    }
    return options;
}

SimulationResult RunUnderWindow(const Simulation::Scene& scene, const SimulationOptions& options,
                                ProcessWindow& window) {
    std::optional<SimulationStage> lastStage;
    const auto showProgress = [&](SimulationStage stage, double fraction) {
        if (stage != lastStage) {
            window.BeginPhase(Simulation::StageTitle(stage, Simulation::TotalPointCount(scene)),
                              StepsOfStage);
            lastStage = stage;
        }
        window.Show(static_cast<std::int32_t>(std::lround(fraction * StepsOfStage)));
    };
    return Simulation::RunSimulation(
        scene, options, [&window] { return window.IsCancelled(); },
        [](const std::string& line) { Commands::ReportLine(line); }, showProgress);
}

void RememberRun(std::uint64_t points, double seconds, const Simulation::EngineSettings& engine) {
    Simulation::LastRunRecord record;
    record.valid = true;
    record.points = static_cast<std::int32_t>(
        std::min<std::uint64_t>(points, std::numeric_limits<std::int32_t>::max()));
    record.seconds = seconds;
    record.costFactor = Simulation::CostFactor(engine);
    Commands::CheckError("Guardar a duracao do calculo", SaveLastRun(record));
}

} // namespace

bool RunRadiance(const Simulation::Scene& scene, const Radiance::Installation& installation,
                 SimulationResult& result, std::string& workFolderText, const RunOptions& asked) {
    const SimulationOptions options = MakeOptions(installation, asked);
    workFolderText = Text::Narrow(options.workFolder);
    std::chrono::duration<double> elapsed{};
    {
        ProcessWindow window("Vantoro: cálculo de iluminação", StageCount);
        Commands::ReportLine("motor: " + Simulation::EngineSummary(options.engine));
        const auto start = std::chrono::steady_clock::now();
        result = RunUnderWindow(scene, options, window);
        elapsed = std::chrono::steady_clock::now() - start;
    }
    if (result.cancelled) {
        Commands::ReportLine("calculo cancelado - nada foi desenhado.");
        return false;
    }
    if (!result.success) {
        Commands::Alert("O calculo falhou: " + result.error + "\nArquivos em: " + workFolderText);
        return false;
    }
    const std::uint64_t points = Simulation::PlanePointCount(scene);
    RememberRun(points, elapsed.count(), options.engine);
    const std::string time =
        asked.repeatable ? "" : " em " + Text::FormatFixed(elapsed.count(), 0) + " s";
    Commands::ReportLine("Radiance: " + std::to_string(points) + " ponto(s)" + time);
    return true;
}

} // namespace Merivane::Archicad
