#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Simulation/Glare/ZoneGlare.hpp"
#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Study/LightingStudy.hpp"
#include "Simulation/Study/StudyScene.hpp"
#include "Simulation/Verification/TaskTable.hpp"
#include "Simulation/Verification/Verification.hpp"
#include "Simulation/Verification/ZoneVerification.hpp"

namespace Merivane::Simulation {

/// What the values of one Zone mean: glare, and what its activity requires.
struct ZoneAnalysis {
    const TaskRow* task = nullptr; ///< the Zone's activity; null: not verified
    PointStatistics statistics;    ///< task area of the work plane
    bool glareAnalysed = false;    ///< the study asks for it; else `glare` is empty
    ZoneGlare glare;
    ZoneVerification verification;
    std::vector<VerificationRow> surfaces; ///< see `SurfaceRows`
    PointStatistics floor;                 ///< of the floor's points; no points: not calculated
};

/// Glare, where the study asks for it, and verification of its Zone at index `zone`. `result` must
/// be that of `built.scene`. The rows that explain the observers' values are kept only with
/// `explain`.
ZoneAnalysis AnalyseZone(const LightingStudy& study, const StudyScene& built,
                         const SimulationResult& result, std::size_t zone, bool explain);

/// False when a required criterion of the Zone has data and is not met.
bool MeetsRequirements(const ZoneAnalysis& analysis);

/// "ATENDE" or "NÃO ATENDE"; empty for a Zone that is not verified.
std::string OverallState(const ZoneAnalysis& analysis);

} // namespace Merivane::Simulation
