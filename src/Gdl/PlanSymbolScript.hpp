#pragma once

#include <string>

namespace Merivane::Photometry {

/// Limits of a plan symbol's printed size [mm]: from a mark beside a dimension to a large luminaire
/// on a sheet of details.
inline constexpr double SmallestPlanSymbol = 0.5;
inline constexpr double LargestPlanSymbol = 50.0;

/// Parameter script fragment (one line, LF) that holds `mvPlanSymbolSize` within its limits.
std::string PlanSymbolSizeRange();

/// 2D script fragment (LF line ends) that draws the symbol whose rows `mvSymbolData` holds, half
/// its printed size being the drawing's unit, and ends the script there, so that the plan of the
/// luminaire's model is not drawn below it. It lets the script go on where the luminaire has no
/// symbol and where the model view asks for the model's own plan.
std::string PlanSymbolScript2D();

} // namespace Merivane::Photometry
