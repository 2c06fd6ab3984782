#pragma once

#include <string>
#include <vector>

#include "Document/SceneBuild.hpp"
#include "Simulation/SimulationRecords.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Document {

/// What is told of a run beside its values.
struct RunRecord {
    std::string programVersion;       ///< of this program
    std::string radianceVersion;      ///< as Radiance tells it; may be empty
    double seconds = 0.0;             ///< wall time of the calculation [s]
    std::vector<std::string> notices; ///< Portuguese sentences for the reader of the results
    bool explained = false;           ///< the observers' rows were asked for
};

/// The results of a successful calculation as the text of `resultado.json`, described in
/// docs/cena.md: what each Zone's values mean, every plane with its grid, the values of its points
/// [lux] and the statistics of its task area, then the loose points of the document. `result` must
/// be that of `built.scene`, `analyses` those of the document's Zones, in order.
std::string WriteResultDocument(const Simulation::LightingStudy& document,
                                const Simulation::StudyScene& built,
                                const Simulation::SimulationResult& result,
                                const std::vector<Simulation::ZoneAnalysis>& analyses,
                                const RunRecord& run);

} // namespace Merivane::Document
