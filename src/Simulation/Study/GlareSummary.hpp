#pragma once

#include <string>
#include <vector>

#include "Simulation/Study/ZoneAnalysis.hpp"

namespace Merivane::Simulation {

/// What a reader of a Zone's results is told of its glare, as Portuguese lines of text: the value
/// of the tabular method against the activity's limit and the case it was read in, or why there is
/// none, the reference room, small sources, the observers of the real layout.
std::vector<std::string> GlareSummary(const ZoneAnalysis& analysis);

/// How the table was read for the model whose value is the Zone's; with several models over the
/// Zone it says which. Empty where no model has a value.
std::string WorstReading(const ZoneGlare& glare);

/// True when the Zone has an activity for which the standard gives a UGRL.
bool HasUgrLimit(const ZoneAnalysis& analysis);

} // namespace Merivane::Simulation
