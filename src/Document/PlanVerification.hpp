#pragma once

#include "Document/PlanSheet.hpp"
#include "Document/ResultPlan.hpp"

namespace Merivane::Document {

/// Width of a block with tables of verification: criterion, calculated, required, state [mm].
inline constexpr double VerificationWidth = 110.0;

/// Green of what is met, red of what is not; black without data.
Drawing::Color StateColor(const Simulation::VerificationRow& row);

/// Adds the table of what is required, the overall result, and the remark on missing data where
/// the result is a pass in spite of it. Nothing without rows.
void AppendVerification(SheetBlock& block, const PlanVerdict& verdict);

/// Adds the table of what is recommended. Nothing without such rows.
void AppendRecommendations(SheetBlock& block, const PlanVerdict& verdict);

/// Adds the table of ceiling and walls against their reference. Nothing where neither was
/// calculated.
void AppendSurfaces(SheetBlock& block, const PlanVerdict& verdict);

} // namespace Merivane::Document
