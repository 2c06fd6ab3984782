#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Document/GlareExplanation.hpp"
#include "Document/SceneBuild.hpp"
#include "Document/SceneDocument.hpp"
#include "Simulation/Glare/ZoneGlare.hpp"
#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Verification/TaskTable.hpp"
#include "Simulation/Verification/Verification.hpp"
#include "Simulation/Verification/ZoneVerification.hpp"

namespace Merivane::Document {

/// What the values of one Zone mean: glare, and what its activity requires.
struct ZoneAnalysis {
    const Simulation::TaskRow* task = nullptr; ///< the Zone's activity; null: not verified
    Simulation::PointStatistics statistics;    ///< task area of the work plane
    Simulation::ZoneGlare glare;
    Simulation::ZoneVerification verification;
    std::vector<Simulation::VerificationRow> surfaces; ///< see `SurfaceRows`
};

/// Glare and verification of the Zone at index `zone` of the document. `result` must be that of
/// `built.scene`. The rows that explain the observers' values are kept only with `explain`.
ZoneAnalysis AnalyseZone(const SceneDocument& document, const BuiltScene& built,
                         const Simulation::SimulationResult& result, std::size_t zone,
                         bool explain);

/// False when a required criterion of the Zone has data and is not met.
bool MeetsRequirements(const ZoneAnalysis& analysis);

/// "ATENDE" or "NÃO ATENDE"; empty for a Zone that is not verified.
std::string OverallState(const ZoneAnalysis& analysis);

/// The Zone's observers with their rows. `zoneName` stands in the title.
ExplainedRoom ExplainZone(const std::string& zoneName, const ZoneAnalysis& analysis,
                          const Simulation::Scene& scene);

} // namespace Merivane::Document
