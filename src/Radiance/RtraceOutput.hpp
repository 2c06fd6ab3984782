#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Merivane::Radiance {

/// Puts the outputs of several processes together, their non-empty lines one behind the other, each
/// ended by LF. Returns whether there are `expected` lines; `joined` is filled either way.
bool JoinOutputs(const std::vector<std::string>& texts, std::uint64_t expected,
                 std::string& joined);

/// Reads the illuminances [lux] from an output of `rtrace`, one line "r g b" of irradiances a
/// point. Lines that don't begin with a finite number are skipped. Returns false, with `values` of
/// no use, when a line holds one or two numbers only or the count is not `expected`.
bool ParseIlluminance(std::string_view text, std::uint64_t expected, std::vector<double>& values);

/// Illuminance [lux] of an irradiance in Radiance's colour channels [W/m2]: its standard luminous
/// efficacy of 179 lm/W over its luminance weights.
double IlluminanceFromRgb(double red, double green, double blue);

} // namespace Merivane::Radiance
