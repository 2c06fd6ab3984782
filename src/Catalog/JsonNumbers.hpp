#pragma once

#include <cmath>
#include <limits>
#include <string_view>

#include "Catalog/Json.hpp"

namespace Merivane::Catalog {

/// A member's number without its decimals, the nearest end of the type's range for one beyond it;
/// `fallback` when there is no such member or it is of another kind.
template <typename Whole>
Whole WholeNumberOr(const JsonValue& value, std::string_view key, Whole fallback) {
    const double number = std::trunc(value.NumberOr(key, static_cast<double>(fallback)));
    // The upper end may not be a double itself, the number one above it always is.
    const double beyond = std::ldexp(1.0, std::numeric_limits<Whole>::digits);
    if (number >= beyond) {
        return std::numeric_limits<Whole>::max();
    }
    return number < -beyond ? std::numeric_limits<Whole>::min() : static_cast<Whole>(number);
}

/// `value` with so many decimals, halves away from zero; one too large to have any stays.
inline double RoundTo(double value, int decimals) {
    const double power = std::pow(10.0, decimals);
    const double scaled = value * power;
    return std::isfinite(scaled) ? std::round(scaled) / power : value;
}

} // namespace Merivane::Catalog
