#pragma once

#include <string>

#include "Document/GlareExplanation.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Document {

/// A Zone's observers with their rows. `zoneName` stands in the title.
ExplainedRoom ExplainZone(const std::string& zoneName, const Simulation::ZoneAnalysis& analysis,
                          const Simulation::Scene& scene);

} // namespace Merivane::Document
