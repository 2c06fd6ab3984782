#include "Simulation/PrintedValue.hpp"

#include <algorithm>
#include <cmath>

#include "Text/Number.hpp"

namespace Merivane::Simulation {

double PrintedValue(double value, int decimals) {
    double factor = 1.0; // exact up to 22 decimals, which pow does not promise everywhere
    for (int i = 0; i < decimals; ++i) {
        factor *= 10.0;
    }
    const double scaled = value * factor;
    if (!std::isfinite(scaled)) {
        return value; // too large to have decimals, or no number
    }
    return std::round(scaled) / factor + 0.0; // + 0.0: nobody prints minus zero
}

bool MeetsMinimum(double value, double limit, int decimals) {
    return PrintedValue(value, decimals) >= limit - 1e-9;
}

std::string FormatDecimal(double value, int decimals) {
    std::string text = Text::FormatFixed(PrintedValue(value, decimals), std::max(decimals, 0));
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

} // namespace Merivane::Simulation
