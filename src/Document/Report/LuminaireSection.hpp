#pragma once

#include <vector>

#include "Document/Report/LuminaireTypes.hpp"
#include "Document/Report/Report.hpp"
#include "Document/Report/ReportInput.hpp"

namespace Merivane::Document {

/// The section on luminaires: each type with its count, light and power, then the power over each
/// Zone.
ReportSection BuildLuminaireSection(const ReportInput& input, const std::vector<ZonePower>& powers);

} // namespace Merivane::Document
