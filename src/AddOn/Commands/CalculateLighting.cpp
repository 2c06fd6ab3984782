#include "AddOn/Commands/CalculateLighting.hpp"

#include <chrono>

#include "AddOn/AddOnState.hpp"
#include "AddOn/Commands/CalculationInput.hpp"
#include "AddOn/Commands/CalculationResults.hpp"
#include "AddOn/RunLog/RunLog.hpp"
#include "Archicad/RunRadiance.hpp"

namespace Merivane::Commands {

namespace {

/// True when there are values.
bool RunEngine(Calculation& calculation) {
    const auto started = std::chrono::steady_clock::now();
    const bool calculated =
        Archicad::RunRadiance(calculation.built.scene, calculation.installation, calculation.result,
                              calculation.workFolder, CurrentAddOnState().run);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - started;
    calculation.seconds = elapsed.count();
    if (!calculated) {
        calculation.end =
            calculation.result.cancelled ? CalculationEnd::Cancelled : CalculationEnd::Failed;
        return false;
    }
    Progress("radiance concluido");
    return true;
}

/// Everything before Radiance runs.
bool ReadAndAsk(Calculation& calculation) {
    std::vector<Host::Guid> luminaireGuids;
    if (!CollectZonesAndLuminaires(calculation, luminaireGuids) || !FindRadiance(calculation) ||
        !AskSettings(calculation) || !AskActivities(calculation) ||
        !CollectModel(calculation, luminaireGuids)) {
        return false;
    }
    BuildPoints(calculation);
    return true;
}

} // namespace

Calculation RunCalculation() {
    BeginLog("calculo em planta");
    Calculation calculation;
    if (!ReadAndAsk(calculation) || !RunEngine(calculation)) {
        return calculation;
    }
    AnalyseZones(calculation);
    if (!ShowPlan(calculation)) {
        calculation.end = CalculationEnd::Failed;
        return calculation;
    }
    DrawResults(calculation);
    calculation.end = CalculationEnd::Done;
    return calculation;
}

void CalculateLighting() {
    RunCalculation();
}

} // namespace Merivane::Commands
