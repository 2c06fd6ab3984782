#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Simulation/Verification/ZoneRequirement.hpp"

/// Values of the command line that are no free text. Each judge takes an empty text for "not
/// given", leaves the target as it is then, and otherwise reads it; it returns false with one
/// Portuguese sentence that names the option.
namespace Merivane::Program {

/// A value of the command line that is judged after the line is split, so that what is wrong with
/// it is said in Portuguese. Returns false with the sentence.
using Judgement = std::function<bool(std::string& error)>;

/// A scale as "50" or "1:50", from 1:5 to 1:5000: outside it no sheet of paper fits.
bool JudgeScale(const std::string& text, double& scale, std::string& error);

/// A number above 0, with a decimal point or comma.
bool JudgePositive(const char* option, const std::string& text, double& value, std::string& error);

/// A number from `lowest` to `highest`, both included and above 0.
bool JudgeRange(const char* option, const std::string& text, double lowest, double highest,
                double& value, std::string& error);

/// A number from `lowest` to `highest`, both included; none where nothing is given.
bool JudgeNumber(const char* option, const std::string& text, double lowest, double highest,
                 std::optional<double>& value, std::string& error);

/// One of several words, as its place among them; none where nothing is given.
bool JudgeWord(const char* option, const std::string& text,
               const std::vector<std::string_view>& words, std::optional<std::uint32_t>& place,
               std::string& error);

/// The standard that Zones are verified against, "nbr" or "iso".
bool JudgeStandard(const std::string& text, std::optional<Simulation::ReferenceStandard>& standard,
                   std::string& error);

/// The index of a floor, a whole number from -1000 to 1000.
bool JudgeFloor(const std::string& text, std::optional<int>& floor, std::string& error);

/// The name of a palette as its number, see `BandColor`.
bool JudgePalette(const std::string& text, std::uint32_t& colorScale, std::string& error);

} // namespace Merivane::Program
