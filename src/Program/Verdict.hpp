#pragma once

#include <vector>

#include "Simulation/Study/LightingStudy.hpp"
#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Program {

/// The exit status of a calculation whose results are written and whose user asked for a verdict:
/// `StatusNotMet` where a Zone does not have what its activity requires. Tells standard error which
/// Zones these are, and that nothing was verified where no Zone has an activity. `analyses` are
/// those of the study's Zones, in order.
int Verdict(const Simulation::LightingStudy& study,
            const std::vector<Simulation::ZoneAnalysis>& analyses);

} // namespace Merivane::Program
