#include "Radiance/RtraceOptions.hpp"
#include "Radiance/RtraceOutput.hpp"
#include "Radiance/RtraceShares.hpp"
#include "Simulation/Run/RunSteps.hpp"

namespace Merivane::Simulation {

namespace {

constexpr const char* SeedAmbientName = "ambient.amb";

// The files of one process. It never shares its ambient file: `rtrace` writes to it.
struct Share {
    std::string number; ///< from 1, as messages tell it
    std::string points;
    std::string output;
    std::string ambient;
};

std::vector<Share> ShareNames(std::int32_t count) {
    std::vector<Share> shares;
    for (std::int32_t i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        shares.push_back({.number = number,
                          .points = "sensors_" + number + ".pts",
                          .output = "illuminance_" + number + ".txt",
                          .ambient = "ambient_" + number + ".amb"});
    }
    return shares;
}

bool IsAmbientFile(std::string_view name) {
    return name.ends_with(".amb");
}

// Without it every process would build ambient values of its own: the same work again, and seams
// in the light where their shares meet.
bool RunSeed(RunContext& run, const std::string& sensors) {
    const std::string seed = Radiance::SeedPoints(sensors);
    if (!WriteWorkFile(run, "seed.pts", seed)) {
        return Fail(run, "nao foi possivel gravar os pontos da semente");
    }
    EnterStage(run, SimulationStage::Seed, {"seed.txt"}, Radiance::NonEmptyLines(seed).size());
    Log(run, "rtrace: semente da luz refletida");
    std::string error;
    if (!RunRadianceTool(run.target, "rtrace",
                         Radiance::WithAmbientFile(run.options, SeedAmbientName), "seed.pts",
                         "seed.txt", error)) {
        return Fail(run, "calculo (rtrace, semente): " + error);
    }
    return true;
}

// A share without a copy of the seed's values merely starts without them.
void CopySeedAmbient(const RunContext& run, const std::string& ambient) {
    std::string values;
    if (ReadWorkFile(run, SeedAmbientName, values)) {
        WriteWorkFile(run, ambient, values);
    }
}

bool WriteShares(RunContext& run, const std::string& sensors, const std::vector<Share>& shares) {
    const std::vector<std::string> points =
        Radiance::SplitPoints(sensors, static_cast<std::int32_t>(shares.size()));
    for (std::size_t i = 0; i < shares.size(); ++i) {
        if (!WriteWorkFile(run, shares[i].points, points[i])) {
            return Fail(run, "nao foi possivel gravar os pontos do processo " + shares[i].number);
        }
        CopySeedAmbient(run, shares[i].ambient);
    }
    return true;
}

bool CheckOutcomes(RunContext& run, const std::vector<Share>& shares,
                   const std::vector<Radiance::ProcessOutcome>& outcomes) {
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
        const Radiance::ProcessOutcome& outcome = outcomes[i];
        if (outcome.cancelled) {
            run.result.cancelled = true;
            return Fail(run, CancelledText);
        }
        if (!outcome.started || outcome.exitCode != 0) {
            const std::string code =
                outcome.started ? "erro " + std::to_string(outcome.exitCode) + " " : "";
            return Fail(run, "calculo (rtrace, processo " + shares[i].number + "): " + code +
                                 FirstLine(outcome.errorText));
        }
    }
    return true;
}

bool RunShares(RunContext& run, const std::vector<Share>& shares) {
    std::vector<Radiance::ProcessJob> jobs;
    std::vector<std::string> outputs;
    for (const Share& share : shares) {
        jobs.push_back(ToolJob(run.target, "rtrace",
                               Radiance::WithAmbientFile(run.options, share.ambient), share.points,
                               share.output));
        outputs.push_back(share.output);
    }
    ReportProgress(run, SimulationStage::Seed, 1.0);
    EnterStage(run, SimulationStage::Points, outputs, run.planePoints);
    const auto outcomes = Radiance::RunProcesses(jobs, run.target.poll);
    ReportProgress(run, SimulationStage::Points, 1.0);
    return CheckOutcomes(run, shares, outcomes);
}

bool JoinShares(RunContext& run, const std::vector<Share>& shares) {
    std::vector<std::string> texts(shares.size());
    for (std::size_t i = 0; i < shares.size(); ++i) {
        if (!ReadWorkFile(run, shares[i].output, texts[i])) {
            return Fail(run, "nao foi possivel ler a saida do processo " + shares[i].number);
        }
    }
    std::string joined;
    if (!Radiance::JoinOutputs(texts, run.planePoints, joined) ||
        !WriteWorkFile(run, "illuminance.txt", joined)) {
        return Fail(run, "as saidas dos processos do rtrace nao fecham com os pontos");
    }
    return true;
}

} // namespace

bool CalculateInProcesses(RunContext& run, std::int32_t count) {
    // `rtrace` reuses an ambient file that it finds, and with it the light of another scene.
    DeleteWorkFiles(run, IsAmbientFile);
    std::string sensors;
    if (!ReadWorkFile(run, "sensors.pts", sensors)) {
        return Fail(run, "nao foi possivel gravar os pontos da semente");
    }
    const std::vector<Share> shares = ShareNames(count);
    return RunSeed(run, sensors) && WriteShares(run, sensors, shares) && RunShares(run, shares) &&
           JoinShares(run, shares);
}

} // namespace Merivane::Simulation
