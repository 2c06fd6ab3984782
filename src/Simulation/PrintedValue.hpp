#pragma once

#include <string>

namespace Merivane::Simulation {

/// `value` as it stands on the sheet: rounded to `decimals`, halves away from zero.
double PrintedValue(double value, int decimals);

/// True when the printed value reaches `limit`, with a tolerance of 1e-9 on the limit.
bool MeetsMinimum(double value, double limit, int decimals);

/// The printed value as text with exactly `decimals` decimals and a decimal comma: "0,70".
std::string FormatDecimal(double value, int decimals);

} // namespace Merivane::Simulation
