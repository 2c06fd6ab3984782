#pragma once

#include <string>
#include <string_view>

#include "Simulation/Reflectances.hpp"

namespace Merivane::Simulation {

/// Key of the corrections' text form in the preference block.
inline constexpr std::string_view ReflectancesKey = "MVREFL01";

/// Reads the stored text form, also its three older versions. Lines that can't be read are passed
/// over; of a surface told twice the last line counts. Returns false, with an empty store, when the
/// first line names no known version.
bool ParseReflectances(std::string_view text, ReflectanceStore& store);

/// The stored text form, lines of fields parted by tabs; `ParseReflectances` reads it back exactly.
/// A key that holds a tab or a line break is left out, and so is an entry that it would not read
/// back.
std::string FormatReflectances(const ReflectanceStore& store);

} // namespace Merivane::Simulation
