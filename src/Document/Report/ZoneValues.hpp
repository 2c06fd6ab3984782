#pragma once

#include <vector>

#include "Document/Report/ReportInput.hpp"

namespace Merivane::Document {

/// What was adopted for the Zones of a calculation: activities, ceilings, screens, grids, the room
/// of the glare tables. Zones that share a value stand in one line.
std::vector<AdoptedValue> CollectZoneValues(const ReportInput& input);

} // namespace Merivane::Document
