#pragma once

#include "AddOn/Commands/CalculateLighting.hpp"

/// The second half of a calculation: what Radiance's values mean, and the drawing of them. Failures
/// are reported as they come; the steps behind them are still made where they can be.
namespace Merivane::Commands {

/// Works out curves, bands, glare and verification of every Zone, and tells the run log.
void AnalyseZones(Calculation& calculation);

/// Brings the floor plan of the Zones' story to front. False when the host does not; the user has
/// then been told.
bool ShowPlan(const Calculation& calculation);

/// Replaces what the previous calculation drew on the Zones' floors, in one step to undo, then
/// brings the views up to date.
void DrawResults(const Calculation& calculation);

} // namespace Merivane::Commands
