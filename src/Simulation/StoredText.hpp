#pragma once

#include <cstdint>
#include <string_view>

/// Reading of the small texts that the add-on stores: a header line, then numbers between white
/// space. Each function takes what it reads off the front of `rest`, by the rules of stream
/// extraction in the "C" locale: leading white space is skipped, line ends included, and a number
/// ends at the first byte that cannot continue it.
namespace Merivane::Simulation {

/// Takes the first line and its line end. True when the line is exactly `header`.
bool TakeHeaderLine(std::string_view& rest, std::string_view header);

/// Takes a decimal integer. False, leaving `value` untouched, when there is none or it does not
/// fit.
bool TakeInteger(std::string_view& rest, std::int32_t& value);

/// Takes a decimal number, always finite. False, leaving `value` untouched, when there is none or
/// it is too large; words ("inf", "nan") and hexadecimal forms are none.
bool TakeNumber(std::string_view& rest, double& value);

} // namespace Merivane::Simulation
