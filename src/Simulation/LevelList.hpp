#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Merivane::Simulation {

/// Illuminances at which isolux curves and colour bands are drawn [lux].
/// Strictly ascending; every value finite and above 0.
using LevelList = std::vector<double>;

/// 50, 100, 150, 200, 300, 500, 750, 1000 lux.
const LevelList& DefaultLevels();

/// Reads levels as the user types them: "50; 12,5", "50, 100" or "50 100".
/// `;`, blank and tab separate. `,` separates too, but only in a text without `;`;
/// in a text with `;` it is the decimal point. Order and repeats do not matter.
///
/// Returns true and fills `levels`. On the first bad token returns false and sets `error`
/// to one Portuguese sentence, ready to show; `levels` must then not be used.
bool ParseLevels(std::string_view text, LevelList& levels, std::string& error);

/// The levels joined by "; ", a decimal comma in those that are no whole number, each in the
/// shortest form that reads back; a single such level is followed by ";". `ParseLevels` gives the
/// same list back.
std::string FormatLevels(const LevelList& levels);

/// A level as it stands on a curve: no decimals for a whole number, else one: "150", "12,5".
std::string FormatLevelLabel(double level);

} // namespace Merivane::Simulation
