#pragma once

#include <string>
#include <vector>

#include "Document/SceneBuild.hpp"
#include "Document/SceneDocument.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Program {

/// Writes what the standard says of every Zone to standard output: its rows of verification, the
/// result, the glare. `analyses` are those of the document's Zones, in order.
void TellZones(const Simulation::LightingStudy& document,
               const std::vector<Simulation::ZoneAnalysis>& analyses);

/// Writes every observer's glare, luminaire by luminaire, to standard output.
void TellExplanations(const Simulation::LightingStudy& document,
                      const Simulation::StudyScene& built,
                      const std::vector<Simulation::ZoneAnalysis>& analyses);

/// What is worth a warning in the analysis of the Zones, each sentence with its Zone's name.
std::vector<std::string> AnalysisNotices(const Simulation::LightingStudy& document,
                                         const std::vector<Simulation::ZoneAnalysis>& analyses);

/// True when some Zone has a row of verification.
bool AnyVerified(const std::vector<Simulation::ZoneAnalysis>& analyses);

/// Names in quotation marks of the Zones with a required row that fails, parted by commas; empty
/// when there is none.
std::string FailingZones(const Simulation::LightingStudy& document,
                         const std::vector<Simulation::ZoneAnalysis>& analyses);

} // namespace Merivane::Program
