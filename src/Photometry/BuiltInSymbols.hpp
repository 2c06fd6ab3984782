#pragma once

#include <vector>

#include "Photometry/PlanSymbol.hpp"

namespace Merivane::Photometry {

/// Identifier of "no symbol": the plan of the luminaire's model stays.
inline constexpr int NoPlanSymbol = 0;

/// Identifier of the built-in symbol that a new luminaire gets: the filled circle.
inline constexpr int DefaultPlanSymbol = 2;

/// True for the identifiers that the built-in symbols have, "no symbol" among them.
bool IsBuiltInSymbol(int id);

/// A built-in symbol with its name and its drawing. `NoPlanSymbol` has no strokes; an identifier
/// that is not built in gives a symbol without name and strokes.
PlanSymbol BuiltInSymbol(int id);

/// All built-in symbols in the order of their identifiers, which begin at 0 and leave none out.
std::vector<PlanSymbol> BuiltInSymbols();

} // namespace Merivane::Photometry
