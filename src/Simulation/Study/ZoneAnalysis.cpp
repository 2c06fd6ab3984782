#include "Simulation/Study/ZoneAnalysis.hpp"

#include <algorithm>

#include "Simulation/Study/SurfaceReference.hpp"
#include "Simulation/Verification/TaskSearch.hpp"

namespace Merivane::Simulation {

namespace {

/// Reflected light alone makes the background. Both values are estimates, so that their difference
/// can fall below 0 where next to nothing is reflected.
double ReflectedIlluminance(const SimulationResult& result, std::size_t point) {
    if (point >= result.pointIlluminance.size() || point >= result.pointDirectIlluminance.size()) {
        return 0.0;
    }
    return std::max(result.pointIlluminance[point] - result.pointDirectIlluminance[point], 0.0);
}

std::vector<RoomObserver> ObserversOf(const StudyScene& built, const SimulationResult& result,
                                      std::size_t zone) {
    std::vector<RoomObserver> observers;
    for (const StudyObserver& seen : built.observers) {
        if (seen.zone == zone) {
            observers.push_back(
                {seen.observer, seen.placed, ReflectedIlluminance(result, seen.point)});
        }
    }
    return observers;
}

} // namespace

ZoneAnalysis AnalyseZone(const LightingStudy& study, const StudyScene& built,
                         const SimulationResult& result, std::size_t zone, bool explain) {
    const StudyZone& asked = study.zones[zone];
    const ZoneSpace space = SpaceOf(asked);
    ZoneAnalysis analysis;
    analysis.task = FindTask(asked.task.requirement.taskId);
    analysis.statistics = PlaneStatistics(built, result, zone, PlaneKind::WorkPlane);
    analysis.glareAnalysed = study.glare;
    if (study.glare) {
        analysis.glare = AnalyseZoneGlare(
            space, built.scene, ObserversOf(built, result, zone), analysis.task != nullptr,
            analysis.task != nullptr ? analysis.task->ugrLimit : 0, explain);
    }
    analysis.verification =
        VerifyZoneOfScene(space, built.scene,
                          {asked.task.requirement, analysis.statistics, analysis.glare.hasUgr,
                           analysis.glare.ugr, asked.grid.workPlaneHeight});
    analysis.surfaces = SurfaceRows(built, result, zone, analysis.task);
    analysis.floor = PlaneStatistics(built, result, zone, PlaneKind::Floor);
    return analysis;
}

bool MeetsRequirements(const ZoneAnalysis& analysis) {
    return VerificationPasses(analysis.verification.rows);
}

std::string OverallState(const ZoneAnalysis& analysis) {
    if (analysis.verification.rows.empty()) {
        return "";
    }
    return MeetsRequirements(analysis) ? "ATENDE" : "NÃO ATENDE";
}

} // namespace Merivane::Simulation
